#include "shell/forms/frm_about.h"

namespace tarvex {

frmAbout::frmAbout() : Form("frmAbout") {
    // The picture, and under its right-hand corner the button that closes the box.
    Move(0, 0, 4320, 3840);
    Add(NAMED(picAbout), Self(), {0, 0, 4320, 3240});
    Add(NAMED(picOK), Self(), {3120, 3360, 1080, 360});
}

}  // namespace tarvex
