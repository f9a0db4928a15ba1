#pragma once
// The layout lists of the Ground units tab: landscape layouts and airfield layouts.
namespace tarvex {

class Editor;

// Fills cmbAirfieldLayout with the airfield layouts and lstGrnUnits with the landscape ones.
void FillLayoutLists(Editor& ed);

}  // namespace tarvex
