#include "maps/tab_selection.h"

#include "document/mission_reset.h"
#include "ground/layout_edit_mode.h"
#include "ground/layout_markers.h"
#include "maps/map_loading.h"
#include "maps/path_drawing.h"
#include "maps/runway_controls.h"
#include "maps/waypoint_controls.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// Selects a stored airfield row, unless it is the "no airfield" mark or a row the combo
// doesn't have (a mission whose airfields the database no longer lists).
void SelectAirfieldRow(ComboBox& combo, int row) {
    if (row < Mission::kNoAirfield && row < combo.ListCount()) combo.SetListIndex(row);
}

void ShowFormationsTab(Editor& ed) {
    auto& frm = ed.FrmMission;
    if (frm.lstGroupName.ListCount() > 0) frm.lstGroupName.SetListIndex(0);
    frm.optColor(0).SetValue(true);
    frm.cmbRunways.SetVisible(false);
    frm.lblFlyBy.SetVisible(false);
    ShowRunwayControlsForGroup(ed);
    UpdateSetWaypointsButton(ed, true);
    frm.fraAirfields.Move(5940, 960);
    frm.fraAirfields.ZOrder(0);
    if (frm.fraWPSelect.Visible()) frm.fraWPSelect.ZOrder(0);
}

void ShowGroundUnitsTab(Editor& ed) {
    auto& frm = ed.FrmMission;
    ed.ActiveMap = &frm.mapGroundUnits;
    frm.fraPathColor.Move(72, 5376);
    LoadMap(ed, frm.mapGroundUnits, frm.cmbGUMap.ListIndex());
    DrawLayoutMarkers(ed);
}

void ShowWaypointsTab(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    frm.cmbRunways.SetVisible(true);
    frm.lblFlyBy.SetVisible(true);
    frm.fraAirfields.Move(5292, 384);
    for (int p = 0; p < Mission::kMaxPaths; ++p) {
        if (frm.optColor(p).Value()) {
            ShowRunwayControlsForPath(ed, p);
            break;
        }
    }
    SelectAirfieldRow(frm.cmbStartAtRwy, doc.PathAirfieldStart(doc.CurrentPath));
    SelectAirfieldRow(frm.cmbEndAtRwy, doc.PathAirfieldEnd(doc.CurrentPath));
    if (frm.lstPoints.ListCount() > 0) SetEditMenusEnabled(ed, true);
    frm.mapWayPoints.SetVisible(true);
    ed.ActiveMap = &frm.mapWayPoints;
    LoadMap(ed, frm.mapWayPoints, frm.cmbSelectMap.ListIndex());
    DrawPaths(ed, frm.mapWayPoints);
}

}  // namespace

void SelectTab(Editor& ed, int tab) {
    auto& frm = ed.FrmMission;
    if (tab >= 0 && tab < frm.SSTab1.Tabs() && frm.SSTab1.Tab() != tab) frm.SSTab1.SetTab(tab);

    ShowStatus(ed, "");
    SetTabMenuChecked(ed, ed.drawing.ShownTab, false);
    SetEditMenusEnabled(ed, false);
    LeaveLayoutEditor(ed);

    switch (tab) {
        case kSummaryTab:
            ShowSummaryTab(ed);
            break;
        case kFormationsTab:
            ShowFormationsTab(ed);
            break;
        case kGroundUnitsTab:
            ShowGroundUnitsTab(ed);
            break;
        case kWaypointsTab:
            ShowWaypointsTab(ed);
            break;
        default:
            break;
    }

    ed.drawing.ShownTab = tab;
    SetTabMenuChecked(ed, tab, true);
}

void SetTabMenuChecked(Editor& ed, int tab, bool state) {
    auto& mdi = ed.MDIMissionED;
    MenuItem* entries[] = {&mdi.mnuSummary, &mdi.mnuFormations, &mdi.mnuGroundUnits,
                           &mdi.mnuWaypoints};
    if (tab >= 0 && tab < 4) entries[tab]->SetChecked(state);
}

void ShowSummaryTab(Editor& ed) {
    auto& frm = ed.FrmMission;
    const Mission& doc = ed.doc;
    if (doc.PlayerAssigned && doc.PlayerGroup >= 0 && doc.PlayerPilot >= 0) {
        // A group that only lands shows its landing airfield as the player's airfield.
        const int row = frm.cmbTakeoffFlag.ListIndex() == 2 ? doc.GrpLandingRwy(doc.PlayerGroup)
                                                            : doc.GrpTakeoffRwy(doc.PlayerGroup);
        frm.lblAirfield.SetCaption(frm.cmbRunways.List(row));
        const int acRow =
            frm.cmbMovingType.FindItemData(doc.PilotAC(doc.PlayerGroup, doc.PlayerPilot));
        frm.lblAC.SetCaption(frm.cmbMovingType.List(acRow));
    } else {
        frm.lblAirfield.SetCaption("*Undefined*");
        frm.lblAC.SetCaption("*Undefined*");
    }
    frm.lblMap.SetCaption(frm.cmbSelectMap.List(frm.cmbSelectMap.ListIndex()));
    for (ComboBox* combo : {&frm.cmbClouds, &frm.cmbVisibility, &frm.cmbWinds})
        if (combo->ListIndex() < 0 && combo->ListCount() > 0) combo->SetListIndex(0);
    if (doc.NotResetting) {
        frm.txtTitle.SetFocus();
        frm.txtTitle.SetSelStart(0);
        frm.txtTitle.SetSelLength(static_cast<int>(frm.txtTitle.Text().size()));
    }
}

}  // namespace tarvex
