#pragma once
// The empty mission: File New, the first step of every open, and the state at start-up.
namespace tarvex {

class Editor;
struct Mission;

// Empties the lists, puts the summary defaults in, resets the scalars and the arrays, and
// shows the current tab again.
void ResetMission(Editor& ed);

// The defaults of a new mission in the Summary tab's controls.
void SetSummaryDefaults(Editor& ed);

// The array part of a reset, ending in the controls' start rows and the current tab.
void ResetDocumentArrays(Editor& ed);

// A pilot slot without a pilot: no name, 255 in the values a selection fills in, no marks.
void ClearPilotSlot(Mission& doc, int group, int pilot);

// Enabled states of the group editor, the pilot editor and the pilot list.
void EnableGroupControls(Editor& ed, bool on);
void EnablePilotControls(Editor& ed, bool on);
void EnablePilotList(Editor& ed, bool on);

// btnSetWaypoints follows `on` only while there is a group and the highest path in use has
// a waypoint; otherwise it is disabled.
void UpdateSetWaypointsButton(Editor& ed, bool on);

}  // namespace tarvex
