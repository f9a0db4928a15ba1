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
      optAllegiance(0, 3),
      OptFamily(0, 3),
      chkWP(0, 15),
      txtWPPct(0, 15),
      optColor(0, 15),
      lblPath(0, 15),
      chkOverlay(0, 15),
      chkWPOptions(0, 2),
      optGndHasPoints(0, 2) {
    Move(0, 0, 9396, 6312);

    // ---- Window-wide ---------------------------------------------------------------------
    Add(NAMED(SSTab1), Self(), {0, 0, Width(), Height()});
    SSTab1.SetTabs(4);
    SSTab1.SetTabCaption(0, "Summary");
    SSTab1.SetTabCaption(1, "Formations");
    SSTab1.SetTabCaption(2, "Ground Units");
    SSTab1.SetTabCaption(3, "Waypoints");
    Add(NAMED(CommonDialog1));
    Add(NAMED(tmrSetColor));
    tmrSetColor.SetEnabled(false);
    tmrSetColor.SetInterval(100);
    Add(NAMED(cmbSort), Self());
    cmbSort.SetSorted(true);
    cmbSort.SetVisible(false);

    // ---- Summary: the boxes on the left, the read-outs and the picture on the right -------
    const Container summary = Page(SSTab1, 0);
    Add(NAMED(lblTitleCaption), summary, {120, 420, 1100, kLabelHeight}).SetCaption("Title");
    Add(NAMED(txtTitle), summary, {1320, 400, 3900, kTextHeight});
    Add(NAMED(lblSummaryCaption), summary, {120, 780, 1100, kLabelHeight}).SetCaption("Summary");
    Add(NAMED(txtSummary), summary, {1320, 760, 3900, 1200}).SetMultiLine(true);
    Add(NAMED(lblObjectiveCaption), summary, {120, 2040, 1100, kLabelHeight})
        .SetCaption("Objective");
    Add(NAMED(txtObjective), summary, {1320, 2020, 3900, 1200}).SetMultiLine(true);
    Add(NAMED(lblTypeCaption), summary, {120, 3300, 1100, kLabelHeight}).SetCaption("Type");
    Add(NAMED(txtType), summary, {1320, 3280, 1800, kTextHeight});
    Add(NAMED(lblTipCaption), summary, {3300, 3300, 380, kLabelHeight}).SetCaption("Tip");
    Add(NAMED(txtTip), summary, {3720, 3280, 1500, kTextHeight});
    Add(NAMED(lblDateCaption), summary, {120, 3660, 1100, kLabelHeight}).SetCaption("Date");
    Add(NAMED(txtDate), summary, {1320, 3640, 1200, kTextHeight});
    Add(NAMED(lblTimeCaption), summary, {2640, 3660, 460, kLabelHeight}).SetCaption("Time");
    Add(NAMED(txtTime), summary, {3120, 3640, 900, kTextHeight});
    Add(NAMED(lblPctReqdCaption), summary, {4200, 3660, 640, kLabelHeight}).SetCaption("% Reqd");
    Add(NAMED(txtPctReqd), summary, {4860, 3640, 360, kTextHeight});
    Add(NAMED(lblCloudsCaption), summary, {120, 4040, 1100, kLabelHeight}).SetCaption("Clouds");
    Add(NAMED(cmbClouds), summary, {1320, 4000, 2100, kComboHeight}).SetStyle(kComboDropDownList);
    AddRows(cmbClouds, {"No Clouds", "Haze", "Light Clouds", "Heavy Clouds"});
    Add(NAMED(lblVisibilityCaption), summary, {120, 4420, 1100, kLabelHeight})
        .SetCaption("Visibility");
    Add(NAMED(cmbVisibility), summary, {1320, 4380, 2100, kComboHeight})
        .SetStyle(kComboDropDownList);
    AddRows(cmbVisibility, {"Unlimited", "20 Miles", "5 Miles", "1 Mile", "0.25 Mile"});
    Add(NAMED(lblWindsCaption), summary, {120, 4800, 1100, kLabelHeight}).SetCaption("Winds");
    Add(NAMED(cmbWinds), summary, {1320, 4760, 2100, kComboHeight}).SetStyle(kComboDropDownList);
    AddRows(cmbWinds, {"No Wind", "Light Wind", "Moderate Wind", "Heavy Wind"});
    Add(NAMED(lblSelectMapCaption), summary, {120, 5180, 1100, kLabelHeight}).SetCaption("Map");
    Add(NAMED(cmbSelectMap), summary, {1320, 5140, 3900, kComboHeight})
        .SetStyle(kComboDropDownList);
    AddMapRows(cmbSelectMap);
    Add(NAMED(lblAirfieldCaption), summary, {5520, 420, 1500, kLabelHeight})
        .SetCaption("Player airfield:");
    Add(NAMED(lblAirfield), summary, {7080, 420, 2160, kLabelHeight});
    Add(NAMED(lblACCaption), summary, {5520, 720, 1500, kLabelHeight})
        .SetCaption("Player aircraft:");
    Add(NAMED(lblAC), summary, {7080, 720, 2160, kLabelHeight});
    Add(NAMED(lblMapCaption), summary, {5520, 1020, 1500, kLabelHeight})
        .SetCaption("Briefing map:");
    Add(NAMED(lblMap), summary, {7080, 1020, 2160, kLabelHeight});
    Add(NAMED(picSummaryTab), summary.Scrolled(), {5520, 1380, 3720, 4620});

    // ---- Formations: groups above, pilots below, airfields and filters on the right -------
    const Container formations = Page(SSTab1, 1);
    Add(NAMED(fraGroupInfo), formations, {120, 360, 5700, 2820});
    const Container groups = In(fraGroupInfo);
    Add(NAMED(lstGroupName), groups, {120, 240, 2100, 2040}).SetTag("Groups");
    // The row under the pointer is found from this height.
    lstGroupName.SetRowHeight(190);
    Add(NAMED(btnGroupName), groups, {2280, 240, 360, kButtonHeight}).SetCaption("...");
    Add(NAMED(btnDeleteGroup), groups, {2280, 640, 720, kButtonHeight}).SetCaption("Delete");
    btnDeleteGroup.SetVisible(false);
    Add(NAMED(lblGrpID), groups, {3060, 260, 900, kLabelHeight}).SetCaption("Group ID");
    Add(NAMED(lblGroupID), groups, {3960, 260, 1620, kLabelHeight});
    Add(NAMED(lblWPStrData), groups, {3060, 520, 2520, kLabelHeight});
    Add(NAMED(lblPattern), groups, {3060, 810, 2520, kLabelHeight}).SetCaption("Pattern");
    Add(NAMED(cmbFormPattern), groups, {3060, 1040, 2520, kComboHeight})
        .SetStyle(kComboDropDownList);
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
    Add(NAMED(lblDirective), groups, {3060, 1410, 2520, kLabelHeight}).SetCaption("Directive");
    Add(NAMED(cmbDirective), groups, {3060, 1640, 2520, kComboHeight}).SetStyle(kComboDropDownList);
    // The colour its blink comes back to.
    cmbDirective.SetBackColor(Rgb(224, 224, 224));
    AddRows(cmbDirective,
            {"None", "Enemy Fighters", "Enemy Bombers", "Enemy Vehicles", "Enemy Buildings"});
    Add(NAMED(lblTOandLand), groups, {3060, 2010, 2520, kLabelHeight}).SetCaption("Takeoff / Land");
    Add(NAMED(cmbTakeoffFlag), groups, {3060, 2240, 2520, kComboHeight})
        .SetStyle(kComboDropDownList);
    AddRows(cmbTakeoffFlag, {"Stay in the Air", "Takeoff Only", "Land Only", "Takeoff and Land"});
    Add(NAMED(chkSuspend), formations, {120, 5880, 9000, kCheckHeight})
        .SetCaption(
            "Check to suspend Group until the player gets to within a 12-mile radius of the "
            "enemy.");
    Add(NAMED(btnSetWaypoints), groups, {120, 2360, 1140, kButtonHeight}).SetCaption("Path(s)...");
    btnSetWaypoints.SetEnabled(false);
    // Enabled once a mission is loaded or paths were given to a group.
    Add(NAMED(btnGrpView), groups, {1380, 2360, 1140, kButtonHeight}).SetCaption("Groups...");
    btnGrpView.SetEnabled(false);

    // ---- Formations: pilots ----------------------------------------------------------------
    Add(NAMED(fraPilotInfo), formations, {120, 3240, 5700, 2580});
    const Container pilots = In(fraPilotInfo);
    Add(NAMED(lstPilotName), pilots, {120, 240, 2400, 1560}).SetTag("Pilots");
    lstPilotName.SetMultiSelect(kMultiSelectExtended);
    lstPilotName.SetRowHeight(190);
    Add(NAMED(btnPilotName), pilots, {120, 1860, 480, kButtonHeight}).SetCaption("...");
    Add(NAMED(btnDeletePilot), pilots, {660, 1860, 900, kButtonHeight}).SetCaption("Delete");
    btnDeletePilot.SetVisible(false);
    Add(NAMED(chkPilotIsAC), pilots, {120, 2250, 2400, kCheckHeight})
        .SetCaption("Pilots = A/C Name");
    Add(NAMED(chkPlayer), pilots, {3060, 240, 1200, kCheckHeight}).SetCaption("Player:");
    Add(NAMED(chkPoints), pilots, {4320, 240, 1260, kCheckHeight}).SetCaption("Points:");
    // One row each: the caption, then the combo.
    const auto captionAt = [](int row) {
        return Place{3060, 600 + row * 370.0f, 760, kLabelHeight};
    };
    const auto comboAt = [](int row) {
        return Place{3840, 560 + row * 370.0f, 1740, kComboHeight};
    };
    Add(NAMED(lblSkill), pilots, captionAt(0)).SetCaption("Skill");
    Add(NAMED(cmbSkill), pilots, comboAt(0)).SetStyle(kComboDropDownList);
    AddRows(cmbSkill, {"Rookie", "Rookie +", "Veteran", "Veteran +", "Ace"});
    Add(NAMED(lblLevel), pilots, captionAt(1)).SetCaption("Level");
    Add(NAMED(cmbLevel), pilots, comboAt(1)).SetStyle(kComboDropDownList);
    AddRows(cmbLevel, {"Rookie", "Veteran", "Ace"});
    Add(NAMED(lblDamage), pilots, captionAt(2)).SetCaption("Damage");
    Add(NAMED(cmbDamage), pilots, comboAt(2)).SetStyle(kComboDropDownList);
    AddRows(cmbDamage, {"None", "Smoke", "Fire"});
    Add(NAMED(lblACType), pilots, captionAt(3)).SetCaption("Aircraft");
    Add(NAMED(cmbMovingType), pilots, comboAt(3)).SetStyle(kComboDropDownList);
    // The filters, four options each in a column.
    const auto optionAt = [](int k) { return Place{120, 260 + k * 270.0f, 1320, kCheckHeight}; };
    Add(NAMED(fraAllegianceType), formations, {5940, 2520, 1560, 1380});
    Add(NAMED(optAllegiance), In(fraAllegianceType), optionAt);
    const char* allegiances[] = {"RAF", "Luftwaffe", "USAAF", "List All"};
    for (int k = 0; k <= 3; ++k)
        optAllegiance(k).SetCaption(allegiances[k]);
    Add(NAMED(fraFamilyType), formations, {7620, 2520, 1560, 1380});
    Add(NAMED(OptFamily), In(fraFamilyType), optionAt);
    const char* families[] = {"Fighters", "Bombers", "Other", "List All"};
    for (int k = 0; k <= 3; ++k)
        OptFamily(k).SetCaption(families[k]);
    // The filter starts with every aircraft listed.
    optAllegiance(3).SetValue(true);
    OptFamily(3).SetValue(true);
    // The aircraft's arms: two rows of title and value.
    Add(NAMED(lblGunTitle), pilots, {3060, 2080, 760, kLabelHeight}).SetCaption("Gun");
    Add(NAMED(lblGun), pilots, {3840, 2080, 600, kLabelHeight});
    Add(NAMED(lblCannonTitle), pilots, {4500, 2080, 660, kLabelHeight}).SetCaption("Cannon");
    Add(NAMED(lblCannon), pilots, {5160, 2080, 420, kLabelHeight});
    Add(NAMED(lblRocketTitle), pilots, {3060, 2320, 760, kLabelHeight}).SetCaption("Rockets");
    Add(NAMED(lblRockets), pilots, {3840, 2320, 600, kLabelHeight});
    Add(NAMED(lblBombTitle), pilots, {4500, 2320, 660, kLabelHeight}).SetCaption("Bombs");
    Add(NAMED(lblBombs), pilots, {5160, 2320, 420, kLabelHeight});

    // ---- Formations: the paths of a group, two columns of eight opened over the filters, and
    // the group view, which shares its place with the airfields -------------------------------
    Add(NAMED(fraWPSelect), formations.Overlay(), {5940, 2520, 3240, 2880}).SetVisible(false);
    const auto pathAt = [](int k) {
        return Place{120 + (k / 8) * 1560.0f, 260 + (k % 8) * 270.0f, 900, kCheckHeight};
    };
    Add(NAMED(chkWP), In(fraWPSelect), pathAt);
    Add(NAMED(txtWPPct), In(fraWPSelect), [&pathAt](int k) {
        const Place path = pathAt(k);
        return Place{path.left + 920, path.top - 10, 480, 270};
    });
    for (int p = 0; p <= 15; ++p)
        chkWP(p).SetCaption(std::to_string(5000 + p));
    Add(NAMED(btnPathClear), In(fraWPSelect), {120, 2440, 1300, kButtonHeight}).SetCaption("Clear");
    Add(NAMED(btnWPClose), In(fraWPSelect), {1680, 2440, 1300, kButtonHeight}).SetCaption("Close");
    Add(NAMED(fraGrpView), formations.Overlay(), {5940, 960, 3240, 1440}).SetCaption("Group View");
    fraGrpView.SetVisible(false);
    Add(NAMED(cmbGroups), In(fraGrpView), {120, 260, 2520, kComboHeight})
        .SetStyle(kComboDropDownList);
    // Shown only for a group with more than one path.
    Add(NAMED(updwnGroupView), In(fraGrpView), {2700, 260, 300, kComboHeight}).SetVisible(false);
    Add(NAMED(lblGrpWP), In(fraGrpView), {120, 700, 3000, kLabelHeight});

    // ---- Airfields of a path or group, on Formations and on Waypoints; the tabs move the
    // frame. The colours echo the Start and End markers ---------------------------------------
    Add(NAMED(fraAirfields), Pages(SSTab1, {1, 3}), {5940, 960, 3240, 1440})
        .SetCaption("Airfields");
    const Container airfields = In(fraAirfields);
    Add(NAMED(lblStartRwy), airfields, {120, 300, 560, kLabelHeight}).SetCaption("Start");
    Add(NAMED(cmbStartAtRwy), airfields, {720, 260, 2400, kComboHeight})
        .SetStyle(kComboDropDownList);
    cmbStartAtRwy.SetBackColor(Rgb(255, 128, 128));
    Add(NAMED(lblEndRwy), airfields, {120, 680, 560, kLabelHeight}).SetCaption("End");
    Add(NAMED(cmbEndAtRwy), airfields, {720, 640, 2400, kComboHeight}).SetStyle(kComboDropDownList);
    cmbEndAtRwy.SetBackColor(Rgb(128, 128, 255));
    Add(NAMED(lblFlyBy), airfields, {120, 1060, 560, kLabelHeight}).SetCaption("Flyby");
    Add(NAMED(cmbRunways), airfields, {720, 1020, 2400, kComboHeight}).SetStyle(kComboDropDownList);
    cmbRunways.SetBackColor(Rgb(255, 255, 192));

    // ---- Waypoints: the map on the left, the point editor on the right --------------------
    const Container waypoints = Page(SSTab1, 3);
    Add(NAMED(mapWayPoints), waypoints.Scrolled(), {72, 384, 5016, 4860});
    // The paths' colours, overlays and ids, on Ground units and on Waypoints.
    Add(NAMED(fraPathColor), Pages(SSTab1, {2, 3}), {72, 5376, 9120, 720})
        .SetCaption("Flight Path: 5000");
    const auto colourAt = [](int k) { return Place{120 + k * 560.0f, 220, 250, 250}; };
    Add(NAMED(optColor), In(fraPathColor), colourAt);
    Add(NAMED(lblPath), In(fraPathColor), [&colourAt](int k) {
        return Place{colourAt(k).left, 470, 540, 210};
    });
    Add(NAMED(chkOverlay), In(fraPathColor), [&colourAt](int k) {
        return Place{colourAt(k).left + 260, 220, 250, 250};
    });
    for (int p = 0; p <= 15; ++p)
        lblPath(p).SetCaption(std::to_string(5000 + p));
    Add(NAMED(fraWaypoints), waypoints, {5292, 1900, 3900, 3360})
        .SetCaption("Waypoints for Path: 5000");
    const Container points = In(fraWaypoints);
    Add(NAMED(lstPoints), points, {120, 240, 2400, 2640});
    // Takes the place of lstPoints while a range of rows is selected.
    Add(NAMED(lstPointsExtended), points.Overlay(), {120, 240, 2400, 2640})
        .SetMultiSelect(kMultiSelectExtended);
    lstPointsExtended.SetVisible(false);
    Add(NAMED(txtPoint), points, {120, 2980, 3660, kTextHeight});
    Add(NAMED(txtAlt), points, {2640, 240, 1140, kTextHeight});
    Add(NAMED(txtSpeed), points, {2640, 600, 720, kTextHeight});
    Add(NAMED(lblSpeed), points, {3400, 640, 400, kLabelHeight}).SetCaption("Km.");
    Add(NAMED(chkWPOptions), points, [](int k) {
        return Place{2640, 980 + k * 280.0f, 1140, kCheckHeight};
    });
    chkWPOptions(0).SetCaption("M a p");
    chkWPOptions(1).SetCaption(" A    c     t");
    chkWPOptions(2).SetCaption("C a p");
    // Hidden while the editor has no point to work on.
    Add(NAMED(btnClrPoint), points, {2640, 1860, 1140, kButtonHeight}).SetCaption("Delete");
    btnClrPoint.SetVisible(false);
    Add(NAMED(btnWPNames), points, {2640, 2240, 1140, kButtonHeight}).SetCaption("Names");
    Add(NAMED(btnWPTips), points, {2640, 2620, 1140, kButtonHeight}).SetCaption("Tips");

    // ---- Ground units: the map on the left, the layouts on the right ----------------------
    const Container ground = Page(SSTab1, 2);
    // The tag tells placing ("False") from the layout editor ("True").
    Add(NAMED(mapGroundUnits), ground.Scrolled(), {72, 384, 5016, 4860}).SetTag("False");
    Add(NAMED(lstGrnUnits), ground, {5292, 384, 2700, 1500});
    Add(NAMED(btnDelGUlst), ground, {8052, 384, 900, kButtonHeight}).SetCaption("Delete");
    btnDelGUlst.SetVisible(false);
    Add(NAMED(cmbGrndAirfield), ground, {5292, 1960, 2700, kComboHeight})
        .SetStyle(kComboDropDownList);
    Add(NAMED(cmbAirfieldLayout), ground, {5292, 2340, 2700, kComboHeight})
        .SetStyle(kComboDropDownList);
    Add(NAMED(btnDelGUcmb), ground, {8052, 2340, 900, kButtonHeight}).SetCaption("Delete");
    btnDelGUcmb.SetVisible(false);
    Add(NAMED(lstGUAdded), ground, {5292, 2760, 2700, 1200}).SetEnabled(false);
    Add(NAMED(btnDeleteGrndUnit), ground, {8052, 2760, 900, kButtonHeight}).SetCaption("Remove");
    btnDeleteGrndUnit.SetVisible(false);
    Add(NAMED(txtAddedGU), ground, {5292, 4040, 3660, kTextHeight});
    Add(NAMED(txtGULatLon), ground, {5292, 4400, 3660, kTextHeight});
    Add(NAMED(optGndHasPoints), ground, [](int k) {
        return Place{5292 + k * 1220.0f, 4760, 1200, kCheckHeight};
    });
    optGndHasPoints(0).SetCaption("None");
    optGndHasPoints(1).SetCaption("Defaults");
    optGndHasPoints(2).SetCaption("All Units");
    Add(NAMED(cmbGUMap), ground, {5292, 5040, 3660, kComboHeight}).SetStyle(kComboDropDownList);
    AddMapRows(cmbGUMap);

    // ---- Ground units: the layout editor takes the map over while it is open: its controls
    // lie on the map, clear of the picture's centre and its legend ----------------------------
    const Container map = In(mapGroundUnits);
    Add(NAMED(fraGUPos), map.Overlay(), {60, 60, 3780, 2520}).SetVisible(false);
    const Container editor = In(fraGUPos);
    // Two columns of spinners, each with its caption on its left.
    const auto spinAt = [](int k) {
        return Place{(k % 2 == 0 ? 120 : 1980) + 900.0f, 280 + (k / 2) * 360.0f, 780, kTextHeight};
    };
    const auto spinCaptionAt = [&spinAt](int k) {
        const Place spin = spinAt(k);
        return Place{spin.left - 900, spin.top + 40, 900, kLabelHeight};
    };
    Add(NAMED(lblXPosCaption), editor, spinCaptionAt(0)).SetCaption("X Axis");
    Add(NAMED(btnXPos), editor, spinAt(0));
    SetRange(btnXPos, -272, 272, 0);
    Add(NAMED(lblYPosCaption), editor, spinCaptionAt(2)).SetCaption("Y Axis");
    Add(NAMED(btnYPos), editor, spinAt(2));
    SetRange(btnYPos, -160, 160, 0);
    Add(NAMED(btnRotate2), editor, spinAt(4));
    SetRange(btnRotate2, -90, 90, 0);
    Add(NAMED(lblRotate2), editor, spinCaptionAt(4)).SetCaption("Rotate 0");
    Add(NAMED(btnSpread), editor, spinAt(1));
    SetRange(btnSpread, -7, 100, 0);
    Add(NAMED(lblSpread), editor, spinCaptionAt(1)).SetCaption("Spread");
    Add(NAMED(lblZoomCaption), editor, spinCaptionAt(3)).SetCaption("Zoom");
    Add(NAMED(btnZoom), editor, spinAt(3));
    SetRange(btnZoom, 10, 80, 10);
    Add(NAMED(lblCursorCaption), editor, spinCaptionAt(5)).SetCaption("Cursor");
    Add(NAMED(btnCursor), editor, spinAt(5));
    SetRange(btnCursor, 240, 2600, 240);
    Add(NAMED(btnRotate90), editor, {120, 1380, 1740, kButtonHeight}).SetCaption("Rotate 90");
    Add(NAMED(btnGUReset), editor, {1980, 1380, 1680, kButtonHeight}).SetCaption("Reset All");
    Add(NAMED(btnSave), editor, {120, 1760, 1740, kButtonHeight}).SetCaption("Save Layout");
    Add(NAMED(btnGUClose), editor, {1980, 1760, 1680, kButtonHeight}).SetCaption("Close");
    Add(NAMED(chkStationary), editor, {120, 2160, 1800, kCheckHeight})
        .SetCaption("Stationary Objects");
    Add(NAMED(chkDataWindow), editor, {1980, 2160, 1680, kCheckHeight})
        .SetCaption("Offsets Window");
    // Runways 2 and 3 of a three-runway airfield layout move by these; shown only for those.
    Add(NAMED(btnX), map, {7500, 4920, 720, kTextHeight});
    SetRange(btnX, 0, 10, 0);
    btnX.SetVisible(false);
    Add(NAMED(btnY), map, {8300, 4920, 720, kTextHeight});
    SetRange(btnY, 0, 10, 0);
    btnY.SetVisible(false);
    // The cross hairs span the map.
    Add(NAMED(XLine), map).SetVisible(false);
    Add(NAMED(YLine), map).SetVisible(false);
    // The editor's spinners show the value they hold.
    for (UpDown* spin :
         {&btnXPos, &btnYPos, &btnRotate2, &btnSpread, &btnZoom, &btnCursor, &btnX, &btnY})
        spin->SetShowValue(true);
    // The unit marker, 20 by 20 pixels, goes wherever the unit is.
    Add(NAMED(picAC), map.Overlay(), {0, 0, 300, 300}).SetVisible(false);
    // The stationary types float over the map, wherever the designer drops them.
    Add(NAMED(fraStationary), map.Overlay(), {60, 2900, 3000, 2400}).SetCaption("Stationary Types");
    fraStationary.SetVisible(false);
    Add(NAMED(lstStationary), In(fraStationary), {120, 240, 2760, 2040});
}

}  // namespace tarvex
