#pragma once
// The slots of a path as the waypoint editor moves them about: a point's position is its
// coordinate text with the map position cached beside it, and those four travel together,
// while altitude, speed, flags, name and tip stay in their slots.
#include <string>

#include "maps/waypoint_state.h"

namespace tarvex {

class Editor;
struct Mission;

// The highest End slot: 15 waypoints in slots 1..15 and the End point in slot 16.
inline constexpr int kFullPathPointCount = 16;
// Item data of a lstPoints row added as a flyby of an airfield, drawn white; other rows have
// 0. The mark lasts as long as the row: the document doesn't keep it.
inline constexpr int kFlybyRow = 1;
// The takeoff flags of a group: rows of cmbTakeoffFlag (TakesOff and Lands tell them apart).
inline constexpr int kTakeoffOnly = 1;
inline constexpr int kLandOnly = 2;
inline constexpr int kTakeoffAndLand = 3;

// Position (text and map position) of slot `from` into slot `to` of `path`.
void CopySlotPosition(Mission& doc, int path, int from, int to);
void SwapSlotPositions(Mission& doc, int path, int a, int b);
SlotPosition SlotPositionOf(const Mission& doc, int path, int slot);
void PutSlotPosition(Mission& doc, int path, int slot, const SlotPosition& position);

// The message of a path that holds 15 waypoints already.
void ShowPathFull(Editor& ed);

// The position of airfield `row` (LoadAirfieldPoint) into the coordinate text of `slot` of
// `path`. An airfield the database can't give is reported in a box, and the slot keeps its
// text; the answer says whether the slot took the airfield.
bool LoadAirfieldIntoSlot(Editor& ed, int row, int path, int slot);

}  // namespace tarvex
