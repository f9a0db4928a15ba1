#include "maps/tab_selection.h"
#include "document/mission_reset.h"
#include "maps/map_catalogue.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace tarvex {
namespace {

using testing::TestEditor;

void WriteBitmap(const std::filesystem::path& file, int width, int height) {
    std::string b(54, '\0');
    b[0] = 'B';
    b[1] = 'M';
    for (auto [at, v] : {std::pair{14, 40}, {18, width}, {22, height}})
        for (int i = 0; i < 4; ++i)
            b[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
    std::ofstream(file, std::ios::binary) << b;
}

class TabSelectionTest : public ::testing::Test {
  protected:
    void SetUp() override {
        ed.options.MapPath = t.folder.string();
        WriteBitmap(t.folder / "Map1.bmp", 400, 300);
        WriteBitmap(t.folder / "Map3Bfe.bmp", 300, 200);
        LoadFrmMission(ed);
        ResetMission(ed);
    }

    bool Checked(int tab) const {
        const MenuItem* entries[] = {&mdi.mnuSummary, &mdi.mnuFormations, &mdi.mnuGroundUnits,
                                     &mdi.mnuWaypoints};
        return entries[tab]->Checked();
    }
    bool EditMenusEnabled() const {
        return mdi.mnuDel.Enabled() && mdi.mnuClrPoints.Enabled() && mdi.mnuClrMap.Enabled();
    }

    TestEditor t;
    Editor& ed = t.OpenDatabase();
    FrmMission& frm = ed.FrmMission;
    MDIMissionED& mdi = ed.MDIMissionED;
};

TEST_F(TabSelectionTest, CheckMarkAndEditMenusFollowTheTab) {
    frm.lstPoints.AddItem("01. N51 00.00 W01 00.00");
    ed.MDIMissionED.Picture1.Print("old news");
    for (int tab : {3, 1, 3, 2, 0}) {
        SelectTab(ed, tab);
        EXPECT_EQ(frm.SSTab1.Tab(), tab);
        for (int other = 0; other < 4; ++other)
            EXPECT_EQ(Checked(other), other == tab) << tab << " " << other;
        // Only the Waypoints tab with points enables them.
        EXPECT_EQ(EditMenusEnabled(), tab == 3) << tab;
    }
    EXPECT_TRUE(ed.MDIMissionED.Picture1.Operations().empty());
    frm.lstPoints.Clear();
    SelectTab(ed, 3);
    EXPECT_FALSE(EditMenusEnabled());
    // Numbers outside the tabs touch no check mark.
    SetTabMenuChecked(ed, 7, false);
    EXPECT_TRUE(Checked(3));
}

TEST_F(TabSelectionTest, WaypointsTabLoadsItsMapAndShowsThePath) {
    frm.cmbEndAtRwy.SetListIndex(5);
    ed.doc.PathAirfieldStart(0) = 2;
    ed.doc.PathAirfieldEnd(0) = Mission::kNoAirfield;
    frm.cmbRunways.SetVisible(false);
    SelectTab(ed, 3);
    EXPECT_TRUE(frm.cmbRunways.Visible());
    EXPECT_TRUE(frm.lblFlyBy.Visible());
    EXPECT_EQ(frm.fraAirfields.Left(), 5292);
    EXPECT_EQ(frm.fraAirfields.Top(), 384);
    EXPECT_EQ(frm.cmbStartAtRwy.ListIndex(), 2);
    EXPECT_EQ(frm.cmbEndAtRwy.ListIndex(), 5);  // no End airfield: the combo stays
    EXPECT_EQ(ed.ActiveMap, &frm.mapWayPoints);
    EXPECT_EQ(frm.mapWayPoints.Picture(), (t.folder / "Map1.bmp").string());
    EXPECT_EQ(ed.projection.MapWidth, 6000);
    EXPECT_FALSE(frm.mapWayPoints.Operations().empty());  // the paths were drawn
}

TEST_F(TabSelectionTest, GroundUnitsTabLoadsItsOwnMapAndTheProjectionFollows) {
    frm.cmbGUMap.SetListIndex(6);
    frm.fraPathColor.Move(0, 0);
    SelectTab(ed, 2);
    EXPECT_EQ(ed.ActiveMap, &frm.mapGroundUnits);
    EXPECT_EQ(frm.fraPathColor.Left(), 72);
    EXPECT_EQ(frm.fraPathColor.Top(), 5376);
    EXPECT_EQ(frm.mapGroundUnits.Picture(), (t.folder / "Map3Bfe.bmp").string());
    EXPECT_EQ(ed.projection.MapTopLat, kMapCatalogue[6].MapTopLat);
    EXPECT_EQ(ed.projection.MapWidth, 4500);

    // Back and forth: each tab loads its bitmap again, the projection is the last one's.
    SelectTab(ed, 3);
    EXPECT_EQ(ed.projection.MapTopLat, kMapCatalogue[0].MapTopLat);
    SelectTab(ed, 2);
    EXPECT_EQ(ed.projection.MapTopLat, kMapCatalogue[6].MapTopLat);
}

TEST_F(TabSelectionTest, FormationsTabSelectsFirstGroupAndPathAndHidesTheFlyby) {
    frm.lstGroupName.AddItem("Red Section");
    frm.lstGroupName.AddItem("Blue Section");
    frm.optColor(4).SetValue(true);
    frm.fraWPSelect.SetVisible(true);
    SelectTab(ed, 1);
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 0);
    EXPECT_TRUE(frm.optColor(0).Value());
    EXPECT_FALSE(frm.cmbRunways.Visible());
    EXPECT_FALSE(frm.lblFlyBy.Visible());
    EXPECT_EQ(frm.fraAirfields.Left(), 5940);
    EXPECT_EQ(frm.fraAirfields.Top(), 960);
    // The path selection frame stays above the airfields.
    EXPECT_GT(frm.fraWPSelect.ZRank(), frm.fraAirfields.ZRank());
    // No path has two waypoints yet, so paths can't be given to groups.
    EXPECT_FALSE(frm.btnSetWaypoints.Enabled());
}

TEST_F(TabSelectionTest, SummaryTabShowsThePlayerOrUndefined) {
    frm.cmbSelectMap.SetListIndex(3);
    frm.cmbClouds.SetListIndex(-1);
    SelectTab(ed, 0);
    EXPECT_EQ(frm.lblAirfield.Caption(), "*Undefined*");
    EXPECT_EQ(frm.lblAC.Caption(), "*Undefined*");
    EXPECT_EQ(frm.lblMap.Caption(), "Map4Bob");
    EXPECT_EQ(frm.cmbClouds.ListIndex(), 0);

    Mission& doc = ed.doc;
    doc.PlayerAssigned = true;
    doc.PlayerGroup = 1;
    doc.PlayerPilot = 0;
    doc.GrpTakeoffRwy(1) = 3;
    doc.GrpLandingRwy(1) = 5;
    doc.PilotAC(1, 0) = static_cast<std::int16_t>(frm.cmbMovingType.ItemData(2));
    ShowSummaryTab(ed);
    EXPECT_EQ(frm.lblAirfield.Caption(), frm.cmbRunways.List(3));
    EXPECT_EQ(frm.lblAC.Caption(), frm.cmbMovingType.List(2));
    // A group that only lands starts its player at the landing airfield.
    frm.cmbTakeoffFlag.SetListIndex(2);
    ShowSummaryTab(ed);
    EXPECT_EQ(frm.lblAirfield.Caption(), frm.cmbRunways.List(5));
}

}  // namespace
}  // namespace tarvex
