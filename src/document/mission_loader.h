#pragma once
// Reading a mission file into the document: File Open's dialog and the load itself.
namespace tarvex {

class Editor;

// The open dialog over the simulator's missions folder. 0 when a file was chosen (MissionPath
// and MissionFile then name it), -1 when cancelled or when the dialog failed.
int ChooseMissionToOpen(Editor& ed);

// Loads MissionPath into a document fresh from ResetMission, then rebuilds the tabs. Any
// failure ends the load with the load report; what was read until then stays.
void LoadMission(Editor& ed);

}  // namespace tarvex
