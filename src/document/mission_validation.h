#pragma once
// The check before a save: a mission that the simulator couldn't fly isn't written.
namespace tarvex {

class Editor;

// True when the mission may be saved. Otherwise every fault found is listed in one box
// ("Unable to Save Mission File") and the answer is false.
bool ValidateMission(Editor& ed);

}  // namespace tarvex
