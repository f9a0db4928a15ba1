#pragma once
// The status strip of the main window: the one place for transient messages.
#include <string>

#include "shell/controls/control.h"

namespace tarvex {

class Editor;

// The normal colour of status text (the desktop's button text) and the warning colour.
inline constexpr Colour kStatusNormal = kSystemButtonText;
inline constexpr Colour kStatusWarning = 255;

// Clears the strip and prints the text at its start in the colour. An empty text in the
// normal colour clears the strip.
void ShowStatus(Editor& ed, const std::string& text, Colour colour = kStatusNormal);

}  // namespace tarvex
