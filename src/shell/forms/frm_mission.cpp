#include "shell/forms/frm_mission.h"

#include <string>

#include "shell/forms/map_names.h"

namespace tarvex {

namespace {

void AddMapRows(ComboBox& combo) {
    for (int row = 0; row < 8; ++row) {
        combo.AddItem(kMapRowTexts[row]);
        combo.SetItemData(combo.NewIndex(), row);
    }
}

void SetRange(UpDown& spin, int min, int max, int value) {
    spin.SetMin(min);
    spin.SetMax(max);
    spin.SetValue(value);
}

}  // namespace

FrmMission::FrmMission()
    : Form("FrmMission"),
      optAllegiance("optAllegiance", 0, 3),
      OptFamily("OptFamily", 0, 3),
      chkWP("chkWP", 0, 15),
      txtWPPct("txtWPPct", 0, 15),
      optColor("optColor", 0, 15),
      lblPath("lblPath", 0, 15),
      chkOverlay("chkOverlay", 0, 15),
      chkWPOptions("chkWPOptions", 0, 2),
      optGndHasPoints("optGndHasPoints", 0, 2) {
    Move(0, 0, 9396, 6312);

    // ---- Window-wide ---------------------------------------------------------------------
    Add(SSTab1, "SSTab1");
    SSTab1.SetTabs(4);
    SSTab1.SetTabCaption(0, "Summary");
    SSTab1.SetTabCaption(1, "Formations");
    SSTab1.SetTabCaption(2, "Ground Units");
    SSTab1.SetTabCaption(3, "Waypoints");
    Add(CommonDialog1, "CommonDialog1");
    Add(tmrSetColor, "tmrSetColor");
    tmrSetColor.SetEnabled(false);
    tmrSetColor.SetInterval(100);
    Add(cmbSort, "cmbSort");
    cmbSort.SetSorted(true);
    cmbSort.SetVisible(false);

    // ---- Summary ---------------------------------------------------------------------------
    Add(txtTitle, "txtTitle");
    Add(txtSummary, "txtSummary").SetMultiLine(true);
    Add(txtObjective, "txtObjective").SetMultiLine(true);
    Add(txtType, "txtType");
    Add(txtTip, "txtTip");
    Add(txtPctReqd, "txtPctReqd");
    Add(txtTime, "txtTime");
    Add(txtDate, "txtDate");
    Add(cmbClouds, "cmbClouds").SetStyle(kComboDropDownList);
    AddRows(cmbClouds, {"No Clouds", "Haze", "Light Clouds", "Heavy Clouds"});
    Add(cmbVisibility, "cmbVisibility").SetStyle(kComboDropDownList);
    AddRows(cmbVisibility, {"Unlimited", "20 Miles", "5 Miles", "1 Mile", "0.25 Mile"});
    Add(cmbWinds, "cmbWinds").SetStyle(kComboDropDownList);
    AddRows(cmbWinds, {"No Wind", "Light Wind", "Moderate Wind", "Heavy Wind"});
    Add(cmbSelectMap, "cmbSelectMap").SetStyle(kComboDropDownList);
    AddMapRows(cmbSelectMap);
    Add(lblAirfield, "lblAirfield");
    Add(lblAC, "lblAC");
    Add(lblMap, "lblMap");
    Add(picSummaryTab, "picSummaryTab");

    // ---- Formations: groups ----------------------------------------------------------------
    Add(fraGroupInfo, "fraGroupInfo");
    Add(lstGroupName, "lstGroupName").SetTag("Groups");
    Add(btnGroupName, "btnGroupName").SetCaption("...");
    Add(btnDeleteGroup, "btnDeleteGroup").SetCaption("Delete");
    btnDeleteGroup.SetVisible(false);
    Add(lblGrpID, "lblGrpID").SetCaption("Group ID");
    Add(lblGroupID, "lblGroupID");
    Add(lblWPStrData, "lblWPStrData");
    Add(lblPattern, "lblPattern").SetCaption("Pattern");
    Add(cmbFormPattern, "cmbFormPattern").SetStyle(kComboDropDownList);
    AddRows(cmbFormPattern, {{"Finger Four", 7000},
                             {"English Vic", 7002},
                             {"English Formation 2", 7003},
                             {"B-17 Compact Formation", 7004},
                             {"German Bomber V", 7005},
                             {"Ketten", 7007},
                             {"Line Abreast", 7009},
                             {"Line Astern (Malan's Formation)", 7010},
                             {"Single File", 7011},
                             {"Vehicle Convoy", 7050},
                             {"Tank Battalion", 7051},
                             {"English ship convoy", 7052},
                             {"German Train", 7053},
                             {"English river convoy", 7054},
                             {"German Train for TM's", 7056}});
    Add(lblDirective, "lblDirective").SetCaption("Directive");
    Add(cmbDirective, "cmbDirective").SetStyle(kComboDropDownList);
    // The colour its blink comes back to.
    cmbDirective.SetBackColor(Rgb(224, 224, 224));
    AddRows(cmbDirective,
            {"None", "Enemy Fighters", "Enemy Bombers", "Enemy Vehicles", "Enemy Buildings"});
    Add(lblTOandLand, "lblTOandLand").SetCaption("Takeoff / Land");
    Add(cmbTakeoffFlag, "cmbTakeoffFlag").SetStyle(kComboDropDownList);
    AddRows(cmbTakeoffFlag, {"Stay in the Air", "Takeoff Only", "Land Only", "Takeoff and Land"});
    Add(chkSuspend, "chkSuspend")
        .SetCaption(
            "Check to suspend Group until the player gets to within a 12-mile radius of the "
            "enemy.");
    Add(btnSetWaypoints, "btnSetWaypoints").SetCaption("Path(s)...");
    btnSetWaypoints.SetEnabled(false);
    // Enabled once a mission is loaded or paths were given to a group.
    Add(btnGrpView, "btnGrpView").SetCaption("Groups...");
    btnGrpView.SetEnabled(false);

    // ---- Formations: pilots ----------------------------------------------------------------
    Add(fraPilotInfo, "fraPilotInfo");
    Add(lstPilotName, "lstPilotName").SetTag("Pilots");
    lstPilotName.SetMultiSelect(kMultiSelectExtended);
    Add(btnPilotName, "btnPilotName").SetCaption("...");
    Add(btnDeletePilot, "btnDeletePilot").SetCaption("Delete");
    btnDeletePilot.SetVisible(false);
    Add(chkPilotIsAC, "chkPilotIsAC").SetCaption("Pilots = A/C Name");
    Add(chkPlayer, "chkPlayer").SetCaption("Player:");
    Add(chkPoints, "chkPoints").SetCaption("Points:");
    Add(lblSkill, "lblSkill").SetCaption("Skill");
    Add(cmbSkill, "cmbSkill").SetStyle(kComboDropDownList);
    AddRows(cmbSkill, {"Rookie", "Rookie +", "Veteran", "Veteran +", "Ace"});
    Add(lblLevel, "lblLevel").SetCaption("Level");
    Add(cmbLevel, "cmbLevel").SetStyle(kComboDropDownList);
    AddRows(cmbLevel, {"Rookie", "Veteran", "Ace"});
    Add(lblDamage, "lblDamage").SetCaption("Damage");
    Add(cmbDamage, "cmbDamage").SetStyle(kComboDropDownList);
    AddRows(cmbDamage, {"None", "Smoke", "Fire"});
    Add(lblACType, "lblACType").SetCaption("Aircraft");
    Add(cmbMovingType, "cmbMovingType").SetStyle(kComboDropDownList);
    Add(fraAllegianceType, "fraAllegianceType");
    Add(optAllegiance);
    const char* allegiances[] = {"RAF", "Luftwaffe", "USAAF", "List All"};
    for (int k = 0; k <= 3; ++k)
        optAllegiance(k).SetCaption(allegiances[k]);
    Add(fraFamilyType, "fraFamilyType");
    Add(OptFamily);
    const char* families[] = {"Fighters", "Bombers", "Other", "List All"};
    for (int k = 0; k <= 3; ++k)
        OptFamily(k).SetCaption(families[k]);
    // The filter starts with every aircraft listed.
    optAllegiance(3).SetValue(true);
    OptFamily(3).SetValue(true);
    Add(lblGunTitle, "lblGunTitle").SetCaption("Gun");
    Add(lblGun, "lblGun");
    Add(lblCannonTitle, "lblCannonTitle").SetCaption("Cannon");
    Add(lblCannon, "lblCannon");
    Add(lblRocketTitle, "lblRocketTitle").SetCaption("Rockets");
    Add(lblRockets, "lblRockets");
    Add(lblBombTitle, "lblBombTitle").SetCaption("Bombs");
    Add(lblBombs, "lblBombs");

    // ---- Formations: the paths of a group and the group view ----------------------------
    Add(fraWPSelect, "fraWPSelect").SetVisible(false);
    Add(chkWP);
    Add(txtWPPct);
    for (int p = 0; p <= 15; ++p)
        chkWP(p).SetCaption(std::to_string(5000 + p));
    Add(btnPathClear, "btnPathClear").SetCaption("Clear");
    Add(btnWPClose, "btnWPClose").SetCaption("Close");
    Add(fraGrpView, "fraGrpView").SetCaption("Group View");
    fraGrpView.SetVisible(false);
    Add(cmbGroups, "cmbGroups").SetStyle(kComboDropDownList);
    // Shown only for a group with more than one path.
    Add(updwnGroupView, "updwnGroupView").SetVisible(false);
    Add(lblGrpWP, "lblGrpWP");

    // ---- Airfields of a path or group: the colours echo the Start and End markers --------
    Add(fraAirfields, "fraAirfields").SetCaption("Airfields");
    fraAirfields.Move(5940, 960);
    Add(lblStartRwy, "lblStartRwy").SetCaption("Start");
    Add(cmbStartAtRwy, "cmbStartAtRwy").SetStyle(kComboDropDownList);
    cmbStartAtRwy.SetBackColor(Rgb(255, 128, 128));
    Add(lblEndRwy, "lblEndRwy").SetCaption("End");
    Add(cmbEndAtRwy, "cmbEndAtRwy").SetStyle(kComboDropDownList);
    cmbEndAtRwy.SetBackColor(Rgb(128, 128, 255));
    Add(lblFlyBy, "lblFlyBy").SetCaption("Flyby");
    Add(cmbRunways, "cmbRunways").SetStyle(kComboDropDownList);
    cmbRunways.SetBackColor(Rgb(255, 255, 192));

    // ---- Waypoints -------------------------------------------------------------------------
    Add(mapWayPoints, "mapWayPoints");
    Add(fraPathColor, "fraPathColor").SetCaption("Flight Path: 5000");
    fraPathColor.Move(72, 5376);
    Add(optColor);
    Add(lblPath);
    Add(chkOverlay);
    for (int p = 0; p <= 15; ++p)
        lblPath(p).SetCaption(std::to_string(5000 + p));
    Add(fraWaypoints, "fraWaypoints").SetCaption("Waypoints for Path: 5000");
    Add(lstPoints, "lstPoints");
    // Takes the place of lstPoints while a range of rows is selected.
    Add(lstPointsExtended, "lstPointsExtended").SetMultiSelect(kMultiSelectExtended);
    lstPointsExtended.SetVisible(false);
    Add(txtPoint, "txtPoint");
    Add(txtAlt, "txtAlt");
    Add(txtSpeed, "txtSpeed");
    Add(lblSpeed, "lblSpeed").SetCaption("Km.");
    Add(chkWPOptions);
    chkWPOptions(0).SetCaption("M a p");
    chkWPOptions(1).SetCaption(" A    c     t");
    chkWPOptions(2).SetCaption("C a p");
    // Hidden while the editor has no point to work on.
    Add(btnClrPoint, "btnClrPoint").SetCaption("Delete");
    btnClrPoint.SetVisible(false);
    Add(btnWPNames, "btnWPNames").SetCaption("Names");
    Add(btnWPTips, "btnWPTips").SetCaption("Tips");

    // ---- Ground units ----------------------------------------------------------------------
    // The tag tells placing ("False") from the layout editor ("True").
    Add(mapGroundUnits, "mapGroundUnits").SetTag("False");
    mapGroundUnits.Move(mapGroundUnits.Left(), mapGroundUnits.Top(), 5016, 4860);
    Add(lstGrnUnits, "lstGrnUnits");
    Add(btnDelGUlst, "btnDelGUlst").SetCaption("Delete");
    btnDelGUlst.SetVisible(false);
    Add(cmbGrndAirfield, "cmbGrndAirfield").SetStyle(kComboDropDownList);
    Add(cmbAirfieldLayout, "cmbAirfieldLayout").SetStyle(kComboDropDownList);
    Add(btnDelGUcmb, "btnDelGUcmb").SetCaption("Delete");
    btnDelGUcmb.SetVisible(false);
    Add(lstGUAdded, "lstGUAdded").SetEnabled(false);
    Add(btnDeleteGrndUnit, "btnDeleteGrndUnit").SetCaption("Remove");
    btnDeleteGrndUnit.SetVisible(false);
    Add(txtAddedGU, "txtAddedGU");
    Add(txtGULatLon, "txtGULatLon");
    Add(optGndHasPoints);
    optGndHasPoints(0).SetCaption("None");
    optGndHasPoints(1).SetCaption("Defaults");
    optGndHasPoints(2).SetCaption("All Units");
    Add(cmbGUMap, "cmbGUMap").SetStyle(kComboDropDownList);
    AddMapRows(cmbGUMap);

    // ---- Ground units: the layout editor, hidden until a layout is opened -----------------
    Add(fraGUPos, "fraGUPos").SetVisible(false);
    Add(btnXPos, "btnXPos");
    SetRange(btnXPos, -272, 272, 0);
    Add(btnYPos, "btnYPos");
    SetRange(btnYPos, -160, 160, 0);
    Add(btnRotate2, "btnRotate2");
    SetRange(btnRotate2, -90, 90, 0);
    Add(lblRotate2, "lblRotate2").SetCaption("Rotate 0");
    Add(btnSpread, "btnSpread");
    SetRange(btnSpread, -7, 100, 0);
    Add(lblSpread, "lblSpread").SetCaption("Spread");
    Add(btnZoom, "btnZoom");
    SetRange(btnZoom, 10, 80, 10);
    Add(btnCursor, "btnCursor");
    SetRange(btnCursor, 240, 2600, 240);
    Add(btnRotate90, "btnRotate90").SetCaption("Rotate 90");
    Add(btnGUReset, "btnGUReset").SetCaption("Reset All");
    Add(btnSave, "btnSave").SetCaption("Save Layout");
    Add(btnGUClose, "btnGUClose").SetCaption("Close");
    Add(chkStationary, "chkStationary").SetCaption("Stationary Objects");
    Add(chkDataWindow, "chkDataWindow").SetCaption("Offsets Window");
    // Runways 2 and 3 of a three-runway airfield layout; shown only for those.
    Add(btnX, "btnX");
    SetRange(btnX, 0, 10, 0);
    btnX.SetVisible(false);
    Add(btnY, "btnY");
    SetRange(btnY, 0, 10, 0);
    btnY.SetVisible(false);
    Add(XLine, "XLine").SetVisible(false);
    Add(YLine, "YLine").SetVisible(false);
    // The editor's spinners show the value they hold.
    for (UpDown* spin :
         {&btnXPos, &btnYPos, &btnRotate2, &btnSpread, &btnZoom, &btnCursor, &btnX, &btnY})
        spin->SetShowValue(true);
    // 20 by 20 pixels.
    Add(picAC, "picAC");
    picAC.Move(0, 0, 300, 300);
    picAC.SetVisible(false);
    Add(fraStationary, "fraStationary").SetCaption("Stationary Types");
    fraStationary.SetVisible(false);
    Add(lstStationary, "lstStationary");
}

}  // namespace tarvex
