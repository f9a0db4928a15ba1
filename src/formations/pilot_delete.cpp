#include "formations/pilot_delete.h"

#include <algorithm>

#include "document/mission_reset.h"
#include "formations/formation_lists.h"
#include "formations/player.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

void DeletePilotRow(Editor& ed, int group, int pilot) {
    Mission& doc = ed.doc;
    if (doc.PilotIsPlayer(group, pilot) != 0) ClearPlayer(ed);
    for (int p = pilot; p <= Mission::kPilotUpper && !doc.PilotName(group, p).empty(); ++p) {
        if (p < Mission::kPilotUpper) {
            CopyPilotSlot(doc, group, p + 1, group, p);
        } else {
            ClearPilotSlot(doc, group, p);
        }
    }
    if (doc.PlayerGroup == group && doc.PlayerPilot > pilot) --doc.PlayerPilot;
}

void btnDeletePilot_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    ListBox& list = frm.lstPilotName;
    const int row = list.ListIndex();
    if (row < 0 || row > Mission::kPilotUpper) return;
    DeletePilotRow(ed, ed.doc.CurrentGroup, row);
    list.RemoveItem(row);
    if (list.ListCount() == 0) {
        EnablePilotControls(ed, false);
    } else {
        SelectRow(list, std::min(row, list.ListCount() - 1));
    }
}

void btnDeletePilot_MouseDown(Editor& ed, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

}  // namespace tarvex
