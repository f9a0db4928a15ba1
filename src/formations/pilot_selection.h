#pragma once
// Selecting a pilot in lstPilotName: its values come up in the combos, and a value never set
// takes what the combo shows.
#include <cstdint>

namespace tarvex {

class ComboBox;
class Editor;

void lstPilotName_Click(Editor& ed);
// A press on a row plays the click sound.
void lstPilotName_MouseDown(Editor& ed, int button, int shift, float x, float y);
// A selection of several pilots can't take the player mark.
void lstPilotName_MouseUp(Editor& ed, int button, int shift, float x, float y);

// value is the array element: 255 (never set) takes the combo's row, if it has one; any other
// value becomes the combo's row.
void ShowCombo(ComboBox& combo, std::uint8_t& value);

}  // namespace tarvex
