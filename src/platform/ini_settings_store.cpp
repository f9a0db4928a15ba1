#include "platform/ini_settings_store.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

#include "common/atomic_file_writer.h"
#include "common/encoding.h"
#include "common/text.h"

namespace tarvex {

namespace {

namespace fs = std::filesystem;

constexpr char kHexDigits[] = "0123456789ABCDEF";

int HexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

std::string_view TrimView(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

// ---- Names: "%20" for a blank, "%U0123" beyond Latin-1, "\" for "/" -----------------------

void AppendEscapedUnit(std::string& out, unsigned unit) {
    out += "%U";
    for (int shift = 12; shift >= 0; shift -= 4)
        out += kHexDigits[(unit >> shift) & 0xF];
}

std::string EncodeName(const std::string& name) {
    std::string out;
    size_t i = 0;
    while (i < name.size()) {
        char32_t c = 0;
        if (!NextCodePoint(name, i, c)) c = 0xFFFD;
        const bool plain = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
                           (c >= '0' && c <= '9') || c == '_' || c == '-' || c == '.';
        if (c == '/') {
            out += '\\';
        } else if (plain) {
            out += static_cast<char>(c);
        } else if (c <= 0xFF) {
            out += '%';
            out += kHexDigits[c >> 4];
            out += kHexDigits[c & 0xF];
        } else if (c <= 0xFFFF) {
            AppendEscapedUnit(out, c);
        } else {
            // Beyond the first plane a character takes two 16-bit units.
            AppendEscapedUnit(out, 0xD800 + ((c - 0x10000) >> 10));
            AppendEscapedUnit(out, 0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return out;
}

std::string DecodeName(std::string_view name) {
    std::string out;
    char32_t highSurrogate = 0;
    for (size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        unsigned code = 0;
        bool escaped = false;
        if (c == '%' && i + 5 < name.size() && name[i + 1] == 'U') {
            escaped = true;
            for (size_t k = i + 2; k < i + 6 && escaped; ++k) {
                const int h = HexValue(name[k]);
                escaped = h >= 0;
                code = code * 16 + static_cast<unsigned>(h < 0 ? 0 : h);
            }
            if (escaped) i += 5;
        } else if (c == '%' && i + 2 < name.size() && HexValue(name[i + 1]) >= 0 &&
                   HexValue(name[i + 2]) >= 0) {
            escaped = true;
            code = static_cast<unsigned>(HexValue(name[i + 1]) * 16 + HexValue(name[i + 2]));
            i += 2;
        }
        if (!escaped) {
            out += c == '\\' ? '/' : c;
        } else if (code >= 0xD800 && code <= 0xDBFF) {
            highSurrogate = code;
            continue;
        } else if (code >= 0xDC00 && code <= 0xDFFF && highSurrogate != 0) {
            AppendUtf8(out, 0x10000 + ((highSurrogate - 0xD800) << 10) + (code - 0xDC00));
        } else {
            AppendUtf8(out, code);
        }
        highSurrogate = 0;
    }
    return out;
}

// A section "General" would read as the keys outside any section, so it is written
// "%General".
std::string EncodeSection(const std::string& section) {
    const std::string encoded = EncodeName(section);
    return SameText(encoded, "General") ? "%" + encoded : encoded;
}

std::string DecodeSection(std::string_view raw) {
    if (SameText(raw, "General")) return {};
    if (SameText(raw, "%General")) return std::string(raw.substr(1));
    return DecodeName(raw);
}

// ---- Values: quoted when they hold a separator or end in a blank, escapes, "@@" for "@" ---

std::string EncodeValue(const std::string& value) {
    const std::string text = !value.empty() && value[0] == '@' ? "@" + value : value;
    std::string out;
    bool quote = false;
    bool escapeHexDigit = false;
    for (const char c : text) {
        if (c == ';' || c == ',' || c == '=') quote = true;
        // A hex digit right after a "\x" escape would be read as part of it.
        if (escapeHexDigit && HexValue(c) >= 0) {
            out += "\\x";
            out += kHexDigits[(c >> 4) & 0xF];
            out += kHexDigits[c & 0xF];
            continue;
        }
        escapeHexDigit = false;
        switch (c) {
            case '\0':
                out += "\\0";
                escapeHexDigit = true;
                break;
            case '\a':
                out += "\\a";
                break;
            case '\b':
                out += "\\b";
                break;
            case '\f':
                out += "\\f";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            case '\v':
                out += "\\v";
                break;
            case '"':
            case '\\':
                out += '\\';
                out += c;
                break;
            default:
                if (static_cast<unsigned char>(c) <= 0x1F) {
                    out += "\\x";
                    out += kHexDigits[(c >> 4) & 0xF];
                    out += kHexDigits[c & 0xF];
                    escapeHexDigit = true;
                } else {
                    out += c;
                }
        }
    }
    if (quote || (!out.empty() && (out.front() == ' ' || out.back() == ' ')))
        return "\"" + out + "\"";
    return out;
}

std::string DecodeValue(std::string_view raw) {
    std::string out;
    bool quoted = false;
    for (size_t i = 0; i < raw.size(); ++i) {
        const char c = raw[i];
        if (c == '"') {
            quoted = !quoted;
            continue;
        }
        if (c == ';' && !quoted) break;  // the rest of the line is a comment
        if (c != '\\' || i + 1 >= raw.size()) {
            out += c;
            continue;
        }
        const char e = raw[++i];
        switch (e) {
            case 'a':
                out += '\a';
                break;
            case 'b':
                out += '\b';
                break;
            case 'f':
                out += '\f';
                break;
            case 'n':
                out += '\n';
                break;
            case 'r':
                out += '\r';
                break;
            case 't':
                out += '\t';
                break;
            case 'v':
                out += '\v';
                break;
            case '0':
                out += '\0';
                break;
            case 'x': {
                unsigned code = 0;
                while (i + 1 < raw.size() && HexValue(raw[i + 1]) >= 0)
                    code = code * 16 + static_cast<unsigned>(HexValue(raw[++i]));
                AppendUtf8(out, code);
                break;
            }
            default:
                out += e;
                break;
        }
    }
    // Unquoted blanks at the ends are not part of the value.
    std::string value = raw.find('"') != std::string_view::npos ? out : Trim(out);
    if (value.rfind("@@", 0) == 0) value.erase(0, 1);
    return value;
}

// ---- The lines of a file ------------------------------------------------------------------

// Where a key stands in INI lines: its lines in the section, and where a new one would go.
struct KeyLines {
    std::vector<size_t> lines;
    bool sectionFound = false;
    size_t insertAt = 0;
};

KeyLines FindKey(const std::vector<std::string>& lines, const std::string& section,
                 const std::string& key) {
    KeyLines found;
    bool inSection = section.empty();
    found.sectionFound = inSection;
    for (size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = TrimView(lines[i]);
        if (line.empty() || line.front() == ';' || line.front() == '#') continue;
        if (line.front() == '[') {
            const size_t close = line.find(']');
            inSection = close != std::string_view::npos &&
                        SameText(DecodeSection(line.substr(1, close - 1)), section);
            if (inSection) {
                found.sectionFound = true;
                found.insertAt = i + 1;
            }
            continue;
        }
        if (!inSection) continue;
        found.insertAt = i + 1;
        const size_t eq = line.find('=');
        if (eq != std::string_view::npos && SameText(DecodeName(TrimView(line.substr(0, eq))), key))
            found.lines.push_back(i);
    }
    return found;
}

std::string ReadText(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
}

std::string UserConfigFolder() {
    if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg == '/') return xdg;
    if (const char* home = std::getenv("HOME"); home && *home)
        return std::string(home) + "/.config";
    return {};
}

}  // namespace

std::optional<std::string> IniValue(const std::string& text, const std::string& section,
                                    const std::string& key) {
    const std::vector<std::string> lines = SplitLines(text);
    const KeyLines found = FindKey(lines, section, key);
    if (found.lines.empty()) return std::nullopt;
    // The last of repeated keys wins, as it would when the file is read back.
    const std::string_view line = TrimView(lines[found.lines.back()]);
    return DecodeValue(TrimView(line.substr(line.find('=') + 1)));
}

std::string IniWithValue(const std::string& text, const std::string& section,
                         const std::string& key, const std::optional<std::string>& value) {
    std::vector<std::string> lines = SplitLines(text);
    const KeyLines found = FindKey(lines, section, key);
    for (size_t k = found.lines.size(); k-- > (value ? 1 : 0);)
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(found.lines[k]));
    if (value) {
        const std::string line = EncodeName(key) + "=" + EncodeValue(*value);
        if (!found.lines.empty()) {
            // The key keeps the spelling it has in the file.
            std::string& existing = lines[found.lines.front()];
            const std::string_view name =
                TrimView(std::string_view(existing).substr(0, existing.find('=')));
            existing = std::string(name) + "=" + EncodeValue(*value);
        } else if (found.sectionFound) {
            lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(found.insertAt), line);
        } else {
            if (!lines.empty() && !TrimView(lines.back()).empty()) lines.emplace_back();
            lines.push_back("[" + EncodeSection(section) + "]");
            lines.push_back(line);
        }
    }
    std::string out;
    for (const std::string& line : lines)
        out += line + "\n";
    return out;
}

IniSettingsStore::IniSettingsStore(std::string folder) : folder_(std::move(folder)) {}

std::string IniSettingsStore::FileOf(const std::string& app) const {
    const std::string base = folder_.empty() ? UserConfigFolder() : folder_;
    if (base.empty()) return {};
    return (fs::path(base) / app / (app + ".ini")).string();
}

std::optional<std::string> IniSettingsStore::Get(const std::string& app, const std::string& section,
                                                 const std::string& key) const {
    const std::string file = FileOf(app);
    if (file.empty()) return std::nullopt;
    return IniValue(ReadText(file), section, key);
}

void IniSettingsStore::Save(const std::string& app, const std::string& section,
                            const std::string& key, const std::string& value) {
    Change(app, section, key, value);
}

void IniSettingsStore::Delete(const std::string& app, const std::string& section,
                              const std::string& key) {
    Change(app, section, key, std::nullopt);
}

void IniSettingsStore::Change(const std::string& app, const std::string& section,
                              const std::string& key, const std::optional<std::string>& value) {
    const std::string file = FileOf(app);
    if (file.empty()) return;
    try {
        std::error_code ignored;
        fs::create_directories(fs::path(file).parent_path(), ignored);
        // Read again: another copy of the program may have changed other keys meanwhile.
        const std::string text = ReadText(file);
        const std::string changed = IniWithValue(text, section, key, value);
        if (changed != text) WriteFileAtomically(file, changed);
    } catch (const std::exception&) {
        // The file stays as it was.
    }
}

}  // namespace tarvex
