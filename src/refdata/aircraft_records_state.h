#pragma once
// The working values of the aircraft records window.
#include <cstdint>
#include <string>

namespace tarvex {

struct AircraftRecordsState {
    // A row was deleted, or an id or a file name was entered, since the window opened: the
    // aircraft combo of the Formations tab is filled again when it closes.
    bool AircraftChanged = false;
    bool AircraftFormOpen = false;
    // The record source up to its sort clause; a click on a column head sorts it anew.
    std::string GridBaseQuery;
    // The grid's row and column under the pointer at the last press.
    std::int16_t GridMouseRow = 0;
    std::int16_t GridMouseCol = 0;
};

}  // namespace tarvex
