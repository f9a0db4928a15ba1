#pragma once
// The list of recent missions: four entries in the settings, newest first, shown as the
// entries mnudummy(1..4) of the File menu. An entry is a bare file name for a mission of the
// simulator's missions folder, a full path otherwise.
#include <string>

namespace tarvex {

class Editor;

// Reads "File 1" to "File 4" and shows them.
void LoadRecentFiles(Editor& ed);
void SaveRecentFiles(Editor& ed);

// Puts the name at the top; a name already listed moves there instead of standing twice, and
// the oldest falls off the end.
void AddRecentFile(Editor& ed, const std::string& name);

// Gives mnudummy(k) entry k, hidden when it is empty; the separator appears with the first
// entry and stays.
void ShowRecentFiles(Editor& ed);

// After a load or a save: a mission of the missions folder goes on the list by its title,
// any other by its full path.
void RememberMission(Editor& ed);

// The click on mnudummy(k): opens that mission in place of the one in memory.
void OpenRecentFile(Editor& ed, int k);

void mnudummy_Click(Editor& ed, int k);

}  // namespace tarvex
