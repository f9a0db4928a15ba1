#pragma once
// The menu bar from the entries' tree: captions with their access keys, shortcuts, check
// marks, enabled and visible states; a chosen entry goes to its UserClick, and the entry under
// the pointer to its highlight event.
#include <vector>

#include "shell/controls/menu_item.h"

class QMenuBar;

namespace tarvex::qt {

void BuildMenuBar(QMenuBar* bar, const std::vector<MenuItem*>& entries);

}  // namespace tarvex::qt
