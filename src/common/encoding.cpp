#include "common/encoding.h"

#include <cerrno>
#include <cstdint>
#include <utility>

#include <unistd.h>

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

void AppendCp1252Byte(std::string& out, uint8_t b) {
    AppendUtf8(out, (b >= 0x80 && b < 0xA0) ? kHighTable[b - 0x80] : b);
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
        // Runs of plain ASCII go across in one piece.
        const size_t run = i;
        while (i < text.size() && static_cast<uint8_t>(text[i]) < 0x80)
            ++i;
        out.append(text.data() + run, i - run);
        if (i == text.size()) break;
        char32_t cp = 0;
        out += NextCodePoint(text, i, cp) ? ToByte(cp) : '?';
    }
    return out;
}

std::string Cp1252ToUtf8(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    size_t i = 0;
    while (i < bytes.size()) {
        // Runs of plain ASCII go across in one piece.
        const size_t run = i;
        while (i < bytes.size() && static_cast<uint8_t>(bytes[i]) < 0x80)
            ++i;
        out.append(bytes.data() + run, i - run);
        if (i < bytes.size()) AppendCp1252Byte(out, static_cast<uint8_t>(bytes[i++]));
    }
    return out;
}

size_t LineEndAt(std::string_view text, size_t from) {
    while (from < text.size() && text[from] != '\r' && text[from] != '\n')
        ++from;
    return from;
}

size_t NextLineAt(std::string_view text, size_t end) {
    if (end >= text.size()) return text.size();
    return end + ((text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n') ? 2 : 1);
}

std::vector<std::string> SplitLines(std::string_view text) {
    std::vector<std::string> lines;
    for (size_t start = 0; start < text.size();) {
        const size_t end = LineEndAt(text, start);
        lines.emplace_back(text.substr(start, end - start));
        start = NextLineAt(text, end);
    }
    return lines;
}

// ---- LineReader ------------------------------------------------------------------------------

namespace {
constexpr size_t kPieceSize = 64 * 1024;
}  // namespace

LineReader::LineReader(int fd) : fd_(fd) {}

LineReader::~LineReader() {
    Release();
}

LineReader::LineReader(LineReader&& other) noexcept {
    *this = std::move(other);
}

LineReader& LineReader::operator=(LineReader&& other) noexcept {
    if (this != &other) {
        Release();
        fd_ = std::exchange(other.fd_, -1);
        buffer_ = std::move(other.buffer_);
        pos_ = std::exchange(other.pos_, 0);
        size_ = std::exchange(other.size_, 0);
        skipLineFeed_ = std::exchange(other.skipLineFeed_, false);
        failed_ = std::exchange(other.failed_, false);
    }
    return *this;
}

void LineReader::Release() noexcept {
    if (fd_ >= 0) ::close(fd_);
    fd_ = -1;
}

bool LineReader::Fill() {
    if (fd_ < 0) return false;
    buffer_.resize(kPieceSize);
    for (;;) {
        const ssize_t got = ::read(fd_, buffer_.data(), buffer_.size());
        if (got > 0) {
            pos_ = 0;
            size_ = static_cast<size_t>(got);
            return true;
        }
        if (got < 0 && errno == EINTR) continue;
        failed_ = got < 0;
        Release();
        return false;
    }
}

LineReader::Status LineReader::Next(std::string& line, size_t maxBytes) {
    line.clear();
    bool any = false;  // a character, or a line end, of this line was read
    for (;;) {
        if (pos_ == size_ && !Fill()) {
            if (failed_) return Status::ReadError;
            return any ? Status::Line : Status::End;
        }
        if (skipLineFeed_) {
            skipLineFeed_ = false;
            if (buffer_[pos_] == '\n') {
                ++pos_;
                continue;
            }
        }
        const char* const piece = buffer_.data();
        size_t i = pos_;
        while (i < size_ && static_cast<uint8_t>(piece[i]) < 0x80 && piece[i] != '\r' &&
               piece[i] != '\n')
            ++i;
        if (i > pos_) any = true;
        line.append(piece + pos_, i - pos_);
        pos_ = i;
        if (line.size() > maxBytes) return Status::TooLong;
        if (i == size_) continue;
        const auto b = static_cast<uint8_t>(piece[pos_++]);
        if (b == '\r' || b == '\n') {
            skipLineFeed_ = b == '\r';
            return Status::Line;
        }
        any = true;
        AppendCp1252Byte(line, b);
    }
}

}  // namespace tarvex
