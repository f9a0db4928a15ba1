#pragma once
// The fields of the selected waypoints: coordinates, altitude, speed, the three flags, name
// and tip. Altitude, speed and flags go to every selected row of ActivePointList.
namespace tarvex {

class Editor;

void txtPoint_Change(Editor& ed);
void txtAlt_Change(Editor& ed);
void txtSpeed_Change(Editor& ed);
void chkWPOptions_MouseDown(Editor& ed, int index, int button, int shift, float x, float y);
void chkWPOptions_MouseUp(Editor& ed, int index, int button, int shift, float x, float y);
void btnWPNames_Click(Editor& ed);
void btnWPTips_Click(Editor& ed);

}  // namespace tarvex
