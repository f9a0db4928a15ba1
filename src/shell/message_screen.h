#pragma once
// The small window that tells what a long operation is doing.
#include <string>

namespace tarvex {

class Editor;

// Shows the text in frmMsgScreen, centred on the main window, and lets pending events run so
// that it is painted before the work starts. The caller closes it.
void ShowMessageScreen(Editor& ed, const std::string& text);
void CloseMessageScreen(Editor& ed);

}  // namespace tarvex
