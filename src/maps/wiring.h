#pragma once
namespace tarvex {

class Editor;

// The maps, the paths' colours and overlays, the waypoints and the airfields of a path.
void WireMaps(Editor& ed);

}  // namespace tarvex
