#include "cli/install_folders.h"

#include <filesystem>
#include <system_error>

#include "common/paths.h"
#include "platform/account_registry.h"
#include "platform/ini_settings_store.h"
#include "platform/install_folder.h"
#include "refdata/reference_database.h"
#include "shell/settings.h"

namespace tarvex::cli {

namespace fs = std::filesystem;

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

    // Before the editor's first run has stored "Path", it takes the simulator's folder from
    // the registry, as this does.
    const std::string sim = AccountRegistry().ReadRegistryValue(RegistryRoot::LocalMachine,
                                                                kSimulatorRegistryKey, "path");
    if (!sim.empty()) folders.simFolder = AbsoluteFolder(sim);

    const IniSettingsStore settings;
    auto take = [&](const char* key, std::string& target) {
        const auto value = settings.Get(kSettingsApp, kSettingsSection, key);
        if (value && !value->empty()) target = *value;
    };
    take("Sortak DB", folders.database);
    take("Path", folders.simFolder);
    take("Sortak Map", folders.mapFolder);
    return folders;
}

}  // namespace tarvex::cli
