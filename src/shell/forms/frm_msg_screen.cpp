#include "shell/forms/frm_msg_screen.h"

namespace tarvex {

frmMsgScreen::frmMsgScreen() : Form("frmMsgScreen") {
    Add(lblMessage, "lblMessage");
}

}  // namespace tarvex
