#pragma once
// The load of the mission window: its picture, and the lists and combos that come from the
// reference database.
namespace tarvex {

class Editor;

// Every step runs even when one before it failed: a missing picture or an unreadable table
// leaves that control empty and the window still comes up.
void LoadFrmMission(Editor& ed);

}  // namespace tarvex
