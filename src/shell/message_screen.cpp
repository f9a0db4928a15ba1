#include "shell/message_screen.h"

#include "shell/editor.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

void ShowMessageScreen(Editor& ed, const std::string& text) {
    auto& screen = ed.frmMsgScreen;
    const auto& main = ed.MDIMissionED;
    screen.lblMessage.SetCaption(text);
    screen.Move(main.Left() + (main.Width() - screen.Width()) / 2,
                main.Top() + (main.Height() - screen.Height()) / 2);
    screen.SetVisible(true);
    ed.svc.clock.DoEvents();
}

void CloseMessageScreen(Editor& ed) {
    ed.frmMsgScreen.SetVisible(false);
}

}  // namespace tarvex
