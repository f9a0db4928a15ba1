#pragma once
// Hooks the splash and the main window's menu entries to their handlers.
namespace tarvex {

class Editor;

void WireMainWindow(Editor& ed);

}  // namespace tarvex
