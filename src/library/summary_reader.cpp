#include "library/summary_reader.h"

#include <cstring>

#include "common/numbers.h"
#include "common/text.h"
#include "document/mis_text.h"

namespace tarvex {

namespace {

constexpr std::string_view kStringsHeader = "[strings]";
// The letters "_string", a quotation mark and an equals sign: "title_string"= but not
// "name_string.0"=.
constexpr std::string_view kMarker = "_string\"=";
// The text entries by their position among the marker lines; the tip and the airfield have
// no field, and nothing behind the date is read.
std::optional<std::string> MissionSummary::*const kEntryFields[] = {
    &MissionSummary::Title,
    &MissionSummary::Summary,
    &MissionSummary::Objective,
    &MissionSummary::Type,
    nullptr,
    nullptr,
    &MissionSummary::Date,
};
constexpr int kEntryCount = sizeof kEntryFields / sizeof kEntryFields[0];

bool IsLineEnd(char c) {
    return c == '\n' || c == '\r';
}

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

size_t LineStart(std::string_view text, size_t at) {
    while (at > 0 && !IsLineEnd(text[at - 1]))
        --at;
    return at;
}

size_t LineEnd(std::string_view text, size_t at) {
    while (at < text.size() && !IsLineEnd(text[at]))
        ++at;
    return at;
}

// Whether the letters ahead of the "=" at `eq` spell the key, in any case.
bool KeyAhead(std::string_view text, size_t eq, std::string_view key) {
    if (eq < key.size()) return false;
    const char* p = text.data() + eq - key.size();
    for (size_t i = 0; i < key.size(); ++i)
        if (Lower(p[i]) != key[i]) return false;
    return true;
}

// The quick test for the one "=" in most lines: can a key of the summary end here? Every key
// ends in "=", so a line holds a key only where one of its "=" follows the key's letters.
bool SummaryKeyAhead(std::string_view text, size_t eq) {
    if (eq == 0) return false;
    switch (Lower(text[eq - 1])) {
        case 'e':
            return KeyAhead(text, eq, "allegiance") || KeyAhead(text, eq, "time");
        case 'p':
            return KeyAhead(text, eq, "map");
        case 'd':
            return KeyAhead(text, eq, "cloud") || KeyAhead(text, eq, "wind");
        case 'y':
            return KeyAhead(text, eq, "visibility");
        case 's':
            return KeyAhead(text, eq, "required_success");
        default:
            return false;
    }
}

double LastCharacter(std::string_view line) {
    return Val(line.substr(line.size() - 1));
}

class SummaryReader {
  public:
    SummaryReader(MissionSummary& out, const MapNumberLookup& mapNumber)
        : out_(out), mapNumber_(mapNumber) {}

    // The key tests in their order; the first that the line passes is the only one applied.
    // Only the first allegiance line counts, and later ones are skipped altogether.
    void KeyLine(std::string_view line) {
        if (InStr(line, "allegiance=") > 0) {
            if (!out_.Allegiance) out_.Allegiance = LastCharacter(line);
        } else if (InStr(line, "time=") > 0) {
            out_.Time = Right(line, 5);
        } else if (InStr(line, "map=") > 0) {
            out_.Map = mapNumber_(Right(line, 7));
        } else if (InStr(line, "cloud=") > 0) {
            out_.Clouds = LastCharacter(line);
        } else if (InStr(line, "visibility=") > 0) {
            out_.Visibility = LastCharacter(line);
        } else if (InStr(line, "wind=") > 0) {
            out_.Wind = LastCharacter(line);
        } else if (InStr(line, "required_success=") > 0) {
            out_.Reqrd = Val(MisValue(line));
        }
    }

  private:
    MissionSummary& out_;
    const MapNumberLookup& mapNumber_;
};

}  // namespace

MissionSummary ReadMissionSummary(std::string_view text, const MapNumberLookup& mapNumber) {
    MissionSummary out;
    SummaryReader reader(out, mapNumber);

    // The keys are tested up to and including the line that holds [strings].
    const size_t header = text.find(kStringsHeader);
    const size_t keysEnd = header == std::string_view::npos ? text.size() : LineEnd(text, header);
    size_t at = 0;
    while (at < keysEnd) {
        const void* hit = std::memchr(text.data() + at, '=', keysEnd - at);
        if (hit == nullptr) break;
        const size_t eq = static_cast<size_t>(static_cast<const char*>(hit) - text.data());
        if (!SummaryKeyAhead(text, eq)) {
            at = eq + 1;
            continue;
        }
        const size_t start = LineStart(text, eq);
        const size_t end = LineEnd(text, eq);
        reader.KeyLine(text.substr(start, end - start));
        at = end;
    }
    if (header == std::string_view::npos) return out;

    // Behind it, one position per line with the marker; the value is all that follows it.
    at = keysEnd;
    for (int position = 0; position < kEntryCount; ++position) {
        const size_t marker = text.find(kMarker, at);
        if (marker == std::string_view::npos) break;
        const size_t valueStart = marker + kMarker.size();
        const size_t end = LineEnd(text, valueStart);
        if (auto field = kEntryFields[position])
            out.*field = std::string(text.substr(valueStart, end - valueStart));
        at = end;
    }
    return out;
}

}  // namespace tarvex
