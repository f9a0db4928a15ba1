#pragma once
// Deleting a group: the groups behind it move up one row with their values, their pilots and
// the paths they hold; the paths themselves stay.
namespace tarvex {

class Editor;

void btnDeleteGroup_Click(Editor& ed);
void btnDeleteGroup_MouseDown(Editor& ed, int button, int shift, float x, float y);

// Takes the pilots of `group` out: each group behind it takes the slots of the next.
void DeleteGroupPilots(Editor& ed, int group);

}  // namespace tarvex
