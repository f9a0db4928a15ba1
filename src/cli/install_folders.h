#pragma once
// The folders a command starts from when the user names none: those of the desktop editor's
// settings when it has run on this account, else those of the default installation.
#include <string>

namespace tarvex::cli {

struct InstallFolders {
    std::string database;   // the reference database file
    std::string simFolder;  // the simulator's folder, ending in a separator
    std::string mapFolder;  // the map bitmaps, ending in a separator
};

// The editor's "Sortak DB", "Path" and "Sortak Map" where its settings file holds them; for
// what it doesn't, the simulator's folder of the registry (as the editor's first run takes it)
// and the default installation's.
InstallFolders FindInstallFolders();

// The path made absolute and with a trailing separator (for folders); the process's current
// folder changes during a run, so every path is fixed before it does.
std::string AbsolutePath(const std::string& path);
std::string AbsoluteFolder(const std::string& path);

}  // namespace tarvex::cli
