// The tooltips of the three windows that have them, and the switch of the Options menu that
// gives and takes them all at once.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/editor.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

using testing::TestEditor;

struct TipRow {
    std::string control;
    int index;
    std::string text;
};

// The mission window: each control with its tip.
std::vector<TipRow> MissionTips() {
    std::vector<TipRow> rows = {
        {"btnCursor", -1, "Increase/Decrease the size of the cursor cross hairs"},
        {"btnGUClose", -1, "Closes the Unit Layout Frame and return to Map View"},
        {"btnGUReset", -1, "Reset the Ground layout back to default setting."},
        {"btnGroupName", -1,
         "Add or Modify the description of the group; for example Luftwaffe fighters."},
        {"btnPilotName", -1, "Add or Modify the pilot name(s); for example *BF109*"},
        {"btnRotate2", -1, "Rotate the layout by 2 degree increments around CURSOR center"},
        {"btnRotate90", -1, "Rotate the layout by 90 degrees around ORIGINAL center"},
        {"btnSave", -1,
         "Assign a new name and save the modified Ground Layout to the database for future use."},
        {"btnSetWaypoints", -1,
         "Click to assign the path(s) as defined in the 'WayPoint Tab' that the selected Group can "
         "fly."},
        {"btnXPos", -1, "Move the Ground Layout left/right approximately 10 Meters."},
        {"btnYPos", -1, "Move the Ground Layout up/down approximately 10 Meters."},
        {"btnSpread", -1,
         "Spreads the X/Y Offsets in/out. Spread distance in meter depends on the chosen layout"},
        {"btnZoom", -1, "Zoom the layout display only and does not effect the X/Y offset values"},
        {"chkDataWindow", -1, "Opens/Closes the data window that displays the X/Y Offsets"},
        {"chkPilotIsAC", -1, "Check this box and all Pilots will have the same name as the AC."},
        {"chkPlayer", -1,
         "Indicates that the selected pilot is the 'Player'. In otherwords. YOU!!!"},
        {"chkPoints", -1,
         "Determine whether or not an object is 'scored'; that is, if the player gets points for "
         "destroying the object."},
        {"chkSuspend", -1,
         "Check to suspend Group until the player gets to within a 12-mile radius of the enemy."},
        {"chkWPOptions", 0,
         "Specify whether or not the waypoint will show up on the mission briefing map."},
        {"chkWPOptions", 1,
         "Define whether or not the player can warp (by pressing 'X') to the waypoint."},
        {"chkWPOptions", 2,
         "Determine whether or not the waypoint is a combat air patrol (CAP) waypoint."},
        {"cmbClouds", -1, "Select the cloud level for your mission."},
        {"cmbDamage", -1, "Use to 'pre-damage' objects, adding realism to the mission."},
        {"cmbDirective", -1, "Select what type of enemy object this Group will attack."},
        {"cmbEndAtRwy", -1,
         "Set ending point for the current Path. Used as a reference point only."},
        {"cmbFormPattern", -1, "Select the formation for the selected Group in the list"},
        {"cmbLevel", -1,
         "Select the MINIMUM 'Enemy Level' setting (See Single Missions Dialog) that this pilot "
         "will appear in the mission."},
        {"cmbMovingType", -1,
         "This field references the Unit Type field on the Moving Types tab of the Mission Editor"},
        {"cmbRunways", -1, "Add a waypoint to the path using the selected airfield LAT/LON"},
        {"cmbSkill", -1, "Select the skill of the pilot."},
        {"cmbStartAtRwy", -1,
         "Set starting point for the current Path. Used as a reference point only."},
        {"cmbTakeoffFlag", -1,
         "Select the Take Off and Landing Flag for the selected Group in the list."},
        {"cmbVisibility", -1,
         "Set the visibility level that the player will have throughout the mission."},
        {"cmbWinds", -1,
         "It's recommended that you set this field to 'No Wind'; the other settings can have "
         "unpredictable results."},
        {"fraAllegianceType", -1,
         "Filter the Aircraft ComboBox by Allegiance (and Family options)"},
        {"fraFamilyType", -1, "Filter the Aircraft ComboBox by Family (and Allegiance options)"},
        {"optGndHasPoints", 0,
         "Select this option if none of the units for the selected layouts are to be considered "
         "targets"},
        {"optGndHasPoints", 1,
         "Select this option if only the predefined units for the selected layouts are targets"},
        {"optGndHasPoints", 2,
         "Select this option if ALL units for the selected layouts are targets"},
        {"lblAC", -1, "When a player starts this mission, this is the plane they'll be flying."},
        {"lblAirfield", -1, "The airport that the player will take off from. "},
        {"lblBombs", -1, "Total Bombs"},
        {"lblCannon", -1, "Total rounds for the Cannon."},
        {"lblGroupID", -1, "The group ID to the formation you're defining."},
        {"lblWPStrData", -1, "The group ID to the formation you're defining."},
        {"lblGun", -1, "Total Rounds of Ammo."},
        {"lblMap", -1, "The selected map is used on the Mission Briefing screen."},
        {"lblRockets", -1, "Total Rockets"},
        {"lstGroupName", -1,
         "List of Formation/Group Names. Right click the name to view the Group's path."},
        {"lstGUAdded", -1, "Doubleclick a name to edit the Ground Layout/Unit data"},
        {"lstPilotName", -1,
         "The names in this list determines the label that is associated with the aircrafts in the "
         "mission."},
        {"txtAlt", -1, "Specify the altitude (MSL) of the selected waypoint."},
        {"txtDate", -1, "Set the date on which you want the mission to take place."},
        {"txtObjective", -1, "The text you enter is displayed on the Mission Briefing screen."},
        {"txtPctReqd", -1,
         "Set the required (minimum) percentage of enemy objects that must be destroyed for the "
         "mission to be partially successful."},
        {"txtSpeed", -1, "Specify the speed of the aircraft between waypoints, in kph."},
        {"txtSummary", -1, "The summary is displayed in the Single Mission dialog box."},
        {"txtTime", -1, "Specify the time at which you want the mission to start."},
        {"txtTip", -1, "Currently this field is not used by Tarvex Missions."},
        {"txtTitle", -1,
         "The title is displayed on the Single Mission dialog box and on the Mission Briefing "
         "screen."},
        {"txtType", -1,
         "Include a one-word description of the type of mission you're defining, such as "
         "Intercept, Surface Attack, and so on."},
    };
    for (int p = 0; p <= 15; ++p) {
        const std::string id = std::to_string(5000 + p);
        rows.push_back(
            {"chkWP", p, "Check this box to select path " + id + ". Right click to view map"});
        rows.push_back({"txtWPPct", p,
                        "The (random) percentage of the time that you want the waypoint to be used "
                        "in the mission. The total of all waypoints must equal 100%"});
        rows.push_back(
            {"chkOverlay", p, "Check this to overlay [Path " + id + "] with current Path"});
        rows.push_back({"optColor", p, "Click to create or edit [Path " + id + "]"});
    }
    return rows;
}

