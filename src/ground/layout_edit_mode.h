#pragma once
// The Ground units tab between placing layouts (false) and the layout editor (true).
namespace tarvex {

class Editor;

void SetLayoutEditMode(Editor& ed, bool flag);

}  // namespace tarvex
