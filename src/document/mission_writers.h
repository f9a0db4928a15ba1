#pragma once
// The writers of the sections of a mission file, in file order. Each adds its sections to
// the text of the file and reads the document, the controls it stands in and the reference
// database; a lookup that finds no row ends the save through its error.
#include <cstdint>
#include <string>
#include <vector>

#include "document/file_text.h"
#include "refdata/shared_lookup.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

// [mission]: the summary, the player's aircraft and the map.
void WriteSummarySection(Editor& ed, FileText& out);
// [unit.N]: every pilot, then every unit of every ground layout placed where it stands.
void WriteUnitSections(Editor& ed, FileText& out);
// [unit_type.N]: each aircraft type, then each ground unit type, once.
void WriteUnitTypeSections(Editor& ed, FileText& out);
// [waypoint_path.N]: each path that has waypoints.
void WriteWaypointPathSections(Editor& ed, FileText& out);
// [formation.N]: each group, then the formation of all ground units.
void WriteFormationSections(Editor& ed, FileText& out);
// [runway.N]: each runway a group takes off from or lands on, once.
void WriteRunwaySections(Editor& ed, FileText& out);
// [strings]: the texts the other sections refer to; the file ends with it.
void WriteStringsSection(Editor& ed, FileText& out);

// The speed a waypoint goes into the file with: km/h. While the display is imperial the
// document holds knots, turned here as the unit switch turns them towards metric; speeds
// below 1 stay as they are.
std::int32_t FileSpeed(std::int16_t speed, bool metric);

// ---- Shared by the writers -------------------------------------------------------------

// Calls fn(group, pilot) for each pilot of each group of lstGroupName, a group's pilots
// ending at the first empty name or at its last slot.
template <typename Fn>
void ForEachPilot(Editor& ed, Fn fn) {
    const int groups = ed.FrmMission.lstGroupName.ListCount();
    for (int g = 0; g < groups; ++g)
        for (int p = 0; p <= Mission::kPilotUpper && !ed.doc.PilotName(g, p).empty(); ++p)
            fn(g, p);
}

// The ids of the sorting list in its order (as text: "10" before "9"), each once: an id
// equal to the one before it is skipped, and so is an id of 0.
std::vector<std::int32_t> DistinctSortedIds(const ComboBox& cmbSort);

// The runway id of an airfield row, by its lookup.
std::int16_t RunwayIdOfRow(Editor& ed, int row);

// Whether a takeoff flag (the item data of cmbTakeoffFlag) has the group take off, and land.
inline bool TakesOff(std::int32_t flag) {
    return flag == 1 || flag == 3;
}
inline bool Lands(std::int32_t flag) {
    return flag == 2 || flag == 3;
}

}  // namespace tarvex
