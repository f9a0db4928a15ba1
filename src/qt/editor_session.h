#pragma once
// One running editor on the desktop: the Editor on the given services and its windows.
#include <QString>
#include <QStringList>
#include <memory>

#include "app/command_line.h"
#include "shell/editor.h"

namespace tarvex::qt {

class EditorWindow;

class EditorSession {
  public:
    explicit EditorSession(Services services);
    ~EditorSession();

    Editor& ed() { return *editor_; }
    EditorWindow& window() { return *window_; }

    // The start of the program through the core's start-up; the command line may name a
    // mission to open. False when the program must end now.
    bool Start(const QString& commandLine, bool skipSplash);
    // Shows tab 0..3 as the View menu does; while the splash is up, the main window will come
    // up on it.
    void ShowTab(int tab);
    // Sets up the view a screenshot asks for; what stood in the way, empty when ready.
    std::string PrepareScene(const EditorCommandLine& line);
    // Saves a picture of the main window, or of the form of that name when one is given.
    bool SaveScreenshot(const QString& file, const QString& formName = QString());

  private:
    std::unique_ptr<Editor> editor_;
    std::unique_ptr<EditorWindow> window_;
};

}  // namespace tarvex::qt
