#pragma once
// The one way to a working Editor: the Editor with every handler wired to its event.
#include <memory>

#include "shell/editor.h"

namespace tarvex {

std::unique_ptr<Editor> MakeEditor(Services services);

}  // namespace tarvex
