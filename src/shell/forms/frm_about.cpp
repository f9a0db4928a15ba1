#include "shell/forms/frm_about.h"

namespace tarvex {

frmAbout::frmAbout() : Form("frmAbout") {
    Add(picAbout, "picAbout");
    Add(picOK, "picOK");
}

}  // namespace tarvex
