#include "library/summary_reader.h"

#include <algorithm>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

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

// The quick test for the "=" of nearly every line: can a key of the summary end here? Every
// key ends in "=", so a line holds a key only where one of its "=" follows the key's letters.
// The two letters ahead tell the keys apart and turn down most other keys at once.
inline bool SummaryKeyAhead(std::string_view text, size_t eq) {
    if (eq < 2) return false;
    const int last = Lower(text[eq - 2]) << 8 | Lower(text[eq - 1]);
    switch (last) {
        case 'c' << 8 | 'e':
            return KeyAhead(text, eq, "allegiance");
        case 'm' << 8 | 'e':
            return KeyAhead(text, eq, "time");
        case 'a' << 8 | 'p':
            return KeyAhead(text, eq, "map");
        case 'u' << 8 | 'd':
            return KeyAhead(text, eq, "cloud");
        case 'n' << 8 | 'd':
            return KeyAhead(text, eq, "wind");
        case 't' << 8 | 'y':
            return KeyAhead(text, eq, "visibility");
        case 's' << 8 | 's':
            return KeyAhead(text, eq, "required_success");
        default:
            return false;
    }
}

// Whether the letter ahead of an "=" may end a key: the last letters of the seven keys, in
// either case (and a few other bytes, which SummaryKeyAhead then turns down).
bool MayEndKey(char c) {
    switch (c | 0x20) {
        case 'e':
        case 'p':
        case 'd':
        case 'y':
        case 's':
            return true;
        default:
            return false;
    }
}

// Runs f(eq) for each "=" in [at, end) with a letter ahead that may end a key, in order; f
// answers where to go on from. A mission has an "=" in nearly every line, so they are found
// sixteen bytes at a time rather than one search each.
template <typename F>
void ForEachKeyCandidate(std::string_view text, size_t at, size_t end, F&& f) {
    const char* d = text.data();
    size_t i = std::max<size_t>(at, 1);
#if defined(__SSE2__)
    const __m128i equals = _mm_set1_epi8('=');
    const __m128i caseBit = _mm_set1_epi8(0x20);
    const __m128i e = _mm_set1_epi8('e');
    const __m128i p = _mm_set1_epi8('p');
    const __m128i dd = _mm_set1_epi8('d');
    const __m128i y = _mm_set1_epi8('y');
    const __m128i s = _mm_set1_epi8('s');
    while (i + 16 <= end) {
        const __m128i here = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d + i));
        const __m128i ahead =
            _mm_or_si128(_mm_loadu_si128(reinterpret_cast<const __m128i*>(d + i - 1)), caseBit);
        const __m128i letter = _mm_or_si128(
            _mm_or_si128(_mm_cmpeq_epi8(ahead, e), _mm_cmpeq_epi8(ahead, p)),
            _mm_or_si128(_mm_or_si128(_mm_cmpeq_epi8(ahead, dd), _mm_cmpeq_epi8(ahead, y)),
                         _mm_cmpeq_epi8(ahead, s)));
        auto mask = static_cast<unsigned>(
            _mm_movemask_epi8(_mm_and_si128(_mm_cmpeq_epi8(here, equals), letter)));
        size_t next = i + 16;
        while (mask != 0) {
            const size_t resume = f(i + static_cast<size_t>(__builtin_ctz(mask)));
            if (resume >= next) {
                next = resume;
                break;
            }
            mask &= ~0u << (resume - i);
        }
        i = next;
    }
#endif
    while (i < end) {
        i = d[i] == '=' && MayEndKey(d[i - 1]) ? f(i) : i + 1;
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
    ForEachKeyCandidate(text, 0, keysEnd, [&](size_t eq) {
        if (!SummaryKeyAhead(text, eq)) return eq + 1;
        const size_t start = LineStart(text, eq);
        const size_t end = LineEnd(text, eq);
        reader.KeyLine(text.substr(start, end - start));
        return end;
    });
    if (header == std::string_view::npos) return out;

    // Behind it, one position per line with the marker; the value is all that follows it.
    size_t at = keysEnd;
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
