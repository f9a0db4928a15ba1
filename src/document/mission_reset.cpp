#include "document/mission_reset.h"

#include "maps/tab_selection.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void ResetMission(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;

    frm.lstPoints.Clear();
    frm.lstGroupName.Clear();
    frm.lstGUAdded.Clear();
    frm.lstPilotName.Clear();
    frm.lstPointsExtended.Clear();
    frm.txtPoint.SetText("");

    SetSummaryDefaults(ed);

    // Path 15 first, so that selecting path 0 at the end of the array reset is a change of
    // option whose click runs on clean arrays.
    frm.optColor(15).SetValue(true);
    frm.btnSetWaypoints.SetEnabled(false);
    frm.btnGroupName.SetEnabled(true);

    doc.PlayerAssigned = false;
    doc.CurrentGroup = 0;
    doc.CurrentPilot = 0;
    doc.PlayerGroup = -1;
    doc.PlayerPilot = -1;
    doc.CurrentPath = 0;
    doc.PrevPath = 0;
    doc.HighestPath = 0;
    doc.CurrentPoint = 0;
    doc.GUCount = 0;

    EnableGroupControls(ed, false);
    EnablePilotControls(ed, false);
    EnablePilotList(ed, false);

    ResetDocumentArrays(ed);
}

void ResetDocumentArrays(Editor& ed) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;

    doc.PathChecksArmed = true;

    for (int p = 0; p <= Mission::kPathUpper; ++p) {
        doc.PathAirfieldEnd(p) = Mission::kNoAirfield;
        doc.PathAirfieldStart(p) = Mission::kNoAirfield;
        doc.PathCurrentPoint(p) = 0;
        doc.PathPointCount(p) = 0;
        doc.PathGroup(p) = 0;
        // Point 0, the Start reference, is left as it is.
        for (int i = 1; i <= Mission::kPointUpper; ++i) {
            doc.WPLat(p, i).clear();
            doc.WPLon(p, i).clear();
            doc.WPTip(p, i).clear();
            doc.WPName(p, i).clear();
            doc.WPMapX(p, i) = 0;
            doc.WPMapY(p, i) = 0;
            doc.WPAlt(p, i) = 0;
            doc.WPSpeed(p, i) = 0;
            const bool firstPath = p == 0;
            doc.WPOnMap(p, i) = firstPath ? 1 : 0;
            doc.WPAction(p, i) = firstPath ? 1 : 0;
            doc.WPCap(p, i) = firstPath && i == 1 ? 1 : 0;
        }
    }
    doc.WPAlt(0, 0) = 4000;
    doc.WPSpeed(0, 0) = 400;

    for (int g = 0; g <= Mission::kGroupUpper; ++g) {
        doc.GrpPattern(g) = 0;
        doc.GrpSuspended(g) = 0;
        doc.GrpTakeoffFlag(g) = 0;
        doc.GrpTakeoffRwy(g) = 0;
        doc.GrpLandingRwy(g) = 0;
        doc.GrpPilotIsAC(g) = 0;
        doc.GrpDirective(g) = 1;
        doc.GrpPaths(g).clear();
        for (int k = 0; k <= Mission::kPilotUpper; ++k)
            ClearPilotSlot(doc, g, k);
    }

    for (int l = 0; l <= Mission::kLayoutUpper; ++l) {
        doc.GULat(l).clear();
        doc.GULon(l).clear();
        doc.GUMapX(l) = 0;
        doc.GUMapY(l) = 0;
        doc.GUShiftY(l) = 0;
        doc.GUShiftX(l) = 0;
        doc.GUSpread(l) = 0;
        doc.GURotation(l) = 0;
        doc.GUPoints(l) = 1;
    }

    doc.PatternMaxPilots = 12;
    doc.PlayerGroup = -1;
    doc.PlayerPilot = -1;
    doc.PathPointCount(doc.CurrentPath) = 0;
    doc.CurrentGroup = 0;
    doc.CurrentPilot = 0;

    ed.ActiveMap = &frm.mapWayPoints;
    ed.ActivePointList = &frm.lstPoints;

    frm.cmbSelectMap.SetListIndex(0);
    frm.cmbGUMap.SetListIndex(0);
    frm.optColor(0).SetValue(true);
    frm.cmbFormPattern.SetListIndex(0);
    frm.cmbDirective.SetListIndex(1);
    frm.cmbTakeoffFlag.SetListIndex(0);
    frm.cmbSkill.SetListIndex(0);
    frm.cmbLevel.SetListIndex(0);
    // The aircraft combo may still be empty before the database has filled it.
    if (frm.cmbMovingType.ListCount() > 0) frm.cmbMovingType.SetListIndex(0);
    frm.cmbDamage.SetListIndex(0);
    frm.cmbRunways.SetListIndex(-1);
    frm.chkPilotIsAC.SetValue(0);
    frm.lstPointsExtended.SetVisible(false);

    // The first group of a new mission takes off and lands.
    doc.GrpTakeoffFlag(0) = 3;

    SelectTab(ed, frm.SSTab1.Tab());
    ShowSummaryTab(ed);
}

