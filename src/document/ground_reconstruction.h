#pragma once
// Folding the flat ground unit sections of a mission file back into layouts of the reference
// database. Every unit read is stored under a pending layout record; when a layout ends, the
// record that matches it (by the id of its comment line or by the sum of its unit types) is
// placed in the mission, and the pending record either goes again or stays as a new layout.
#include <cstdint>
#include <string>

namespace tarvex {

class Editor;

// Adds the empty layout "Unnamed Layout<n> in file [<mission>]" to GrndNames; the new id.
std::int16_t NewUnnamedLayout(Editor& ed);

// Closes the layout that was read: finds its record, places it in the mission at the origin
// worked back from the first unit, and winds the layout state up. unitSum is 0 on return.
void MatchGroundLayout(Editor& ed, std::int16_t unitId, std::int32_t& unitSum, bool deletePending);

// The lines of a ground unit section that concern the layout.
// id from 2000: a gap in the ids closes the layout before it and starts a new pending record.
void ReadGroundUnitId(Editor& ed, std::int16_t id, std::int16_t& unitId);
// The "; Ground Layout=" comment: layout id and heading; a known layout gives its sum.
void ReadGroundLayoutComment(Editor& ed, const std::string& value);
// A ground unit type adds to the layout's sum unless the layout is known.
void ReadGroundUnitType(Editor& ed, std::int32_t type);
// The first position of a layout is its base.
void ReadGroundUnitLat(Editor& ed, const std::string& text);
void ReadGroundUnitLon(Editor& ed, const std::string& text);

// The damage line closes a ground unit: its offset from the layout's first unit goes into
// GrndTypes under the pending record.
void StoreGroundUnit(Editor& ed, std::int32_t type, std::uint8_t points, const std::string& lat,
                     const std::string& lon);

}  // namespace tarvex
