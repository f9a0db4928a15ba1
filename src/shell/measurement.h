#pragma once
// The unit system: metric (kilometres, km/h) or imperial (miles, knots). Speeds in memory are
// held in the unit of the moment; the file always holds km/h.
namespace tarvex {

class Editor;

// The caption of mnuDist, the distance read-out's factor and unit, and lblSpeed.
void ApplyMeasurement(Editor& ed);

// Converts every waypoint speed into the unit now in force and refreshes txtSpeed.
void ConvertSpeeds(Editor& ed);

// Toggles the unit system.
void mnuDist_Click(Editor& ed);

}  // namespace tarvex
