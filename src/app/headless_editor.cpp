#include "app/headless_editor.h"

#include "app/make_editor.h"

#include <filesystem>
#include <system_error>

#include "shell/settings.h"
#include "shell/startup.h"

namespace tarvex {

HeadlessEditor::HeadlessEditor() : editor_(MakeEditor(services_.Bind())) {}

HeadlessEditor::~HeadlessEditor() {
    if (editor_) editor_->db.CloseReferenceDatabase();
}

bool HeadlessEditor::Start(const EditorFolders& folders, bool metric, std::string& error) {
    std::error_code fsError;
    if (!std::filesystem::is_regular_file(folders.database, fsError)) {
        error = "database not found: " + folders.database;
        return false;
    }
    auto put = [&](const char* key, const std::string& value) {
        services_.settings.values[{kSettingsApp, kSettingsSection, key}] = value;
    };
    // A later run of the editor: "Path" is there, "Last Tab" isn't, so the Summary shows.
    put("Path", folders.simFolder);
    put("Sortak DB", folders.database);
    put("Sortak Map", folders.mapFolder);
    put("Measurement", metric ? "True" : "False");
    put("Sound On", "False");

    Editor& ed = *editor_;
    ReadSettings(ed);
    // The splash is left out: it only shows a picture, and a missing one would ask a question.
    if (!LoadMainWindow(ed)) {
        error.clear();
        for (const MessageBoxRequest& box : TakeMessages())
            error += (error.empty() ? "" : "\n") + box.title + ": " + box.text;
        if (error.empty()) error = "cannot open the database " + folders.database;
        return false;
    }
    services_.dialogs.ClearRecord();
    return true;
}

std::vector<MessageBoxRequest> HeadlessEditor::TakeMessages() {
    std::vector<MessageBoxRequest> shown;
    shown.swap(services_.dialogs.messages);
    return shown;
}

}  // namespace tarvex
