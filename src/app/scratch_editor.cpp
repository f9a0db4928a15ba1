#include "app/scratch_editor.h"

#include <sqlite3.h>
#include <unistd.h>

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

namespace tarvex {

namespace fs = std::filesystem;

TempFolder::TempFolder(const std::string& purpose) {
    std::error_code error;
    fs::path base = fs::temp_directory_path(error);
    if (error) base = "/tmp";
    std::string pattern = (base / ("tarvex-" + purpose + "-XXXXXX")).string();
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("cannot make a temporary folder in " + base.string());
    path_ = pattern;
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void BuildReferenceDatabase(const fs::path& file, const std::vector<fs::path>& scripts) {
    sqlite3* handle = nullptr;
    if (sqlite3_open(file.string().c_str(), &handle) != SQLITE_OK) {
        sqlite3_close(handle);
        throw std::runtime_error("cannot create the database " + file.string());
    }
    std::string failure;
    for (const fs::path& script : scripts) {
        std::ifstream in(script, std::ios::binary);
        if (!in) {
            failure = "cannot read " + script.string();
            break;
        }
        const std::string sql((std::istreambuf_iterator<char>(in)),
                              std::istreambuf_iterator<char>());
        char* message = nullptr;
        if (sqlite3_exec(handle, sql.c_str(), nullptr, nullptr, &message) != SQLITE_OK) {
            failure = script.string() + ": " + (message ? message : "unknown error");
            sqlite3_free(message);
            break;
        }
    }
    sqlite3_close(handle);
    if (!failure.empty()) throw std::runtime_error(failure);
}

ScratchEditor::ScratchEditor(const ScratchOptions& options, const std::string& purpose)
    : folder_(purpose) {
    fs::create_directories(Folder() / "sim" / "missions");
    if (!options.scripts.empty())
        BuildReferenceDatabase(DatabasePath(), options.scripts);
    else
        fs::copy_file(options.database, DatabasePath());
    EditorFolders folders;
    folders.database = DatabasePath().string();
    folders.simFolder = SimFolder().string();
    folders.mapFolder = (options.mapFolder / "").string();
    std::string error;
    if (!Start(folders, options.metric, error))
        throw std::runtime_error("the editor did not start: " + error);
}

}  // namespace tarvex
