#pragma once
// The filter of cmbMovingType by allegiance and family: two rows of option buttons, the last
// button of each ("List All") without a condition.
namespace tarvex {

class Editor;

void optAllegiance_Click(Editor& ed, int index);
void OptFamily_Click(Editor& ed, int index);
void optAllegiance_MouseDown(Editor& ed, int index, int button, int shift, float x, float y);
void OptFamily_MouseDown(Editor& ed, int index, int button, int shift, float x, float y);

// Fills cmbMovingType with the aircraft of allegiance row a and family row f (3: any), keeps
// the SELECT in ACQuery for frmNewRecord, and shows the current pilot's aircraft if listed.
void FilterAircraftList(Editor& ed, int allegianceIndex, int familyIndex);

}  // namespace tarvex
