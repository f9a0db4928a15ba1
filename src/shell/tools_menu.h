#pragma once
// The Tools menu's database entry.
namespace tarvex {

class Editor;

// Compacts the reference database behind the message window.
void mnuCompact_Click(Editor& ed);

}  // namespace tarvex
