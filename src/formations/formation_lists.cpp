#include "formations/formation_lists.h"

#include "common/error.h"
#include "common/number_text.h"
#include "common/program_version.h"
#include "shell/controls/list_box.h"
#include "shell/editor.h"

namespace tarvex {

void SelectRow(ListBox& list, int row) {
    if (list.MultiSelect() == kMultiSelectNone) {
        list.SetListIndex(row);
    } else {
        list.SetSelection({row}, row);
    }
}

int PilotCount(const Mission& doc, int group) {
    int count = 0;
    while (count <= Mission::kPilotUpper && !doc.PilotName(group, count).empty())
        ++count;
    return count;
}

void CopyPilotSlot(Mission& doc, int fromGroup, int fromPilot, int toGroup, int toPilot) {
    doc.PilotName(toGroup, toPilot) = doc.PilotName(fromGroup, fromPilot);
    doc.PilotSkill(toGroup, toPilot) = doc.PilotSkill(fromGroup, fromPilot);
    doc.PilotLevel(toGroup, toPilot) = doc.PilotLevel(fromGroup, fromPilot);
    doc.PilotAC(toGroup, toPilot) = doc.PilotAC(fromGroup, fromPilot);
    doc.PilotDamage(toGroup, toPilot) = doc.PilotDamage(fromGroup, fromPilot);
    doc.PilotIsPlayer(toGroup, toPilot) = doc.PilotIsPlayer(fromGroup, fromPilot);
    doc.PilotPoints(toGroup, toPilot) = doc.PilotPoints(fromGroup, fromPilot);
}

void ReportLookupFailure(Editor& ed, const AppError& error) {
    ed.svc.dialogs.MsgBox({"The reference database could not answer.\nError [" +
                               IntText(error.Number()) + "] [" + error.Description() + "]",
                           kProgramTitle, MsgButtons::OK, MsgIcon::Exclamation});
}

}  // namespace tarvex
