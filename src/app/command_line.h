#pragma once
// The desktop editor's command line: what the user asked for, read without touching the
// desktop, so that --help and --version answer even where no window can open.
#include <string>
#include <vector>

namespace tarvex {

// The exit status of a command line the program can't use.
inline constexpr int kUsageExitStatus = 64;

struct EditorCommandLine {
    enum class Action { Run, Help, Version, Refuse };
    Action action = Action::Run;
    // Why the command line was refused: one line, without the program's name.
    std::string problem;
    // --screenshot FILE: the program starts unattended, writes a picture and ends.
    std::string screenshot;
    int tab = -1;        // --tab N: the tab to show, 0..3
    std::string form;    // --form NAME: the window to picture instead of the main one
    int layoutRow = -1;  // --edit-layout ROW: the layout of the mission to open the editor on
    std::vector<std::string> files;  // the mission to open, as words of the command line
};

// Reads the arguments after the program's name.
EditorCommandLine ParseEditorCommandLine(const std::vector<std::string>& args);

// The text of --help and --version.
std::string EditorUsageText();
std::string EditorVersionText();

}  // namespace tarvex
