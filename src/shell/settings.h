#pragma once
// The remembered folders and options: read once at start, written back at exit.
#include <string>

#include "shell/setting_values.h"

namespace tarvex {

class Editor;

// Fills the folders, the options, DefName and OldDecimal. Without "Path" this is the first
// run: the folders come from their defaults and the registry, the options from the first-run
// values. Changes the current folder to the simulator's when there is one.
void ReadSettings(Editor& ed);

// Writes the folders, the options, the window position and the recent files. Once the main
// window is up, the tab on show becomes the tab of the next start.
void SaveSettings(Editor& ed);

// Makes the folder the current one; false (and nothing changed) when that isn't possible.
bool ChangeCurrentFolder(const std::string& folder);

// The defaults of the database file and the map folder, under the folder current now.
std::string DefaultDatabasePath();
std::string DefaultMapPath();

}  // namespace tarvex
