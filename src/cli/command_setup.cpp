#include "cli/command_setup.h"

#include <ostream>

#include "cli/install_folders.h"
#include "cli/mission_session.h"
#include "common/text.h"
#include "refdata/reference_database.h"

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
    // A file that isn't the reference database is never opened for writing.
    if (!IsReferenceDatabaseFile(folders.database, error)) {
        err << "tarvex-mis: " << error << "\n";
        return nullptr;
    }
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
        err << Headline(in, inPath, load.report) << "\n" << Indented(load.report, "    ");
        exitCode = kExitLoadFailed;
        return nullptr;
    }
    return editor;
}

std::string Headline(const std::string& shown, const std::string& path, const std::string& report) {
    size_t start = 0;
    while (start < report.size()) {
        size_t end = report.find('\n', start);
        if (end == std::string::npos) end = report.size();
        std::string line = report.substr(start, end - start);
        start = end + 1;
        if (line.rfind(path, 0) != 0) continue;
        // "<path> is a folder, not a mission file Error [75]"
        const size_t error = line.rfind(" Error [");
        if (error != std::string::npos) line.erase(error);
        return shown + line.substr(path.size());
    }
    return shown + ": " + FirstLine(report);
}

bool IsMissionName(const std::string& name, std::ostream& err) {
    if (EndsWithText(name, ".mis")) return true;
    err << "tarvex-mis: " << name
        << ": a mission file's name must end in .mis (its export takes the same name ending in "
           "txt)\n";
    return false;
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
