#include "cli/command_setup.h"

#include <ostream>

#include "cli/install_folders.h"
#include "cli/mission_session.h"

namespace tarvex::cli {

EditorFolders ResolveFolders(const CommonOptions& options) {
    const InstallFolders defaults = FindInstallFolders();
    EditorFolders folders;
    folders.database =
        AbsolutePath(options.database.empty() ? defaults.database : options.database);
    folders.simFolder =
        AbsoluteFolder(options.simFolder.empty() ? defaults.simFolder : options.simFolder);
    folders.mapFolder = AbsoluteFolder(defaults.mapFolder);
    return folders;
}

std::unique_ptr<HeadlessEditor> StartEditor(const CommonOptions& options, bool scratch,
                                            ScratchDatabase& copy, std::ostream& err) {
    EditorFolders folders = ResolveFolders(options);
    std::string error;
    if (scratch) {
        if (!copy.CopyFrom(folders.database, error)) {
            err << "tarvex-mis: " << error << "\n";
            return nullptr;
        }
        folders.database = copy.Path();
    }
    auto editor = std::make_unique<HeadlessEditor>();
    if (!editor->Start(folders, !options.imperial, error)) {
        err << "tarvex-mis: " << error << "\n";
        return nullptr;
    }
    return editor;
}

std::unique_ptr<HeadlessEditor> StartWithMission(const CommonOptions& options, bool scratch,
                                                 ScratchDatabase& copy, const std::string& in,
                                                 std::ostream& err, int& exitCode) {
    const std::string inPath = AbsolutePath(in);
    auto editor = StartEditor(options, scratch, copy, err);
    if (!editor) {
        exitCode = kExitNoDatabase;
        return nullptr;
    }
    const Outcome load = OpenMission(*editor, inPath);
    if (!load.ok) {
        err << in << ": " << load.report << "\n";
        exitCode = kExitLoadFailed;
        return nullptr;
    }
    return editor;
}

std::string Indented(const std::string& text, const std::string& indent) {
    std::string out;
    size_t start = 0;
    while (start < text.size()) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        std::string line = text.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') line.pop_back();
        out += indent + line + "\n";
        start = end + 1;
    }
    return out;
}

}  // namespace tarvex::cli
