#include "formations/pilot_selection.h"

#include "document/mission_reset.h"
#include "refdata/reference_lookups.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_new_record.h"
#include "shell/sounds.h"

namespace tarvex {

void ShowCombo(ComboBox& combo, std::uint8_t& value) {
    if (value == Mission::kUnsetPilotValue) {
        if (combo.ListIndex() >= 0) value = static_cast<std::uint8_t>(combo.ListIndex());
    } else if (value < combo.ListCount()) {
        combo.SetListIndex(value);
    }
}

void lstPilotName_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    const int row = frm.lstPilotName.ListIndex();
    if (row < 0 || row > Mission::kPilotUpper) return;
    const int g = doc.CurrentGroup;
    doc.CurrentPilot = static_cast<std::int16_t>(row);
    doc.PilotName(g, row) = frm.lstPilotName.List(row);
    if (ed.formations.NewRecordOpen) ed.frmNewRecord.txtNewRecord.SetText(doc.PilotName(g, row));

    {
        LoweredFlag quiet(doc.EventsOn);
        ShowCombo(frm.cmbSkill, doc.PilotSkill(g, row));
        ShowCombo(frm.cmbLevel, doc.PilotLevel(g, row));
        if (doc.PilotAC(g, row) != Mission::kUnsetPilotValue) {
            const int acRow = FindAircraftRow(ed, doc.PilotAC(g, row));
            // Shown again when the combo already stands on it: the marked buttons and Auto
            // Update follow every pilot shown, not only a change of aircraft.
            if (acRow >= 0 && acRow == frm.cmbMovingType.ListIndex()) {
                frm.cmbMovingType.RaiseClick();
            } else if (acRow >= 0) {
                frm.cmbMovingType.SetListIndex(acRow);
            }
        }
        ShowCombo(frm.cmbDamage, doc.PilotDamage(g, row));

        const bool isPlayer = doc.PilotIsPlayer(g, row) != 0;
        frm.chkPlayer.SetEnabled(isPlayer || !doc.PlayerAssigned);
        frm.chkPlayer.SetValue(isPlayer ? kChecked : kUnchecked);
        frm.chkPoints.SetValue(doc.PilotPoints(g, row) != 0 ? kChecked : kUnchecked);
    }
    EnablePilotControls(ed, true);
}

void lstPilotName_MouseDown(Editor& ed, int, int, float, float y) {
    const ListBox& list = ed.FrmMission.lstPilotName;
    const int row = list.RowAt(y);
    if (row >= 0 && row < list.ListCount()) PlaySound(ed, ed.shell.sndClick);
}

void lstPilotName_MouseUp(Editor& ed, int, int shift, float, float) {
    auto& frm = ed.FrmMission;
    // Shift or Ctrl: more than one pilot is selected.
    if ((shift & kShiftMask) != 0 || frm.lstPilotName.SelCount() > 1)
        frm.chkPlayer.SetEnabled(false);
}

}  // namespace tarvex
