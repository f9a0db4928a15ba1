#include "shell/tooltips.h"

#include <string>
#include <vector>

#include "common/number_text.h"
#include "maps/group_paths.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

struct Tip {
    Control* control;
    std::string text;
};

std::vector<Tip> MissionTips(FrmMission& f) {
    std::vector<Tip> tips = {
        {&f.btnCursor, "Increase/Decrease the size of the cursor cross hairs"},
        {&f.btnGUClose, "Closes the Unit Layout Frame and return to Map View"},
        {&f.btnGUReset, "Reset the Ground layout back to default setting."},
        {&f.btnGroupName,
         "Add or Modify the description of the group; for example Luftwaffe fighters."},
        {&f.btnPilotName, "Add or Modify the pilot name(s); for example *BF109*"},
        {&f.btnRotate2, "Rotate the layout by 2 degree increments around CURSOR center"},
        {&f.btnRotate90, "Rotate the layout by 90 degrees around ORIGINAL center"},
        {&f.btnSave,
         "Assign a new name and save the modified Ground Layout to the database for future use."},
        {&f.btnSetWaypoints,
         "Click to assign the path(s) as defined in the 'WayPoint Tab' that the selected Group can "
         "fly."},
        {&f.btnXPos, "Move the Ground Layout left/right approximately 10 Meters."},
        {&f.btnYPos, "Move the Ground Layout up/down approximately 10 Meters."},
        {&f.btnSpread,
         "Spreads the X/Y Offsets in/out. Spread distance in meter depends on the chosen layout"},
        {&f.btnZoom, "Zoom the layout display only and does not effect the X/Y offset values"},
        {&f.chkDataWindow, "Opens/Closes the data window that displays the X/Y Offsets"},
        {&f.chkPilotIsAC, "Check this box and all Pilots will have the same name as the AC."},
        {&f.chkPlayer, "Indicates that the selected pilot is the 'Player'. In otherwords. YOU!!!"},
        {&f.chkPoints,
         "Determine whether or not an object is 'scored'; that is, if the player gets points for "
         "destroying the object."},
        {&f.chkSuspend,
         "Check to suspend Group until the player gets to within a 12-mile radius of the enemy."},
        {&f.chkWPOptions(0),
         "Specify whether or not the waypoint will show up on the mission briefing map."},
        {&f.chkWPOptions(1),
         "Define whether or not the player can warp (by pressing 'X') to the waypoint."},
        {&f.chkWPOptions(2),
         "Determine whether or not the waypoint is a combat air patrol (CAP) waypoint."},
        {&f.cmbClouds, "Select the cloud level for your mission."},
        {&f.cmbDamage, "Use to 'pre-damage' objects, adding realism to the mission."},
        {&f.cmbDirective, "Select what type of enemy object this Group will attack."},
        {&f.cmbEndAtRwy, "Set ending point for the current Path. Used as a reference point only."},
        {&f.cmbFormPattern, "Select the formation for the selected Group in the list"},
        {&f.cmbLevel,
         "Select the MINIMUM 'Enemy Level' setting (See Single Missions Dialog) that this pilot "
         "will appear in the mission."},
        {&f.cmbMovingType,
         "This field references the Unit Type field on the Moving Types tab of the Mission Editor"},
        {&f.cmbRunways, "Add a waypoint to the path using the selected airfield LAT/LON"},
        {&f.cmbSkill, "Select the skill of the pilot."},
        {&f.cmbStartAtRwy,
         "Set starting point for the current Path. Used as a reference point only."},
        {&f.cmbTakeoffFlag,
         "Select the Take Off and Landing Flag for the selected Group in the list."},
        {&f.cmbVisibility,
         "Set the visibility level that the player will have throughout the mission."},
        {&f.cmbWinds,
         "It's recommended that you set this field to 'No Wind'; the other settings can have "
         "unpredictable results."},
        {&f.fraAllegianceType, "Filter the Aircraft ComboBox by Allegiance (and Family options)"},
        {&f.fraFamilyType, "Filter the Aircraft ComboBox by Family (and Allegiance options)"},
        {&f.optGndHasPoints(0),
         "Select this option if none of the units for the selected layouts are to be considered "
         "targets"},
        {&f.optGndHasPoints(1),
         "Select this option if only the predefined units for the selected layouts are targets"},
        {&f.optGndHasPoints(2),
         "Select this option if ALL units for the selected layouts are targets"},
        {&f.lblAC, "When a player starts this mission, this is the plane they'll be flying."},
        {&f.lblAirfield, "The airport that the player will take off from. "},
        {&f.lblBombs, "Total Bombs"},
        {&f.lblCannon, "Total rounds for the Cannon."},
        {&f.lblGroupID, "The group ID to the formation you're defining."},
        {&f.lblWPStrData, "The group ID to the formation you're defining."},
        {&f.lblGun, "Total Rounds of Ammo."},
        {&f.lblMap, "The selected map is used on the Mission Briefing screen."},
        {&f.lblRockets, "Total Rockets"},
        {&f.lstGroupName,
         "List of Formation/Group Names. Right click the name to view the Group's path."},
        {&f.lstGUAdded, "Doubleclick a name to edit the Ground Layout/Unit data"},
        {&f.lstPilotName,
         "The names in this list determines the label that is associated with the aircrafts in the "
         "mission."},
        {&f.txtAlt, "Specify the altitude (MSL) of the selected waypoint."},
        {&f.txtDate, "Set the date on which you want the mission to take place."},
        {&f.txtObjective, "The text you enter is displayed on the Mission Briefing screen."},
        {&f.txtPctReqd,
         "Set the required (minimum) percentage of enemy objects that must be destroyed for the "
         "mission to be partially successful."},
        {&f.txtSpeed, "Specify the speed of the aircraft between waypoints, in kph."},
        {&f.txtSummary, "The summary is displayed in the Single Mission dialog box."},
        {&f.txtTime, "Specify the time at which you want the mission to start."},
        {&f.txtTip, "Currently this field is not used by Tarvex Missions."},
        {&f.txtTitle,
         "The title is displayed on the Single Mission dialog box and on the Mission Briefing "
         "screen."},
        {&f.txtType,
         "Include a one-word description of the type of mission you're defining, such as "
         "Intercept, Surface Attack, and so on."},
    };
    for (int p = 0; p <= 15; ++p) {
        const std::string id = IntText(PathId(p));
        tips.push_back(
            {&f.chkWP(p), "Check this box to select path " + id + ". Right click to view map"});
        tips.push_back({&f.txtWPPct(p),
                        "The (random) percentage of the time that you want the waypoint to be used "
                        "in the mission. The total of all waypoints must equal 100%"});
        tips.push_back(
            {&f.chkOverlay(p), "Check this to overlay [Path " + id + "] with current Path"});
        tips.push_back({&f.optColor(p), "Click to create or edit [Path " + id + "]"});
    }
    return tips;
}

}  // namespace

void SetTooltips(Editor& ed) {
    for (const Tip& tip : MissionTips(ed.FrmMission))
        tip.control->SetToolTipText(tip.text);
}

void ClearTooltips(Editor& ed) {
    for (const Tip& tip : MissionTips(ed.FrmMission))
        tip.control->SetToolTipText("");
}

}  // namespace tarvex
