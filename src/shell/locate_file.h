#pragma once
// Asking the user for a folder when something the program needs isn't where it was expected.
#include <string>

namespace tarvex {

class Editor;

// Shows the prompt as a yes/no question titled with the caption; on yes, an open-file dialog
// with the filter. The folder of the chosen file, ending in a separator, or the empty text
// for no, a cancel or a failure.
std::string LocateFile(Editor& ed, const std::string& prompt, const std::string& caption,
                       const std::string& filter);

}  // namespace tarvex
