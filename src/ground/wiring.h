#pragma once
namespace tarvex {

class Editor;

// The layouts of a mission, the layout editor, the offsets window and the layout records.
void WireGround(Editor& ed);

}  // namespace tarvex
