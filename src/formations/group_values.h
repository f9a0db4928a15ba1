#pragma once
// The values of the selected group: suspended, directive and takeoff flag.
namespace tarvex {

class Editor;

void chkSuspend_Click(Editor& ed);
void chkSuspend_MouseDown(Editor& ed, int button, int shift, float x, float y);
void cmbDirective_Click(Editor& ed);
// The flag also decides which airfield controls apply to the group.
void cmbTakeoffFlag_Click(Editor& ed);

}  // namespace tarvex
