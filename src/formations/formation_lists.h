#pragma once
// What the handlers of the Formations tab share: the rows of the two lists, the pilot slots of
// a group, and the report of a failed lookup.
#include <vector>

namespace tarvex {

class AppError;
class Editor;
class ListBox;
struct Mission;

// Makes the row the list's current row, alone selected, as a click on it does; the list's
// click runs when that changed anything.
void SelectRow(ListBox& list, int row);

// The pilots of a group: the slots up to the first empty name.
int PilotCount(const Mission& doc, int group);
// All seven values of one slot into another.
void CopyPilotSlot(Mission& doc, int fromGroup, int fromPilot, int toGroup, int toPilot);

// A lookup in the reference database failed: a warning box with the error's number and text.
void ReportLookupFailure(Editor& ed, const AppError& error);

}  // namespace tarvex
