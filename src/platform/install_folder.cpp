#include "platform/install_folder.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

#ifndef TARVEX_DEFAULT_INSTALL
#define TARVEX_DEFAULT_INSTALL "default-install"
#endif
#ifndef TARVEX_DATA_FROM_PROGRAM
#define TARVEX_DATA_FROM_PROGRAM "../share/tarvex"
#endif

namespace tarvex {

namespace fs = std::filesystem;

std::string InstalledDataFolder(const std::string& programFolder) {
    return (fs::path(programFolder) / TARVEX_DATA_FROM_PROGRAM).lexically_normal().string();
}

std::string DefaultInstallFolder() {
    if (const char* home = std::getenv("TARVEX_HOME"); home && *home) return home;
    std::error_code error;
    const fs::path program = fs::read_symlink("/proc/self/exe", error);
    if (!error) {
        const std::string installed = InstalledDataFolder(program.parent_path().string());
        if (fs::is_directory(fs::path(installed) / "Sortak", error)) return installed;
    }
    return TARVEX_DEFAULT_INSTALL;
}

}  // namespace tarvex
