#pragma once
// Changing what the tab control shows, the menu entries that follow the tab, and the
// read-only labels of the Summary tab.
#include "maps/tab_numbers.h"

namespace tarvex {

class Editor;

// The one way of changing the tab on show: brings SSTab1 to `tab` when it isn't there yet,
// prepares what the tab needs (the Ground units and Waypoints tabs load their map again, so
// the projection always belongs to the map on show), and moves the View check mark to it.
// Tab changes by the user reach it from the tab strip's press, not from SSTab1.Click.
void SelectTab(Editor& ed, int tab);

// The check mark of the View entry of tab 0..3; any other number does nothing.
void SetTabMenuChecked(Editor& ed, int tab, bool state);

// Refreshes the player's airfield, aircraft and map on the Summary tab.
void ShowSummaryTab(Editor& ed);

}  // namespace tarvex
