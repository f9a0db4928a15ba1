#include "shell/forms/frm_msg_screen.h"

namespace tarvex {

frmMsgScreen::frmMsgScreen() : Form("frmMsgScreen") {
    Move(0, 0, 4800, 960);
    Add(NAMED(lblMessage), Self(), {240, 240, 4320, 480});
}

}  // namespace tarvex
