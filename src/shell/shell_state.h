#pragma once
// The life of one run: whether this copy is a second one, how far start-up got, the command
// line waiting for the main window, the handles of the standing sounds, and the hook through
// which the desktop learns that the program has ended.
#include <functional>
#include <string>

#include "common/program_version.h"

namespace tarvex {

struct ShellState {
    // The program's title as the desktop knows it; a second copy changes it so that the search
    // for the first copy's window can't find this one.
    std::string AppTitle = kProgramTitle;
    bool SecondCopy = false;
    // "Path" was missing from the settings: nothing has been stored by an earlier run.
    bool FirstRun = false;

    // Handed to OpenFileFromCommand once the main window is up.
    std::string CommandLine;
    // The splash has handed over: the main window is loading or loaded.
    bool SplashEnded = false;
    bool MainWindowLoaded = false;
    // The program has ended (a declined second copy, a missing file, or the closing of the main
    // window). Nothing runs after this; the desktop leaves its event loop.
    bool Ended = false;
    std::function<void()> OnProgramEnd;

    // The standing sounds, loaded once by the main window's load; 0 until then.
    int sndCheckbox = 0;
    int sndClick = 0;
    int sndFlak = 0;
    int sndWhlHit = 0;

    // frmGUOffsets was open when the main window was minimised, and was hidden for it.
    bool OffsetsHiddenByMinimise = false;

    // The menu help watcher is attached once the main window is up; before that a highlighted
    // entry writes nothing. The help of the entry last reached by the mouse waits here for
    // tmrMenuHelp.
    bool MenuWatcherAttached = false;
    std::string MenuHelpText;
};

// Lowers a guard flag for the time of an operation and raises it again, also when the
// operation ends in an error.
class LoweredFlag {
  public:
    explicit LoweredFlag(bool& flag) : flag_(flag) { flag_ = false; }
    ~LoweredFlag() { flag_ = true; }
    LoweredFlag(const LoweredFlag&) = delete;
    LoweredFlag& operator=(const LoweredFlag&) = delete;

  private:
    bool& flag_;
};

}  // namespace tarvex
