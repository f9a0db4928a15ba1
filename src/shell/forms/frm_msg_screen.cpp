#include "shell/forms/frm_msg_screen.h"

namespace tarvex {

frmMsgScreen::frmMsgScreen(Editor& ed) : Form("frmMsgScreen"), ed(ed) {
    Add(lblMessage, "lblMessage");
}

}  // namespace tarvex
