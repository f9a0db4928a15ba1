#pragma once
namespace tarvex {

class Editor;

// The main window's menus, the splash, the about box and the message window.
void WireShell(Editor& ed);

}  // namespace tarvex
