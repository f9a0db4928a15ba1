#pragma once
// The paths of a group: the panel fraWPSelect with a check box and a percentage per path, and
// the text GrpPaths ("5000", or "5000:60,5002:40") that it reads and writes.
#include <string>

namespace tarvex {

class Editor;

// Sets the text (and PercentLeft) from the panel's boxes.
void BuildGroupPathList(Editor& ed, std::string& list);
// Sets the panel's boxes from the text.
void ShowGroupPathList(Editor& ed, const std::string& list);

}  // namespace tarvex
