#include "cli/editor_settings_file.h"

#include <cstdlib>
#include <string_view>

#include "common/text.h"

namespace tarvex::cli {

namespace {

int HexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    return -1;
}

void AppendUtf8(std::string& out, unsigned code) {
    if (code < 0x80) {
        out += static_cast<char>(code);
    } else if (code < 0x800) {
        out += static_cast<char>(0xC0 | (code >> 6));
        out += static_cast<char>(0x80 | (code & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | (code >> 12));
        out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (code & 0x3F));
    }
}

// Section and key names: "%20" for a blank, "%U0123" beyond Latin-1, "\" for "/".
std::string DecodeName(std::string_view name) {
    std::string out;
    for (size_t i = 0; i < name.size(); ++i) {
        const char c = name[i];
        if (c == '\\') {
            out += '/';
        } else if (c == '%' && i + 5 < name.size() && name[i + 1] == 'U') {
            unsigned code = 0;
            bool ok = true;
            for (size_t k = i + 2; k < i + 6; ++k) {
                const int h = HexValue(name[k]);
                ok = ok && h >= 0;
                code = code * 16 + static_cast<unsigned>(h < 0 ? 0 : h);
            }
            if (!ok) {
                out += c;
                continue;
            }
            AppendUtf8(out, code);
            i += 5;
        } else if (c == '%' && i + 2 < name.size() && HexValue(name[i + 1]) >= 0 &&
                   HexValue(name[i + 2]) >= 0) {
            AppendUtf8(out,
                       static_cast<unsigned>(HexValue(name[i + 1]) * 16 + HexValue(name[i + 2])));
            i += 2;
        } else {
            out += c;
        }
    }
    return out;
}

// A value: quoted parts lose their quotes, escapes are resolved, a leading "@@" is one "@".
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
    std::string trimmed = Trim(out);
    if (raw.find('"') != std::string_view::npos) trimmed = out;
    if (trimmed.rfind("@@", 0) == 0) trimmed.erase(0, 1);
    return trimmed;
}

std::string_view TrimView(std::string_view s) {
    while (!s.empty() && (s.front() == ' ' || s.front() == '\t'))
        s.remove_prefix(1);
    while (!s.empty() && (s.back() == ' ' || s.back() == '\t' || s.back() == '\r'))
        s.remove_suffix(1);
    return s;
}

}  // namespace

std::string EditorSettingsFile(const std::string& app) {
    std::string base;
    if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg == '/') {
        base = xdg;
    } else if (const char* home = std::getenv("HOME"); home && *home) {
        base = std::string(home) + "/.config";
    } else {
        return {};
    }
    return base + "/" + app + "/" + app + ".ini";
}

std::optional<std::string> IniValue(const std::string& text, const std::string& section,
                                    const std::string& key) {
    std::optional<std::string> found;
    bool inSection = false;
    size_t start = 0;
    while (start <= text.size()) {
        size_t end = text.find('\n', start);
        if (end == std::string::npos) end = text.size();
        const std::string_view line = TrimView(std::string_view(text).substr(start, end - start));
        start = end + 1;
        if (line.empty() || line.front() == ';' || line.front() == '#') continue;
        if (line.front() == '[') {
            const size_t close = line.find(']');
            inSection = close != std::string_view::npos &&
                        SameText(DecodeName(line.substr(1, close - 1)), section);
            continue;
        }
        if (!inSection) continue;
        const size_t eq = line.find('=');
        if (eq == std::string_view::npos) continue;
        if (!SameText(DecodeName(TrimView(line.substr(0, eq))), key)) continue;
        // The last of repeated keys wins, as it would when the file is read back.
        found = DecodeValue(TrimView(line.substr(eq + 1)));
    }
    return found;
}

}  // namespace tarvex::cli
