#pragma once
// Changing what the tab control shows, and the read-only labels of the Summary tab.
namespace tarvex {

class Editor;

// The one way of changing the tab on show: what each tab needs is prepared here.
void SelectTab(Editor& ed, int tab);

// Refreshes the player's airfield, aircraft and map on the Summary tab.
void ShowSummaryTab(Editor& ed);

}  // namespace tarvex
