#pragma once
// Working state of a mission load: the pilot units of the file waiting for their formations,
// the player's unit, the nearest runway-to-layout distance, and the layout being read.
#include <cstdint>

#include "document/checked_array.h"

namespace tarvex {

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
};

}  // namespace tarvex
