#include "maps/tab_selection.h"

#include "shell/editor.h"

namespace tarvex {

void SelectTab(Editor& ed, int tab) {
    auto& frm = ed.FrmMission;
    if (frm.SSTab1.Tab() != tab) frm.SSTab1.SetTab(tab);
    if (tab == 0) ShowSummaryTab(ed);
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
        if (combo->ListIndex() < 0) combo->SetListIndex(0);
    if (doc.NotResetting) {
        frm.txtTitle.SetFocus();
        frm.txtTitle.SetSelStart(0);
        frm.txtTitle.SetSelLength(static_cast<int>(frm.txtTitle.Text().size()));
    }
}

}  // namespace tarvex
