#pragma once
// The values of the selected pilots: skill, level, damage and points go to every selected row
// of lstPilotName; the pilots of a group may all be named after the aircraft.
#include <string>

namespace tarvex {

class Editor;

void cmbSkill_Click(Editor& ed);
void cmbLevel_Click(Editor& ed);
void cmbDamage_Click(Editor& ed);
void chkPoints_MouseDown(Editor& ed, int button, int shift, float x, float y);
// The points flag is taken at the button's release, when the box shows its new value.
void chkPoints_MouseUp(Editor& ed, int button, int shift, float x, float y);
void chkPilotIsAC_MouseUp(Editor& ed, int button, int shift, float x, float y);

// An asterisk before and after the name of each selected pilot with points, none without.
void MarkPilotPoints(Editor& ed);
// The name with points marked (asterisks added where missing) or unmarked (removed where
// present). A name that would be left empty stays as it was: an empty name would end the
// group's pilots.
std::string PointsName(const std::string& name, bool points);

// Every pilot of CurrentGroup takes the name of the aircraft in cmbMovingType.
void NamePilotsAfterAC(Editor& ed);

}  // namespace tarvex
