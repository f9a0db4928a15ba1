#pragma once
// What an unattended run pictures: the tab, the layout editor and the window the command line
// asks for, set up through the forms as a designer's clicks would.
#include <string>
#include <string_view>

#include "app/command_line.h"

namespace tarvex {

class Editor;
class Form;

// The form of that name among the editor's windows; nullptr when there is none.
Form* FindForm(Editor& ed, std::string_view name);

// Whether the mission the command line named (if any) is the one open now: a named file that
// isn't a mission, or one whose load failed, leaves no mission path behind.
bool NamedMissionLoaded(const Editor& ed, const EditorCommandLine& line);

// The tab of --tab: before the main window is up (the splash is showing), the one it comes up
// on, in place of the stored one; after, the one shown now.
void ApplyStartTab(Editor& ed, int tab);

// Shows the tab, opens the layout editor on the row, shows the form. Returns what stood in
// the way, empty when the picture can be taken.
std::string PrepareScene(Editor& ed, const EditorCommandLine& line);

}  // namespace tarvex
