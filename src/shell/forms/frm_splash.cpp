#include "shell/forms/frm_splash.h"

#include <string>

namespace tarvex {

frmSplash::frmSplash() : Form("frmSplash") {
    Add(picSplash, "picSplash");
    // Started by the splash's load.
    Add(Timer1, "Timer1");
    Timer1.SetEnabled(false);
    Timer1.SetInterval(1000);
    Add(lblVersion, "lblVersion")
        .SetCaption("Version " + std::to_string(TARVEX_VERSION_MAJOR) + "." +
                    std::to_string(TARVEX_VERSION_MINOR) + "." +
                    std::to_string(TARVEX_VERSION_PATCH));
    Add(lblProductName, "lblProductName").SetCaption("Tarvex Mission Editor");
    Add(lblAuthor, "lblAuthor").SetCaption("By Bram Oskett");
}

}  // namespace tarvex
