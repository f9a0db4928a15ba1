#include "cli/install_folders.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

#include "cli/editor_settings_file.h"
#include "common/paths.h"
#include "refdata/reference_database.h"
#include "shell/settings.h"

#ifndef TARVEX_DEFAULT_INSTALL
#define TARVEX_DEFAULT_INSTALL "default-install"
#endif

namespace tarvex::cli {

namespace fs = std::filesystem;

std::string DefaultInstallFolder() {
    if (const char* home = std::getenv("TARVEX_HOME"); home && *home) return home;
    return TARVEX_DEFAULT_INSTALL;
}

std::string AbsolutePath(const std::string& path) {
    if (path.empty()) return path;
    std::error_code error;
    const fs::path absolute = fs::absolute(NativePath(path), error);
    return error ? path : absolute.lexically_normal().string();
}

std::string AbsoluteFolder(const std::string& path) {
    std::string folder = AbsolutePath(path);
    if (!folder.empty() && !IsPathSeparator(folder.back())) folder += kPathSeparator;
    return folder;
}

InstallFolders FindInstallFolders() {
    const std::string home = DefaultInstallFolder();
    InstallFolders folders;
    folders.database =
        JoinPath(JoinPath(JoinPath(home, "Sortak"), "Sortak Data"), kDatabaseFileName);
    folders.simFolder = JoinPath(home, "Tarvex") + kPathSeparator;
    folders.mapFolder = JoinPath(JoinPath(home, "Sortak"), "Sortak Maps") + kPathSeparator;

    const std::string file = EditorSettingsFile(kSettingsApp);
    std::ifstream in(file, std::ios::binary);
    if (file.empty() || !in) return folders;
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    auto take = [&](const char* key, std::string& target) {
        const auto value = IniValue(text, kSettingsSection, key);
        if (value && !value->empty()) target = *value;
    };
    take("Sortak DB", folders.database);
    take("Path", folders.simFolder);
    take("Sortak Map", folders.mapFolder);
    return folders;
}

}  // namespace tarvex::cli
