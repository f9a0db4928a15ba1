#include "maps/group_paths.h"

#include "shell/editor.h"

namespace tarvex {

// TODO: the panel of a group's paths.
void BuildGroupPathList(Editor&, std::string&) {}

void ShowGroupPathList(Editor&, const std::string&) {}

}  // namespace tarvex
