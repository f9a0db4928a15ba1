#pragma once
// The editor without a window: scripted desktop services and the start-up that fills the
// lists and combos, ending on the Summary tab as a start with no remembered tab does. Every
// box the program shows is kept, so that a command can print it.
#include <memory>
#include <string>

#include "platform/scripted_platform.h"
#include "shell/editor.h"

namespace tarvex {

struct EditorFolders {
    std::string database;   // absolute
    std::string simFolder;  // absolute, with a trailing separator
    std::string mapFolder;  // absolute, with a trailing separator
};

class HeadlessEditor {
  public:
    // An editor from MakeEditor, on scripted services.
    HeadlessEditor();
    HeadlessEditor(const HeadlessEditor&) = delete;
    HeadlessEditor& operator=(const HeadlessEditor&) = delete;
    ~HeadlessEditor();

    // Reads the settings made of the folders and the unit system, and loads the main window.
    // Changes the process's current folder to the simulator's. False, with the boxes shown
    // or the reason in `error`, when the database can't be used.
    bool Start(const EditorFolders& folders, bool metric, std::string& error);

    Editor& ed() { return *editor_; }
    ScriptedServices& services() { return services_; }
    ScriptedDialogs& dialogs() { return services_.dialogs; }

    // The boxes shown since the last call, forgotten once read.
    std::vector<MessageBoxRequest> TakeMessages();

  private:
    ScriptedServices services_;
    std::unique_ptr<Editor> editor_;
};

}  // namespace tarvex
