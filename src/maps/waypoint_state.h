#pragma once
// The working values of the waypoint editor, the path panel and the group view.
namespace tarvex {

struct WaypointState {};

}  // namespace tarvex
