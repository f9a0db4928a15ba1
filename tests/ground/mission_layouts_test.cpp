// The layouts of a mission on the Ground units tab: placing, picking and dragging markers,
// airfield layouts, the limit of 20, removal, the origin typed as text, and deleting a record.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/coord_text.h"
#include "ground/ground_tab_fixture.h"
#include "ground/layout_lists.h"
#include "ground/mission_layouts.h"
#include "refdata/reference_lookups.h"
#include "refdata/shared_lookup.h"
#include "shell/controls/user_gestures.h"

namespace tarvex {
namespace {

using testing::GroundTab;

class MissionLayoutsTest : public GroundTab {
  protected:
    std::vector<std::string> Rows() const {
        std::vector<std::string> rows;
        for (int i = 0; i < frm.lstGUAdded.ListCount(); ++i)
            rows.push_back(frm.lstGUAdded.List(i));
        return rows;
    }
    int Count(const std::string& sql) {
        SharedLookup lookup(ed.db, sql);
        return lookup.First().Fields(0).Long();
    }
    // The numbers printed beside the markers, in drawing order.
    std::vector<std::string> MarkerNumbers() const {
        std::vector<std::string> numbers;
        for (const DrawOp& op : map.Operations())
            if (op.kind == DrawKind::Text) numbers.push_back(op.text);
        return numbers;
    }
};

TEST_F(MissionLayoutsTest, PressesPickTheLowestRowWithinTheOpenBox) {
    Place("Light AA Site Bofors", 1000, 1000);
    Place("Army Camp", 1060, 1000);  // overlaps the first
    Place("Searchlight Site", 3000, 3000);
    PlaceOnAirfield("RAF Sector Station", 28);
    ASSERT_EQ(doc.GUCount, 4);
    frm.lstGrnUnits.SetListIndex(-1);  // a miss places nothing now

    const struct {
        float x, y;
        int row;  // -1: a miss
    } presses[] = {
        {3048, 3000, -1},   {3000, 2952, -1},      {2952, 3000, -1}, {3000, 3048, -1},
        {3047.9f, 3000, 2}, {2952.1f, 3047.9f, 2}, {1040, 1000, 0},  {1100, 1000, 1},
    };
    for (const auto& p : presses) {
        SCOPED_TRACE(std::to_string(p.x) + "," + std::to_string(p.y));
        frm.lstGUAdded.SetListIndex(-1);
        map.RaiseMouseDown(kLeftButton, 0, p.x, p.y);
        EXPECT_EQ(frm.lstGUAdded.ListIndex(), p.row);
        EXPECT_EQ(ed.ground.MovingLayout, p.row >= 0);
        if (p.row >= 0) {
            EXPECT_EQ(ed.ground.MovingRow, p.row);
        }
        map.RaiseMouseUp(kLeftButton, 0, p.x, p.y);
        EXPECT_FALSE(ed.ground.MovingLayout);
        EXPECT_EQ(doc.GUCount, 4);
    }
    EXPECT_TRUE(t.dialogs.messages.empty());

    // An airfield layout is picked but not dragged: its origin is the airfield's.
    map.RaiseMouseDown(kLeftButton, 0, doc.GUMapX(3), doc.GUMapY(3));
    EXPECT_EQ(frm.lstGUAdded.ListIndex(), 3);
    EXPECT_FALSE(ed.ground.MovingLayout);
    ASSERT_EQ(t.dialogs.messages.size(), 1u);
    EXPECT_EQ(t.dialogs.messages[0].text,
              "You can not move an airfield unit here. \nDouble click its name in [Mission "
              "Units]\nlistbox to edit the layout location");
    EXPECT_EQ(t.dialogs.messages[0].title, "Moving Airfields");
    EXPECT_EQ(t.dialogs.messages[0].icon, MsgIcon::Information);
}

TEST_F(MissionLayoutsTest, PlacesAnAirfieldLayoutOnItsRunwayWithTheAirfieldInItsItemData) {
    AddLayout(60, "Copied Field", 2);
    const struct {
        int airfield;
        const char* layout;
        std::int32_t itemData;
        float rotation;
    } cases[] = {
        {0, "RAF Sector Station", 10016, 90},
        {28, "RAF Sector Station", 290016, 90},
        {28, "Copied Field", 290060, 0},  // a copy holds its turn in its offsets
    };
    for (int k = 0; k < 3; ++k) {
        const auto& c = cases[k];
        SCOPED_TRACE(c.itemData);
        PlaceOnAirfield(c.layout, c.airfield);
        ASSERT_EQ(doc.GUCount, k + 1);
        EXPECT_EQ(frm.lstGUAdded.ItemData(k), c.itemData);
        EXPECT_EQ(LayoutIdFromItemData(c.itemData), c.itemData % 10000);
        EXPECT_EQ(doc.GURotation(k), c.rotation);
        EXPECT_EQ(LayoutRowName(frm.lstGUAdded.List(k)),
                  frm.cmbGrndAirfield.List(c.airfield) + " " + c.layout);
        EXPECT_FALSE(frm.txtGULatLon.Enabled());
        // The origin is the runway's two-decimal position, in four decimals.
        std::string lat, lon;
        std::int16_t type, elevation, rwy;
        double rot;
        LoadAirfieldPoint(ed, lat, lon, c.airfield, type, elevation, rot, rwy);
        EXPECT_EQ(doc.GULat(k), NormalizeCoordText(lat, "00.0000"));
        EXPECT_EQ(doc.GULon(k), NormalizeCoordText(lon, "00.0000"));
    }
    // An airfield alone places nothing.
    frm.cmbAirfieldLayout.SetListIndex(-1);
    frm.cmbGrndAirfield.SetListIndex(3);
    EXPECT_EQ(doc.GUCount, 3);
}

TEST_F(MissionLayoutsTest, NoRoadAddsATwentyFirstLayout) {
    for (int k = 0; k < Mission::kMaxLayouts; ++k)
        Place("Army Camp", 300.0f + 200 * (k % 10), 600.0f + 400 * (k / 10));
    ASSERT_EQ(doc.GUCount, 20);
    Place("Army Camp", 4000, 4000);
    PlaceOnAirfield("RAF Sector Station", 5);
    ASSERT_EQ(t.dialogs.messages.size(), 2u);
    for (const auto& box : t.dialogs.messages) {
        EXPECT_EQ(box.text, "Maximum Number of  Ground Layouts has been Reached");
        EXPECT_EQ(box.title, "Maximum Reached");
        EXPECT_EQ(box.icon, MsgIcon::Exclamation);
    }
    EXPECT_EQ(doc.GUCount, 20);
    EXPECT_EQ(frm.lstGUAdded.ListCount(), 20);
    EXPECT_TRUE(doc.GULon(20).empty());
}

TEST_F(MissionLayoutsTest, RemovalClosesTheGapAndRenumbers) {
    Place("Light AA Site Bofors", 1000, 1000);
    Place("Army Camp", 2000, 1000);
    Place("Searchlight Site", 3000, 1000);
    doc.GUShiftX(2) = 0.25f;
    doc.GURotation(2) = 30;
    doc.GUPoints(2) = 2;
    const std::string thirdLat = doc.GULat(2);

    frm.lstGUAdded.SetListIndex(1);
    frm.btnDeleteGrndUnit.UserClick();
    EXPECT_EQ(Rows(),
              (std::vector<std::string>{"01. Light AA Site Bofors", "02. Searchlight Site"}));
    EXPECT_EQ(doc.GULat(1), thirdLat);
    EXPECT_EQ(doc.GUShiftX(1), 0.25f);
    EXPECT_EQ(doc.GURotation(1), 30);
    EXPECT_EQ(doc.GUPoints(1), 2);
    EXPECT_TRUE(doc.GULon(2).empty());
    EXPECT_EQ(doc.GUShiftX(2), 0);
    // The row that took the place is selected, and the markers carry the new numbers.
    EXPECT_EQ(ed.ground.CurrentLayout, 1);
    EXPECT_TRUE(frm.optGndHasPoints(2).Value());
    EXPECT_EQ(MarkerNumbers(), (std::vector<std::string>{"1", "2"}));

    // The last row removed: the one above it is selected.
    frm.btnDeleteGrndUnit.UserClick();
    EXPECT_EQ(frm.lstGUAdded.ListIndex(), 0);
    frm.btnDeleteGrndUnit.UserClick();
    EXPECT_EQ(doc.GUCount, 0);
    EXPECT_FALSE(frm.btnDeleteGrndUnit.Visible());
    EXPECT_FALSE(frm.lstGUAdded.Enabled());
    EXPECT_EQ(frm.txtGULatLon.Text(), "");
    EXPECT_EQ(ed.ground.CurrentLayout, -1);
}

TEST_F(MissionLayoutsTest, ReadsTheTypedOriginOnlyAfterAKeyAndOnceTheLongitudeBegins) {
    Place("Army Camp", 1000, 1000);
    const std::string lat = doc.GULat(0);
    const std::string lon = doc.GULon(0);
    const float x = doc.GUMapX(0);

    // Code shows a text: nothing is read from it.
    frm.txtGULatLon.SetText("N51 00.0000 E01 00.0000");
    EXPECT_EQ(doc.GULat(0), lat);

    const struct {
        const char* typed;
        const char* shown;
        const char* lat;  // nullptr: not read
        const char* lon;
    } cases[] = {
        {"N5", "N5", nullptr, nullptr},
        {"N51 10.0000 ", "N51 10.0000 ", nullptr, nullptr},
        {"N51 10.0000 x", "N51 10.0000 X", nullptr, nullptr},
        {"n51 10.0000 e00 30.0000", "N51 10.0000 E00 30.0000", "N51 10.0000 ", "E00 30.0000"},
        {"N51 20.0000 W00 05.0000junk", "N51 20.0000 W00 05.0000JUNK", "N51 20.0000 ",
         "W00 05.0000JUNK"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.typed);
        doc.GULat(0) = lat;
        doc.GULon(0) = lon;
        doc.GUMapX(0) = x;
        Type(frm.txtGULatLon, c.typed);
        EXPECT_EQ(frm.txtGULatLon.Text(), c.shown);
        EXPECT_EQ(doc.GULat(0), c.lat ? c.lat : lat);
        EXPECT_EQ(doc.GULon(0), c.lon ? c.lon : lon);
        if (!c.lat) continue;
        float wantX = 0;
        float wantY = 0;
        ed.projection.ProjectPoint(c.lat, c.lon, wantX, wantY);
        EXPECT_EQ(doc.GUMapX(0), wantX);
        EXPECT_EQ(doc.GUMapY(0), wantY);
        // One read per key: code's next change reads nothing.
        frm.txtGULatLon.SetText("N50 00.0000 E00 00.0000");
        EXPECT_EQ(doc.GULat(0), c.lat);
    }

    // With no layout left, typing stores nowhere.
    frm.btnDeleteGrndUnit.UserClick();
    Type(frm.txtGULatLon, "N51 10.0000 E00 30.0000");
    EXPECT_TRUE(doc.GULat(0).empty());
}

TEST_F(MissionLayoutsTest, DragMovesTheOriginAndAChangeOfMapMovesNoLayout) {
    Place("Army Camp", 1000, 1000);
    map.RaiseMouseDown(kLeftButton, 0, 1010, 990);
    map.RaiseMouseMove(kLeftButton, 0, 1500, 1200);
    ed.projection.SetCursorPosition(1500, 1200, "##00.0000");
    std::string lat = ed.projection.CursorLatText;
    std::string lon = ed.projection.CursorLonText;
    EXPECT_EQ(doc.GULat(0), NormalizeCoordText(lat, "00.0000"));
    EXPECT_EQ(doc.GULon(0), NormalizeCoordText(lon, "00.0000"));
    EXPECT_EQ(doc.GUMapX(0), 1500);
    EXPECT_EQ(frm.txtGULatLon.Text(), doc.GULat(0) + " " + doc.GULon(0));
    map.RaiseMouseUp(kLeftButton, 0, 1500, 1200);
    map.RaiseMouseMove(0, 0, 2500, 2500);
    EXPECT_EQ(doc.GUMapX(0), 1500);

    // Another map: the text stays, the marker follows it.
    frm.cmbGUMap.SetListIndex(3);
    EXPECT_EQ(doc.GULat(0), lat);
    EXPECT_EQ(doc.GULon(0), lon);
    float x = 0;
    float y = 0;
    ed.projection.ProjectPoint(lat, lon, x, y);
    EXPECT_EQ(doc.GUMapX(0), x);
    EXPECT_EQ(doc.GUMapY(0), y);
    EXPECT_NE(x, 1500);
}

class LayoutRecordDeletionTest : public MissionLayoutsTest {
  protected:
    void SetUp() override {
        MissionLayoutsTest::SetUp();
        AddLayout(60, "My Flak", 1, "(4002,0,0),(4002,0.1,0)");
        Place("My Flak", 1000, 1000);
        Place("Army Camp", 2000, 1000);
        Place("My Flak", 3000, 1000);
        Press("My Flak");
    }
    // A press and release on a row of the landscape list, as the user's hands give them.
    void Press(const std::string& name) {
        ListBox& list = frm.lstGrnUnits;
        UserPressRow(list, list.FindRow(name), kLeftButton, 0);
        UserReleaseRow(list, list.FindRow(name), kLeftButton, 0);
    }
};

TEST_F(LayoutRecordDeletionTest, DeletesTheRecordWithEveryUseInTheMission) {
    ASSERT_TRUE(frm.btnDelGUlst.Visible());
    t.dialogs.QueueMsgAnswer(MsgAnswer::No);
    frm.btnDelGUlst.UserClick();
    EXPECT_EQ(doc.GUCount, 3);
    // The list went back to its first row, a default layout, which has no Delete.
    EXPECT_FALSE(frm.btnDelGUlst.Visible());
    frm.btnDelGUlst.UserClick();
    EXPECT_EQ(t.dialogs.messages.size(), 1u);

    Press("My Flak");
    frm.btnDelGUlst.UserClick();
    const auto& ask = t.dialogs.messages.back();
    EXPECT_EQ(ask.text,
              "Are you sure you want to delete this Ground Layout and all related records");
    EXPECT_EQ(ask.title, "Delete Ground Layout");
    EXPECT_EQ(ask.buttons, MsgButtons::YesNo);
    EXPECT_EQ(ask.icon, MsgIcon::Question);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames WHERE ID=60"), 0);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndTypes WHERE ID=60"), 0);
    EXPECT_EQ(Rows(), (std::vector<std::string>{"01. Army Camp"}));
    EXPECT_EQ(frm.lstGrnUnits.FindRow("My Flak"), -1);
}

