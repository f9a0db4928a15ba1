#pragma once
// The start of a run, in its fixed order: the second-copy test, the settings, the splash, then
// the main window's load up to the mission named on the command line.
#include <string>

namespace tarvex {

class Editor;

// The one entry of the desktop and the command-line tool. Runs the splash's load; with
// skipSplash the main window follows at once, otherwise the splash stays up with Timer1
// running, and its timer or a click on picSplash loads the main window. False when the
// program must end now (a declined second copy, no splash picture, no database); a failure
// after the splash, when the main window loads on the timer, sets shell.Ended and calls
// shell.OnProgramEnd instead.
bool StartProgram(Editor& ed, const std::string& commandLine, bool skipSplash);

// The pieces, in their order.
// False when another copy holds this mission and the user declined a second one.
bool CheckSecondCopy(Editor& ed, const std::string& commandLine);
// The load of frmSplash: second copy, settings, the picture, the timer. False to end.
bool LoadSplash(Editor& ed, const std::string& commandLine);
// Timer1 or a click on picSplash, whichever comes first: stops the timer, loads the main
// window and closes the splash. False when the program ended.
bool EndSplash(Editor& ed);
// The load of MDIMissionED. False when the program must end.
bool LoadMainWindow(Editor& ed);

// Opens a mission named from outside (the command line, a file dropped on the tabs). Only a
// name ending in ".MIS", in any case, is opened; anything else is ignored.
void OpenFileFromCommand(Editor& ed, const std::string& path);

// The splash's timer or a click on its picture, whichever comes first, ends it.
void Timer1_Timer(Editor& ed);
void picSplash_Click(Editor& ed);

}  // namespace tarvex
