#pragma once
// Lookups of the reference tables that fill working values and controls of the forms.
#include <cstdint>
#include <string>

namespace tarvex {

class Editor;

// The runway of airfield row `row` (Recnum row + 1): its position as two-decimal coordinate
// text, type, elevation, heading and id. A row that isn't there raises error 3021.
void LoadAirfieldPoint(Editor& ed, std::string& latText, std::string& lonText, int row,
                       std::int16_t& typeID, std::int16_t& elevation, double& rot,
                       std::int16_t& rwyID);

// Looks the aircraft up: AcID, AcFamily and AcAllegiance of the document take its id, family
// and allegiance, and the four load labels its gun, cannon, rocket and bomb figures. An id
// that isn't in the table raises error 3021 and leaves everything as it was.
void ShowAircraftAttributes(Editor& ed, std::int32_t id);

// The row of cmbMovingType whose item data is `id`, or -1; a pilot whose aircraft the filter
// hides is reported on the status strip.
int FindAircraftRow(Editor& ed, std::int32_t id);

}  // namespace tarvex
