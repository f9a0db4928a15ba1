#pragma once
// What the first save of a loaded mission would change in its file, and why: the load may
// give a layout to an airfield, make a new layout from the file's units, or bring a value
// back in the form the editor writes it.
#include <string>
#include <vector>

#include "app/headless_editor.h"

namespace tarvex::cli {

struct ResavePreview {
    bool ok = true;        // the save could be composed
    std::string failure;   // the save report when it couldn't
    std::string before;    // the file's text, in UTF-8; empty when the save writes the same
    std::string after;     // the text a save would write, the same way
    int changedLines = 0;  // lines that the save writes otherwise, adds or drops
    std::vector<std::string> reasons;  // what changes, one line each, in the order of the file
};

// Composes the save of the mission the editor has loaded from `path` (nothing is written)
// and compares it with the file.
ResavePreview PreviewResave(HeadlessEditor& editor, const std::string& path);

}  // namespace tarvex::cli
