#include "shell/window_sizes.h"

#include "shell/editor.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void PlaceMissionWindow(Editor& ed) {
    ed.FrmMission.Move(0, 0, 9396, 6312);
}

void FrmMission_Resize(Editor& ed, bool normalState) {
    if (!normalState) return;
    auto& frm = ed.FrmMission;
    frm.Move(frm.Left(), frm.Top(), 9384, 6648);
}

void MDIMissionED_Resize(Editor& ed, bool minimised) {
    auto& offsets = ed.frmGUOffsets;
    bool& hidden = ed.shell.OffsetsHiddenByMinimise;
    if (!offsets.Visible() && !hidden) return;
    if (minimised) {
        hidden = hidden || offsets.Visible();
        offsets.SetVisible(false);
    } else {
        hidden = false;
        // Top-most is the desktop's part; the model only shows it again.
        offsets.SetVisible(true);
    }
}

}  // namespace tarvex
