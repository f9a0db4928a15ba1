#include "shell/status_strip.h"

#include "shell/editor.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

void ShowStatus(Editor& ed, const std::string& text, Colour colour) {
    PictureSurface& strip = ed.MDIMissionED.Picture1;
    strip.Cls();
    strip.SetForeColor(colour);
    if (!text.empty()) strip.Print(text);
}

}  // namespace tarvex
