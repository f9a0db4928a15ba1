#include "common/encoding.h"

#include <cstdint>

namespace tarvex {

namespace {

// Code points of the bytes 0x80..0x9F; the undefined ones keep their own number.
constexpr char32_t kHighTable[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,  // 98
};

char ToByte(char32_t codePoint) {
    if (codePoint < 0x80 || (codePoint >= 0xA0 && codePoint <= 0xFF)) {
        return static_cast<char>(codePoint);
    }
    for (int i = 0; i < 32; ++i) {
        if (kHighTable[i] == codePoint) return static_cast<char>(0x80 + i);
    }
    return '?';
}

}  // namespace

void AppendUtf8(std::string& out, char32_t cp) {
    if (cp < 0x80) {
        out += static_cast<char>(cp);
    } else if (cp < 0x800) {
        out += static_cast<char>(0xC0 | (cp >> 6));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else if (cp < 0x10000) {
        out += static_cast<char>(0xE0 | (cp >> 12));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (cp >> 18));
        out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (cp & 0x3F));
    }
}

bool NextCodePoint(std::string_view text, size_t& i, char32_t& cp) {
    const auto lead = static_cast<uint8_t>(text[i]);
    int extra = 0;
    if (lead < 0x80) {
        cp = lead;
    } else if (lead >= 0xC2 && lead <= 0xDF) {
        extra = 1;
        cp = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        extra = 2;
        cp = lead & 0x0F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        extra = 3;
        cp = lead & 0x07;
    } else {
        ++i;
        return false;
    }
    bool valid = i + static_cast<size_t>(extra) < text.size();
    for (int k = 1; valid && k <= extra; ++k) {
        const auto next = static_cast<uint8_t>(text[i + k]);
        if ((next & 0xC0) != 0x80) {
            valid = false;
        } else {
            cp = (cp << 6) | (next & 0x3F);
        }
    }
    // Overlong forms and surrogates are broken sequences too.
    if (valid && ((extra == 2 && (cp < 0x800 || (cp >= 0xD800 && cp <= 0xDFFF))) ||
                  (extra == 3 && (cp < 0x10000 || cp > 0x10FFFF)))) {
        valid = false;
    }
    i += valid ? static_cast<size_t>(extra) + 1 : 1;
    return valid;
}

std::string Utf8ToCp1252(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    size_t i = 0;
    while (i < text.size()) {
        char32_t cp = 0;
        out += NextCodePoint(text, i, cp) ? ToByte(cp) : '?';
    }
    return out;
}

std::string Cp1252ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    // Runs of ASCII, which is nearly all of a mission, go across as they stand.
    size_t i = 0;
    while (i < bytes.size()) {
        size_t ascii = i;
        while (ascii < bytes.size() && static_cast<uint8_t>(bytes[ascii]) < 0x80)
            ++ascii;
        out.append(bytes.data() + i, ascii - i);
        if (ascii == bytes.size()) break;
        const auto b = static_cast<uint8_t>(bytes[ascii]);
        AppendUtf8(out, b < 0xA0 ? kHighTable[b - 0x80] : b);
        i = ascii + 1;
    }
    return out;
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    size_t start = 0;
    size_t i = 0;
    while (i < text.size()) {
        const char c = text[i];
        if (c == '\r' || c == '\n') {
            lines.emplace_back(text.substr(start, i - start));
            i += (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') ? 2 : 1;
            start = i;
        } else {
            ++i;
        }
    }
    if (start < text.size()) lines.emplace_back(text.substr(start));
    return lines;
}

}  // namespace tarvex
