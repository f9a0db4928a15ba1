#pragma once
// The transform that carries a layout unit's stored offset to where it stands in the
// mission: quarter turns, a fine rotation in whole degrees, the spread and the shift. The
// saver and Save Layout feed (a, b) = (XOffset, YOffset); the layout editor feeds its
// screen pairs, so both turn clockwise on the map.
//
// RotateOffset holds the offset in metres as 16-bit integers to find its bearing, as the
// stored layouts were made with: an offset beyond 32.767 layout units (32767.5 metres) can't
// be turned and raises error 6 "Overflow", which ends a save with its report.
#include <cstdint>

namespace tarvex {

// Bearing in degrees, clockwise from up, of a vector with dx to the right and dy downward.
// Straight up is 360; the zero vector is 0.
float OffsetBearing(int16_t dx, int16_t dy);

struct LayoutTransform {
    // Quarter turns: 0 to 3, negative only from a rotation of -90 or below (then no turn).
    int16_t QuarterTurns = 0;
    // Degrees beyond the quarter turns, whole numbers from -89 to 89.
    float FineRotation = 0.0f;

    // Splits a layout's rotation: the whole number of it divided by 90 and cut gives the
    // quarter turns, its remainder (with the rotation's sign) the fine rotation.
    void SetFromRotation(float rotation);

    // QuarterTurns times (a, b) := (-b, a); nothing for a count below 1.
    void TurnOffset(float& a, float& b) const;

    // Turns (a, b) by FineRotation, settling on a whole-degree bearing and keeping the length.
    void RotateOffset(float& a, float& b) const;

    // Turn, fine rotation when there is one, then spread from the origin by 1 + spread and
    // shift: a gets shiftY, b gets shiftX (the layout's GUSpread, GUShiftX, GUShiftY).
    void ApplyLayoutTransform(float& a, float& b, float spread, float shiftX, float shiftY) const;
};

}  // namespace tarvex
