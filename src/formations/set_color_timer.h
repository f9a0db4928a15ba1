#pragma once
// tmrSetColor: a warning that stays red on the status strip for two seconds, and the blink of
// cmbDirective when Auto Update changed it.
#include <string>

namespace tarvex {

class Editor;

// Shows the text in red and, two seconds later, in the normal colour.
void ShowTimedWarning(Editor& ed, const std::string& text);
// Starts the blink of cmbDirective: four times red, at a tenth of a second each.
void StartDirectiveBlink(Editor& ed);

void tmrSetColor_Timer(Editor& ed);

}  // namespace tarvex
