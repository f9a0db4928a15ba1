#pragma once
// Taking waypoints out of a path: the selected one, or all of a path, which keeps its Start
// and End airfields, its group and its place in the group's paths.
namespace tarvex {

class Editor;

// The selected waypoint goes; the points behind it move down one slot, with their altitude,
// speed and flags, while names and tips stay in their slots. The rows are not renumbered.
void DeleteSelectedPoint(Editor& ed);
// Path `path` is left with its Start and End points only.
void ClearPath(Editor& ed, int path);

void btnClrPoint_MouseDown(Editor& ed, int button, int shift, float x, float y);
void btnClrPoint_Click(Editor& ed);
// The Edit menu: Delete, Clear Points (the current path) and Clear Map (every path in use).
void mnuDel_Click(Editor& ed);
void mnuClrPoints_Click(Editor& ed);
void mnuClrMap_Click(Editor& ed);

}  // namespace tarvex
