#pragma once
// Working state of the mission writer that outlives one save.
#include <cstdint>

namespace tarvex {

struct SaverState {
    // The group of the player's pilot, found while the unit sections are written and read by
    // the formation sections. It is never reset: a mission without a player keeps the group
    // of the save before (0 at start).
    std::int16_t PlayerFormation = 0;
};

}  // namespace tarvex
