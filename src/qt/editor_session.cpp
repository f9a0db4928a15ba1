#include "qt/editor_session.h"

#include <QApplication>
#include <QPixmap>

#include "app/make_editor.h"
#include "maps/tab_selection.h"
#include "qt/binding.h"
#include "qt/editor_window.h"
#include "shell/error_box.h"
#include "shell/startup.h"

namespace tarvex::qt {

EditorSession::EditorSession(Services services)
    : editor_(MakeEditor(services)), window_(std::make_unique<EditorWindow>(*editor_)) {
    // A failure that escapes the handlers ends in the program's error box.
    SetFailureReport([this](const std::exception& error) {
        if (editor_) ReportUnexpectedError(*editor_, error);
    });
}

EditorSession::~EditorSession() {
    SetFailureReport(nullptr);
    // The widgets listen to the models: they go before the Editor that owns them.
    window_.reset();
    editor_.reset();
}

bool EditorSession::Start(const QString& commandLine, bool skipSplash) {
    bool started = false;
    Guarded([&] { started = StartProgram(*editor_, commandLine.toStdString(), skipSplash); });
    return started && !editor_->shell.Ended;
}

void EditorSession::ShowTab(int tab) {
    Guarded([&] { SelectTab(*editor_, tab); });
}

bool EditorSession::SaveScreenshot(const QString& file) {
    QApplication::processEvents();
    return window_->grab().save(file, "PNG");
}

}  // namespace tarvex::qt
