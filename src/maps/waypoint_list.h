#pragma once
// The list of waypoints of CurrentPath: row r stands for slot r + 1, its text the number, ". ",
// the latitude, a blank and the longitude (01. N51 23.45 E01 22.33). Rows are reordered by
// dragging, and a range is selected with Shift in lstPointsExtended, which stands in for
// lstPoints while the designer works on the range.
#include <functional>
#include <string>

namespace tarvex {

class Editor;

// The text of the row of waypoint `number`.
std::string PointRowText(int number, const std::string& lat, const std::string& lon);
// A row's text without its number: the coordinates.
std::string PointRowCoordinates(const std::string& rowText);

// Every selected row of ActivePointList, in order.
void ForEachSelectedPointRow(Editor& ed, const std::function<void(int row)>& action);

void lstPoints_Click(Editor& ed);
void lstPoints_MouseDown(Editor& ed, int button, int shift, float x, float y);
void lstPoints_MouseMove(Editor& ed, int button, int shift, float x, float y);
void lstPoints_MouseUp(Editor& ed, int button, int shift, float x, float y);
void lstPointsExtended_MouseDown(Editor& ed, int button, int shift, float x, float y);

// The dragged row follows the pointer: its position changes place with the row's now under it.
void SwapDraggedRow(Editor& ed);
// Back from lstPointsExtended to lstPoints, on the row that had the focus.
void LeaveExtendedSelection(Editor& ed);
// Every row takes its number again from its place.
void RenumberPointRows(Editor& ed);

}  // namespace tarvex
