#pragma once
// Line differences between two texts, as the diff tools print them.
#include <string>
#include <vector>

namespace tarvex::cli {

// One line of an edit script: ' ' kept, '-' only in the first text, '+' only in the second.
struct DiffLine {
    char op;
    const std::string* text;
};

// A shortest edit script from `before` to `after`. Past a great many differences the middle
// is given as removed whole and added whole, which is still a correct script.
std::vector<DiffLine> DiffLines(const std::vector<std::string>& before,
                                const std::vector<std::string>& after);

// The script in the unified format, with `context` kept lines around each change and the two
// names in its head; empty when the texts are the same.
std::string UnifiedDiff(const std::string& nameBefore, const std::string& nameAfter,
                        const std::vector<std::string>& before,
                        const std::vector<std::string>& after, int context = 3);

}  // namespace tarvex::cli
