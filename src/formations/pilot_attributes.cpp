#include "formations/pilot_attributes.h"

#include <cstdint>

#include "common/text.h"
#include "formations/formation_lists.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

namespace {

// The combo's row into the value of every selected pilot of CurrentGroup.
template <typename Values>
void WriteToSelectedPilots(Editor& ed, const ComboBox& combo, Values& values) {
    const int row = combo.ListIndex();
    if (!ed.doc.EventsOn || row < 0) return;
    for (int p : ed.FrmMission.lstPilotName.SelectedRows())
        if (p <= Mission::kPilotUpper)
            values(ed.doc.CurrentGroup, p) = static_cast<std::uint8_t>(row);
}

}  // namespace

void cmbSkill_Click(Editor& ed) {
    WriteToSelectedPilots(ed, ed.FrmMission.cmbSkill, ed.doc.PilotSkill);
}

void cmbLevel_Click(Editor& ed) {
    WriteToSelectedPilots(ed, ed.FrmMission.cmbLevel, ed.doc.PilotLevel);
}

void cmbDamage_Click(Editor& ed) {
    WriteToSelectedPilots(ed, ed.FrmMission.cmbDamage, ed.doc.PilotDamage);
}

void chkPoints_MouseDown(Editor& ed, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

void chkPoints_MouseUp(Editor& ed, int, int, float, float) {
    Mission& doc = ed.doc;
    if (!doc.EventsOn) return;
    const std::uint8_t points = ed.FrmMission.chkPoints.Value() == kChecked ? 1 : 0;
    for (int p : ed.FrmMission.lstPilotName.SelectedRows())
        if (p <= Mission::kPilotUpper) doc.PilotPoints(doc.CurrentGroup, p) = points;
    MarkPilotPoints(ed);
}

std::string PointsName(const std::string& name, bool points) {
    std::string marked = name;
    if (points) {
        if (!StartsWithText(marked, "*")) marked = "*" + marked;
        if (!EndsWithText(marked, "*")) marked += "*";
        return marked;
    }
    if (StartsWithText(marked, "*")) marked.erase(0, 1);
    if (EndsWithText(marked, "*")) marked.pop_back();
    return marked.empty() ? name : marked;
}

void MarkPilotPoints(Editor& ed) {
    auto& frm = ed.FrmMission;
    ListBox& list = frm.lstPilotName;
    const bool points = frm.chkPoints.Value() == kChecked;
    for (int p : list.SelectedRows()) {
        if (p > Mission::kPilotUpper) continue;
        list.SetList(p, PointsName(list.List(p), points));
        ed.doc.PilotName(ed.doc.CurrentGroup, p) = list.List(p);
    }
}

void chkPilotIsAC_MouseUp(Editor& ed, int, int, float, float) {
    auto& frm = ed.FrmMission;
    const bool checked = frm.chkPilotIsAC.Value() == kChecked;
    ed.doc.GrpPilotIsAC(ed.doc.CurrentGroup) = checked ? 1 : 0;
    if (checked) NamePilotsAfterAC(ed);
    PlaySound(ed, ed.shell.sndCheckbox);
}

void NamePilotsAfterAC(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    // Without an aircraft shown every name would be empty, and the group's pilots lost.
    std::string name = frm.cmbMovingType.Text();
    if (frm.cmbMovingType.ListIndex() < 0 || name.empty()) return;
    const int g = doc.CurrentGroup;
    const int pilots = PilotCount(doc, g);
    if (frm.chkPoints.Value() == kChecked) name = "*" + name + "*";
    frm.lstPilotName.Clear();
    for (int p = 0; p < pilots; ++p) {
        frm.lstPilotName.AddItem(name);
        doc.PilotName(g, p) = name;
    }
    if (pilots > 0) SelectRow(frm.lstPilotName, 0);
}

}  // namespace tarvex
