#include "shell/forms/frm_splash.h"

#include <string>

namespace tarvex {

frmSplash::frmSplash() : Form("frmSplash") {
    // The picture over the whole width, the program's name, author and version below it.
    Move(0, 0, 6000, 4800);
    Add(NAMED(picSplash), Self(), {0, 0, 6000, 4000});
    // Started by the splash's load.
    Add(NAMED(Timer1));
    Timer1.SetEnabled(false);
    Timer1.SetInterval(1000);
    Add(NAMED(lblVersion), Self(), {3960, 4140, 1920, kLabelHeight})
        .SetCaption("Version " + std::to_string(TARVEX_VERSION_MAJOR) + "." +
                    std::to_string(TARVEX_VERSION_MINOR) + "." +
                    std::to_string(TARVEX_VERSION_PATCH));
    Add(NAMED(lblProductName), Self(), {120, 4140, 3720, kLabelHeight})
        .SetCaption("Tarvex Mission Editor");
    Add(NAMED(lblAuthor), Self(), {120, 4440, 3720, kLabelHeight}).SetCaption("By Bram Oskett");
}

}  // namespace tarvex
