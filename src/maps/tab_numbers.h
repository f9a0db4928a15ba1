#pragma once
// The tabs of SSTab1, in their order.
namespace tarvex {

inline constexpr int kSummaryTab = 0;
inline constexpr int kFormationsTab = 1;
inline constexpr int kGroundUnitsTab = 2;
inline constexpr int kWaypointsTab = 3;

}  // namespace tarvex
