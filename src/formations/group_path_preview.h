#pragma once
// The right button held on a row of lstGroupName shows the group's first path on
// mapWayPoints beside the pointer, without leaving the Formations tab.
namespace tarvex {

class Editor;

// The press on `row` at x (map units from the list's left): selects the row and shows the
// map, if the group has a path.
void PreviewGroupPath(Editor& ed, int row, float x);
// The release: the map goes back where it was, hidden.
void EndGroupPathPreview(Editor& ed);

}  // namespace tarvex
