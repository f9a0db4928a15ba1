#include "ground/layout_markers.h"

#include "shell/editor.h"

namespace tarvex {

// TODO: the layout markers.
void DrawLayoutMarkers(Editor&, int) {}

}  // namespace tarvex
