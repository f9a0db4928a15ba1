#pragma once
// The layout lists of the Ground units tab: landscape layouts and airfield layouts.
#include <cstdint>

namespace tarvex {

class Editor;
class CommandButton;

// Fills cmbAirfieldLayout with the airfield layouts and lstGrnUnits with the landscape ones.
void FillLayoutLists(Editor& ed);

// Looks the layout of a list's item data up: `button` (the list's Delete) shows for a layout
// that didn't come with the database, and LayoutIsDefault and LayoutType take its values. A
// layout the database no longer has can't be deleted: the button hides, the values stay.
void CheckLayoutDeletable(Editor& ed, CommandButton& button, std::int32_t itemData);

// A press on a landscape layout: its Delete button, the tab refreshed. The list has selected
// the pressed row when the press is reported.
void lstGrnUnits_MouseDown(Editor& ed, int button, int shift, float x, float y);

}  // namespace tarvex
