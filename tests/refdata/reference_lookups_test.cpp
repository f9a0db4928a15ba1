#include "refdata/reference_lookups.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

#include <gtest/gtest.h>

namespace tarvex {
namespace {

using testing::TestEditor;

TEST(ReferenceLookupsTest, AirfieldPointGivesWaypointTextAndRunway) {
    TestEditor t;
    Editor& ed = t.OpenDatabase();
    std::string lat, lon;
    std::int16_t type = 0, elevation = 0, rwy = 0;
    double rot = 0;
    LoadAirfieldPoint(ed, lat, lon, 16, type, elevation, rot, rwy);  // Croydon
    EXPECT_EQ(lat, "N51 21.40");
    EXPECT_EQ(lon, "W00 07.01");
    EXPECT_EQ(rwy, 105);
    EXPECT_EQ(rot, 240);
    EXPECT_THROW(LoadAirfieldPoint(ed, lat, lon, 999, type, elevation, rot, rwy), AppError);
    EXPECT_FALSE(ed.db.theRS.IsOpen());
}

TEST(ReferenceLookupsTest, AircraftAttributesFillTheLabelsOrLeaveThemAlone) {
    TestEditor t;
    Editor& ed = t.OpenDatabase();
    ShowAircraftAttributes(ed, 2);
    EXPECT_EQ(ed.doc.AcID, 2);
    EXPECT_EQ(ed.doc.AcFamily, 1);
    EXPECT_EQ(ed.doc.AcAllegiance, 1);
    EXPECT_EQ(ed.FrmMission.lblGun.Caption(), "2800");
    EXPECT_EQ(ed.FrmMission.lblBombs.Caption(), "0");
    try {
        ShowAircraftAttributes(ed, 9999);  // an id a hand-edited mission may bring
        FAIL() << "no error";
    } catch (const AppError& e) {
        EXPECT_EQ(e.Number(), 3021);
    }
    EXPECT_EQ(ed.doc.AcID, 2);
    EXPECT_FALSE(ed.db.theRS.IsOpen());
}

TEST(ReferenceLookupsTest, FormLoadFillsTheListsAndAFilteredAircraftIsReported) {
    TestEditor t;
    Editor& ed = t.OpenDatabase();
    LoadFrmMission(ed);
    auto& frm = ed.FrmMission;
    EXPECT_EQ(frm.cmbStartAtRwy.ListCount(), 58);
    EXPECT_EQ(frm.cmbGrndAirfield.ListCount(), 58);
    EXPECT_EQ(frm.cmbRunways.List(16), "Croydon");
    EXPECT_EQ(frm.cmbRunways.ItemData(16), 105);
    EXPECT_EQ(frm.cmbMovingType.ListCount(), 54);
    EXPECT_EQ(frm.lstGrnUnits.ListCount(), 15);
    EXPECT_EQ(ed.ACQuery, "SELECT ShortName,ACId FROM Aircraft");

    EXPECT_EQ(FindAircraftRow(ed, frm.cmbMovingType.ItemData(3)), 3);
    frm.lstPilotName.AddItem("Bader");
    EXPECT_EQ(FindAircraftRow(ed, 30000), -1);
    const auto& drawn = ed.MDIMissionED.Picture1.Operations();
    ASSERT_FALSE(drawn.empty());
    EXPECT_EQ(drawn.back().text,
              "The AC for this pilot has been filtered from the Aircraft ComboBox. ");
    EXPECT_EQ(drawn.back().pen, 255);
}

}  // namespace
}  // namespace tarvex
