#include "shell/summary_prompts.h"

#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

void PromptIfEmpty(TextBox& box, const char* prompt) {
    if (!box.Text().empty()) return;
    box.SetText(prompt);
    SetTextSelect(box);
}

}  // namespace

void txtDate_Click(Editor& ed) {
    PromptIfEmpty(ed.FrmMission.txtDate, "mm/dd/yy");
}

void txtTime_Click(Editor& ed) {
    PromptIfEmpty(ed.FrmMission.txtTime, "hh:mm");
}

}  // namespace tarvex
