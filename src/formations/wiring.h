#pragma once
namespace tarvex {

class Editor;

// Groups, pilots, the aircraft filter and the formation patterns.
void WireFormations(Editor& ed);

}  // namespace tarvex
