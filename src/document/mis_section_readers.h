#pragma once
// The readers of the sections of a mission file. Each gets the header in `line`, reads its
// section's lines from `lines` and leaves the line that ended the section in `line`.
#include <cstdint>
#include <string>

#include "document/mis_text.h"

namespace tarvex {

class Editor;

void ReadSummarySection(Editor& ed, MisLines& lines, std::string& line);
// unitId is the last ground unit id, typeId the last ground type id, both kept across units.
void ReadUnitSection(Editor& ed, MisLines& lines, std::string& line, std::int16_t& unitId,
                     std::int16_t& typeId);
void ReadWaypointPathSection(Editor& ed, MisLines& lines, std::string& line);
void ReadFormationSection(Editor& ed, MisLines& lines, std::string& line);
void ReadRunwaySection(Editor& ed, MisLines& lines, std::string& line);
// Runs to the end of the file.
void ReadStringsSection(Editor& ed, MisLines& lines, std::string& line);

}  // namespace tarvex
