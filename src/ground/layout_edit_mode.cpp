#include "ground/layout_edit_mode.h"

#include "shell/editor.h"

namespace tarvex {

// TODO: the layout editor's mode.
void SetLayoutEditMode(Editor&, bool) {}

}  // namespace tarvex
