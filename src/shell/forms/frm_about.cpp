#include "shell/forms/frm_about.h"

namespace tarvex {

frmAbout::frmAbout(Editor& ed) : Form("frmAbout"), ed(ed) {
    Add(picAbout, "picAbout");
    Add(picOK, "picOK");
}

}  // namespace tarvex
