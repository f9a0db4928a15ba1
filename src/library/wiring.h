#pragma once
namespace tarvex {

class Editor;

// The mission summary scan and the mission browser.
void WireLibrary(Editor& ed);

}  // namespace tarvex
