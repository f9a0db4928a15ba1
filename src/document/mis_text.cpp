#include "document/mis_text.h"

#include "common/error.h"
#include "common/numbers.h"
#include "common/text.h"

namespace tarvex {

const std::string& MisLines::Read() {
    if (AtEnd()) return empty_;
    return lines_[next_++];
}

std::string MisValue(std::string_view line) {
    const std::size_t eq = line.find('=');
    if (eq == std::string_view::npos) return std::string(line);
    return std::string(line.substr(eq + 1));
}

bool MisSectionEnds(std::string_view line) {
    return line.size() < 2;
}

int MisSectionNumber(std::string_view header) {
    const std::size_t dot = header.find('.');
    const std::size_t bracket = header.find(']');
    if (dot == std::string_view::npos || bracket == std::string_view::npos || bracket < dot)
        Raise(kErrInvalidCall);
    return ValInt(header.substr(dot + 1, bracket - dot - 1));
}

bool MisHasKey(std::string_view line, std::string_view key) {
    return InStr(line, key) > 0;
}

bool MisHasGuardedId(std::string_view line) {
    const std::size_t eq = line.find('=');
    return MisHasKey(line, "id") && eq != std::string_view::npos && eq < 4;
}

}  // namespace tarvex
