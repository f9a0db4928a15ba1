#pragma once
// Save Layout: the layout in the editor written to the reference database as a new layout,
// with its shift, turn and spread baked into the offsets of its units. The way to make a
// variant of a default layout, which can then be changed unit by unit.
namespace tarvex {

class Editor;

void btnSave_Click(Editor& ed);

}  // namespace tarvex