const TipRow kBrowserTips[] = {
    {"cmdLoad", -1, "Load the selected mission"},
    {"btnDelete", -1, "Delete the selected mission"},
    {"cmdClose", -1, "Close this window"},
    {"optAllegiance", 0, "Display all missions titles"},
    {"optAllegiance", 1, "Display only RAF Allegiance mission titles"},
    {"optAllegiance", 2, "Display only Luftwaffe Allegiance mission titles"},
    {"optAllegiance", 3, "Display only USAAF Allegiance mission titles"},
    {"grdDataGrid", -1, "Double click a title to load that mission"},
};

std::string TipOf(const Form& form, const TipRow& row) {
    const Control* control = form.FindControl(row.control, row.index);
    if (!control) ADD_FAILURE() << form.Name() << " has no " << row.control;
    return control ? control->ToolTipText() : std::string();
}

int ControlsWithTips(const Form& form) {
    int count = 0;
    for (const Control* control : form.Controls())
        count += control->ToolTipText().empty() ? 0 : 1;
    return count;
}

TEST(TooltipsTest, TheSwitchGivesAndTakesEveryTipOfTheThreeWindowsAtOnce) {
    TestEditor t;
    Editor& ed = *t;
    // The offsets window is open on a layout that may be edited.
    ed.ground.OffsetsOpen = true;
    ed.ground.LayoutLocked = false;
    auto& entry = ed.MDIMissionED.mnuTooltips;
    ASSERT_TRUE(entry.Checked());
    const std::vector<TipRow> mission = MissionTips();

    for (const bool on : {false, true}) {
        SCOPED_TRACE(on ? "switched on" : "switched off");
        entry.UserClick();
        EXPECT_EQ(entry.Checked(), on);
        EXPECT_EQ(ed.options.ToolTipsOn, on);
        for (const TipRow& row : mission) {
            SCOPED_TRACE(row.control + "(" + std::to_string(row.index) + ")");
            EXPECT_EQ(TipOf(ed.FrmMission, row), on ? row.text : "");
        }
        for (const TipRow& row : kBrowserTips)
            EXPECT_EQ(TipOf(ed.frmtblMissions, row), on ? row.text : "") << row.control;
        // No control has a tip of its own beyond these.
        EXPECT_EQ(ControlsWithTips(ed.FrmMission), on ? static_cast<int>(mission.size()) : 0);
        EXPECT_EQ(TipOf(ed.frmGUOffsets, {"btnOffsetEdit", -1, ""}),
                  on ? "Click to move the selected unit in the direction indicated by the column "
                       "header"
                     : "");
        EXPECT_EQ(TipOf(ed.frmGUOffsets, {"dbgGUOffsets", -1, ""}),
                  on ? "Offset data can be modified by selecting the column and entering new x/y "
                       "offsets"
                     : "");
    }

    // A default layout's offsets are locked, and the tip says so.
    ed.ground.LayoutLocked = true;
    entry.UserClick();
    entry.UserClick();
    EXPECT_EQ(ed.frmGUOffsets.dbgGUOffsets.ToolTipText(),
              "Default Offset data cannot be modified. Use [Save Layout] to create copy first.");
}

}  // namespace
}  // namespace tarvex
