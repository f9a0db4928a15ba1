#include "shell/tab_strip.h"

#include "maps/tab_selection.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"
#include "shell/startup.h"

namespace tarvex {

void SSTab1_MouseDown(Editor& ed, int button, int, float, float y) {
    const TabControl& strip = ed.FrmMission.SSTab1;
    if (button != kLeftButton || y > strip.TabHeight()) return;
    PlaySound(ed, ed.shell.sndWhlHit);
    SelectTab(ed, strip.Tab());
}

void SSTab1_OLEDragOver(Editor&, const DragData& data, int& effect) {
    effect = data.hasFiles ? (effect & kDropEffectCopy) : kDropEffectNone;
}

void SSTab1_OLEDragDrop(Editor& ed, const DragData& data, int&) {
    if (!data.hasFiles || data.files.empty()) return;
    OpenFileFromCommand(ed, data.files.front());
}

}  // namespace tarvex
