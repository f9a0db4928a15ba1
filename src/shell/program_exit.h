#pragma once
// The end of a run: the question at the close box, and what is stored and closed on the way
// out.
namespace tarvex {

class Editor;

// How the main window is being closed: by its close box or system menu, by the program's own
// code (File, Exit), by the desktop's session ending, or by the task manager.
enum class UnloadMode { FormControlMenu = 0, FormCode = 1, AppWindows = 2, TaskManager = 3 };

// True to stay: only a close by the close box or system menu asks.
bool ConfirmExit(Editor& ed, UnloadMode mode);

// The closing of the main window. False when the user chose to stay; otherwise the settings
// are stored, the database closed and the program ended.
bool CloseMainWindow(Editor& ed, UnloadMode mode);

// File, Exit: closes without the question.
void mnuExit_Click(Editor& ed);

// Marks the run as ended and tells the desktop.
void EndProgram(Editor& ed);

}  // namespace tarvex
