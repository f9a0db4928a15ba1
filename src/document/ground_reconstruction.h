#pragma once
// Folding the flat ground unit sections of a mission file back into layouts of the reference
// database. Every unit read is stored under a pending layout record; when a layout ends, the
// record that matches it (by the id of its comment line or by the sum of its unit types) is
// placed in the mission, and the pending record either goes again or stays as a new layout.
#include <cstdint>
#include <string>
#include <vector>

#include "document/mission_loader_state.h"

namespace tarvex {

class Editor;
class Transaction;

// Adds the empty layout "Unnamed Layout<n> in file [<mission>]" to GrndNames; the new id.
std::int16_t NewUnnamedLayout(Editor& ed);

// Removes the pending record, with any units filed under it, when no layout closed it: a
// mission without ground units, a last layout never closed, a load that failed.
void DropPendingLayout(Editor& ed);

// Ends the writes of a load, whether it succeeded or failed: a load that kept no layout
// of its own is undone whole, so that the database is as it was; otherwise the pending
// record goes and the rest is committed. Never raises.
void EndLoadWrites(Editor& ed, Transaction& transaction) noexcept;

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

// The damage line closes a ground unit: it is filed under the pending record, and goes into
// GrndTypes with its offset from the layout's first unit when that record becomes a layout.
void StoreGroundUnit(Editor& ed, std::int32_t type, std::uint8_t points, const std::string& lat,
                     const std::string& lon);

// Remembers that the runway of `airfield`, `miles` away, took layout row `row`.
void NoteLayoutTakenByAirfield(Editor& ed, int row, const std::string& airfield, float miles);

// The notes of a load in one line for the status strip; empty when there are none.
std::string LayoutNotesText(const std::vector<LayoutLoadNote>& notes);

// The distance of a note in kilometres, as the notes print it.
double NoteKilometres(const LayoutLoadNote& note);

}  // namespace tarvex
