#pragma once
// Deleting a pilot: the pilots behind it move up one slot, the player mark with them.
namespace tarvex {

class Editor;

void btnDeletePilot_Click(Editor& ed);
void btnDeletePilot_MouseDown(Editor& ed, int button, int shift, float x, float y);

// Takes pilot `pilot` out of the group's slots.
void DeletePilotRow(Editor& ed, int group, int pilot);

}  // namespace tarvex
