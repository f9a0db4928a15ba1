#pragma once
namespace tarvex {

class Editor;

// The aircraft records window.
void WireRefdata(Editor& ed);

}  // namespace tarvex
