#pragma once
// Saving the mission: the save dialog, the writing of the whole file with its export, and
// the File Save and Save As commands.
#include <string>

namespace tarvex {

class Editor;

// The save dialog, starting in the simulator's missions folder with MissionFile. 0 when a
// name was chosen: `path` takes the full path and MissionFile the file's name, with ".mis"
// added when the name doesn't end in it, so that the export beside the mission never takes
// the mission's own name. -1 when the user cancelled (nothing is said) or the dialog failed
// (the error box is shown).
int ChooseMissionToSave(Editor& ed, std::string& path);

// Writes MissionPath whole, then the spreadsheet export beside it. Each file replaces the
// one before only once it is complete: a failure shows the save report and leaves the files
// on disk as they were.
void SaveMission(Editor& ed);

// The text SaveMission would write, as the file's Windows-1252 bytes, without writing
// anything. Raises the error of a failing writer step, with StepText and StepDetail set.
std::string ComposeMissionText(Editor& ed);

// File Save: asks for a name only when the mission has none yet.
void FileSave(Editor& ed);
// File Save As: always asks for a name.
void FileSaveAs(Editor& ed);

}  // namespace tarvex
