#pragma once
// The mission in memory: fixed parallel arrays and scalars, with the bounds and value
// conventions that every tab, the reader and the writer rely on (255 for no airfield and an
// unset pilot value, -1 for no player, an empty pilot name ending a group's pilots, the End
// reference of a path at PathPointCount). The arrays are one larger than what may be used.
#include <cstdint>
#include <string>

#include "document/checked_array.h"

namespace tarvex {

struct Mission {
    static constexpr int kPathUpper = 16;    // paths 0..15 in use, 16 spare
    static constexpr int kPointUpper = 16;   // points 0..16: Start, waypoints 1..15, End
    static constexpr int kGroupUpper = 16;   // groups 0..15 in use
    static constexpr int kPilotUpper = 20;   // pilots 0..19 in use
    static constexpr int kLayoutUpper = 20;  // layouts 0..19 in use, 20 the spare of the shift
    static constexpr int kMaxPaths = 16;
    static constexpr int kMaxWaypoints = 15;
    static constexpr int kMaxGroups = 16;
    static constexpr int kMaxLayouts = 20;
    static constexpr int kNoAirfield = 255;
    static constexpr int kUnsetPilotValue = 255;

    template <typename T>
    using PointArray = CheckedArray2<T, kPathUpper, kPointUpper>;
    template <typename T>
    using PathArray = CheckedArray<T, kPathUpper>;
    template <typename T>
    using GroupArray = CheckedArray<T, kGroupUpper>;
    template <typename T>
    using PilotArray = CheckedArray2<T, kGroupUpper, kPilotUpper>;
    template <typename T>
    using LayoutArray = CheckedArray<T, kLayoutUpper>;

    // Points of a path (path, point).
    PointArray<std::string> WPLat, WPLon;
    PointArray<float> WPMapX, WPMapY;
    PointArray<std::int32_t> WPAlt;
    PointArray<std::int16_t> WPSpeed;
    PointArray<std::uint8_t> WPOnMap, WPAction, WPCap;
    PointArray<std::string> WPName, WPTip;

    // Paths.
    PathArray<std::uint8_t> PathPointCount;
    PathArray<std::int16_t> PathAirfieldStart, PathAirfieldEnd;
    PathArray<std::int16_t> PathCurrentPoint;
    PathArray<std::uint8_t> PathGroup;

    // Groups (rows of lstGroupName).
    GroupArray<std::uint8_t> GrpPattern, GrpSuspended, GrpDirective, GrpTakeoffFlag;
    GroupArray<std::uint8_t> GrpTakeoffRwy, GrpLandingRwy;
    GroupArray<std::string> GrpPaths;
    GroupArray<std::uint8_t> GrpPilotIsAC;

    // Pilots (group, pilot).
    PilotArray<std::string> PilotName;
    PilotArray<std::int16_t> PilotAC;
    PilotArray<std::uint8_t> PilotSkill, PilotLevel, PilotDamage, PilotIsPlayer, PilotPoints;

    // Ground layouts of the mission (rows of lstGUAdded).
    LayoutArray<std::string> GULat, GULon;
    LayoutArray<float> GUMapX, GUMapY;
    LayoutArray<float> GUShiftY, GUShiftX, GUSpread, GURotation;
    LayoutArray<std::uint8_t> GUPoints;

    // Scalars.
    std::uint8_t CurrentPath = 0;
    std::uint8_t CurrentPoint = 0;
    std::int16_t HighestPath = 0;
    std::int16_t PrevPath = 0;
    std::int16_t PercentLeft = 0;
    std::int16_t CurrentGroup = 0;
    std::int16_t CurrentPilot = 0;
    std::uint8_t GUCount = 0;
    std::int16_t PlayerGroup = -1;
    std::int16_t PlayerPilot = -1;
    bool PlayerAssigned = false;
    bool PilotsAssigned = false;
    std::int32_t AcID = 0;
    std::int16_t AcFamily = 0;
    std::int16_t AcAllegiance = 0;
    std::int16_t PatternMaxPilots = 12;
    std::string MissionPath;
    std::string MissionFile;

    // Guards of the control handlers: false while File Open runs, while File New runs, and
    // while code fills controls.
    bool NotLoading = true;
    bool NotResetting = true;
    bool EventsOn = true;
    bool PathChecksArmed = true;
};

}  // namespace tarvex
