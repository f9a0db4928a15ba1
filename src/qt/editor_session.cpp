#include "qt/editor_session.h"

#include <QApplication>
#include <QPixmap>

#include "app/make_editor.h"
#include "app/screenshot_scene.h"
#include "qt/binding.h"
#include "qt/editor_window.h"
#include "qt/form_view.h"
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
    Guarded([&] { ApplyStartTab(*editor_, tab); });
}

std::string EditorSession::PrepareScene(const EditorCommandLine& line) {
    std::string problem;
    Guarded([&] { problem = tarvex::PrepareScene(*editor_, line); });
    return problem;
}

bool EditorSession::SaveScreenshot(const QString& file, const QString& formName) {
    QApplication::processEvents();
    QWidget* shot = window_.get();
    if (!formName.isEmpty()) {
        // The two forms inside the main window are pictured with it.
        const Form* form = FindForm(*editor_, formName.toStdString());
        if (FormView* view = form ? window_->FormWindow(form->Name()) : nullptr) shot = view;
    }
    return shot->grab().save(file, "PNG");
}

}  // namespace tarvex::qt
