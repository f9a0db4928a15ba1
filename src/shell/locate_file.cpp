#include "shell/locate_file.h"

#include <filesystem>
#include <system_error>

#include "common/error.h"
#include "shell/editor.h"

namespace tarvex {

namespace {

constexpr long kExplorerDialog = 0x80000;

}  // namespace

std::string LocateFile(Editor& ed, const std::string& prompt, const std::string& caption,
                       const std::string& filter) {
    Dialogs& dialogs = ed.svc.dialogs;
    if (dialogs.MsgBox({prompt, caption, MsgButtons::YesNo, MsgIcon::Question}) != MsgAnswer::Yes)
        return {};
    FileDialogRequest request;
    request.title = "Locate Tarvex Folder";
    request.filter = filter;
    std::error_code error;
    const std::filesystem::path current = std::filesystem::current_path(error);
    if (!error) request.initDir = current.string();
    request.flags = kExplorerDialog;
    FileDialogResult choice;
    try {
        choice = dialogs.ShowOpen(request);
    } catch (const AppError&) {
        return {};
    }
    if (choice.cancelled || choice.fileTitle.empty()) return {};
    // The path up to the first occurrence of the file's name, so that it ends in a separator.
    const size_t at = choice.fileName.find(choice.fileTitle);
    return at == std::string::npos ? std::string() : choice.fileName.substr(0, at);
}

}  // namespace tarvex