void ClearPilotSlot(Mission& doc, int group, int pilot) {
    doc.PilotName(group, pilot).clear();
    doc.PilotSkill(group, pilot) = Mission::kUnsetPilotValue;
    doc.PilotLevel(group, pilot) = Mission::kUnsetPilotValue;
    doc.PilotDamage(group, pilot) = Mission::kUnsetPilotValue;
    doc.PilotAC(group, pilot) = Mission::kUnsetPilotValue;
    doc.PilotIsPlayer(group, pilot) = 0;
    doc.PilotPoints(group, pilot) = 0;
}

void EnableGroupControls(Editor& ed, bool on) {
    auto& frm = ed.FrmMission;
    frm.btnDeleteGroup.SetVisible(on);
    for (Control* c :
         {static_cast<Control*>(&frm.cmbFormPattern), static_cast<Control*>(&frm.cmbTakeoffFlag),
          static_cast<Control*>(&frm.cmbDirective), static_cast<Control*>(&frm.cmbStartAtRwy),
          static_cast<Control*>(&frm.cmbEndAtRwy), static_cast<Control*>(&frm.lblEndRwy),
          static_cast<Control*>(&frm.lblStartRwy), static_cast<Control*>(&frm.chkSuspend),
          static_cast<Control*>(&frm.lstGroupName), static_cast<Control*>(&frm.lblGroupID),
          static_cast<Control*>(&frm.lblGrpID), static_cast<Control*>(&frm.lblPattern),
          static_cast<Control*>(&frm.lblTOandLand), static_cast<Control*>(&frm.lblDirective)})
        c->SetEnabled(on);
    UpdateSetWaypointsButton(ed, on);
}

void EnablePilotControls(Editor& ed, bool on) {
    auto& frm = ed.FrmMission;
    Control* controls[] = {
        &frm.cmbSkill,     &frm.cmbLevel,       &frm.cmbMovingType,     &frm.cmbDamage,
        &frm.chkPilotIsAC, &frm.chkPoints,      &frm.fraAllegianceType, &frm.fraFamilyType,
        &frm.lblSkill,     &frm.lblLevel,       &frm.lblACType,         &frm.lblDamage,
        &frm.lblGunTitle,  &frm.lblRocketTitle, &frm.lblBombTitle,      &frm.lblCannonTitle,
        &frm.lblGun,       &frm.lblRockets,     &frm.lblBombs,          &frm.lblCannon};
    for (Control* c : controls)
        c->SetEnabled(on);
    for (auto& button : frm.optAllegiance)
        button.SetEnabled(on);
    for (auto& button : frm.OptFamily)
        button.SetEnabled(on);
    frm.btnDeletePilot.SetVisible(on);
}

void EnablePilotList(Editor& ed, bool on) {
    auto& frm = ed.FrmMission;
    frm.fraPilotInfo.SetEnabled(on);
    frm.lstPilotName.SetEnabled(on);
    frm.btnPilotName.SetEnabled(on);
}

void UpdateSetWaypointsButton(Editor& ed, bool on) {
    auto& frm = ed.FrmMission;
    const bool possible =
        frm.lstGroupName.ListCount() > 0 && ed.doc.PathPointCount(ed.doc.HighestPath) > 1;
    frm.btnSetWaypoints.SetEnabled(possible && on);
}

}  // namespace tarvex