TEST_F(LayoutRecordDeletionTest, ADatabaseErrorLeavesTheDatabaseAndTheMissionWhole) {
    ed.db.theDB.Execute(
        "CREATE TRIGGER KeepUnits BEFORE DELETE ON GrndTypes BEGIN "
        "SELECT RAISE(ABORT, 'units are locked'); END;");
    frm.btnDelGUlst.UserClick();
    const auto& box = t.dialogs.messages.back();
    EXPECT_EQ(box.text.rfind("Error Deleting the Ground Layout.\nError # ", 0), 0u) << box.text;
    EXPECT_EQ(box.title, "Delete Error");
    EXPECT_EQ(box.icon, MsgIcon::Critical);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndNames WHERE ID=60"), 1);
    EXPECT_EQ(Count("SELECT Count(*) FROM GrndTypes WHERE ID=60"), 2);
    EXPECT_EQ(doc.GUCount, 3);
    EXPECT_FALSE(ed.db.theRS.IsOpen());
}

TEST_F(LayoutRecordDeletionTest, ARecordGoneElsewhereLeavesTheFlagsAndHidesDelete) {
    AddLayout(61, "Other Site");
    Place("Other Site", 4000, 1000);
    // Another running copy deletes the layout that rows 0 and 2 use.
    ed.db.theDB.Execute("DELETE FROM GrndNames WHERE ID=60;");
    const struct {
        int before;  // a row whose record answers
        bool isDefault;
        int gone;
    } cases[] = {{1, true, 0}, {3, false, 2}};
    for (const auto& c : cases) {
        frm.lstGUAdded.SetListIndex(c.before);
        ASSERT_EQ(ed.ground.LayoutIsDefault, c.isDefault);
        frm.lstGUAdded.SetListIndex(c.gone);
        EXPECT_EQ(ed.ground.LayoutIsDefault, c.isDefault);
        EXPECT_EQ(ed.ground.CurrentLayout, c.gone);
    }
    Press("My Flak");
    EXPECT_FALSE(frm.btnDelGUlst.Visible());
    EXPECT_FALSE(ed.db.theRS.IsOpen());
}

}  // namespace
}  // namespace tarvex
