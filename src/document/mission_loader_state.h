#pragma once
// Working state of a mission load: the pilot units of the file waiting for their formations,
// the player's unit, the nearest runway-to-layout distance, and the layout being read.
#include <cstdint>
#include <string>
#include <vector>

#include "document/checked_array.h"

namespace tarvex {

// What a load did to a layout of the mission that the file doesn't say, so that the next save
// writes it otherwise: a runway took the layout for its airfield, or the layout was made new
// from the file's units.
struct LayoutLoadNote {
    int row = 0;             // the layout's row in lstGUAdded
    std::string layoutName;  // as the layout list showed it before a runway took it
    std::string airfield;    // the airfield that took it; empty for a new layout
    float miles = 0;         // the runway's distance from the layout
};

// A ground unit of the file as its section gave it, to be filed under the pending record.
struct PendingUnit {
    std::int32_t type = 0;
    std::uint8_t points = 0;
    std::string lat;  // as in the file
    std::string lon;
};

struct MissionLoaderState {
    // Rows 0..60; only rows below FileUnitCount are matched, row 60 takes what doesn't fit.
    static constexpr int kFileUnitUpper = 60;

    CheckedArray<std::int16_t, kFileUnitUpper> FileUnitID, FileUnitType;
    CheckedArray<std::uint8_t, kFileUnitUpper> FileUnitSkill, FileUnitLevel, FileUnitPoints,
        FileUnitDamage;
    std::int16_t FileUnitCount = 0;
    // N of the unit section with is_player_aircraft; kept from one load to the next.
    std::int16_t PlayerUnit = 0;
    float NearestLayoutDist = 9999.0f;

    // The ground layout being read from the flat run of unit sections.
    std::int16_t PrevUnitID = 1999;
    std::int32_t UnitSum = 0;
    std::int16_t FileLayoutID = 0;
    bool LayoutKnown = false;
    bool LayoutHasPoints = false;
    std::int16_t PendingLayoutID = 0;
    std::int16_t UnnamedCount = 0;
    float FirstUnitLat = 0;
    float FirstUnitLon = 0;

    // The pending record is in the database and no layout has closed it yet: the end of the
    // load removes it, so that a load leaves no empty layout behind.
    bool PendingLayoutOpen = false;
    // A pending record became a layout of the mission and stays: the only change of a load
    // that outlives it. A load that kept none has changed nothing and is undone whole.
    bool LayoutKept = false;
    // The units filed under the pending record, written when the record becomes a layout of
    // the mission; dropped with the record otherwise.
    std::vector<PendingUnit> PendingUnits;
    // The record last named by a comment line and its sum (0 without a record), while no
    // record has changed since; -1 when none is known.
    std::int32_t CommentLayoutID = -1;
    std::int32_t CommentLayoutTotal = 0;
    std::vector<LayoutLoadNote> LayoutNotes;
};

}  // namespace tarvex
