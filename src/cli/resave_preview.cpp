#include "cli/resave_preview.h"

#include <algorithm>
#include <fstream>
#include <map>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

#include "common/encoding.h"
#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "document/ground_reconstruction.h"
#include "document/mission_saver.h"
#include "shell/forms/frm_mission.h"

namespace tarvex::cli {

namespace {

// Reasons past this many are summed up in one line.
constexpr std::size_t kMaxReasons = 20;

struct Section {
    std::string_view header;
    std::vector<std::string_view> lines;  // the lines behind the header, blank ones left out
};

// The sections of a text, on views into it.
std::vector<Section> Sections(std::string_view text) {
    std::vector<Section> sections;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = LineEndAt(text, start);
        const std::string_view line = text.substr(start, end - start);
        start = NextLineAt(text, end);
        if (!line.empty() && line[0] == '[') {
            sections.push_back({line, {}});
        } else if (!sections.empty() && !line.empty()) {
            sections.back().lines.push_back(line);
        }
    }
    return sections;
}

// The value of `key=` in a section, or empty.
std::string_view ValueOf(const Section& section, std::string_view key) {
    for (std::string_view line : section.lines)
        if (line.size() > key.size() && line.substr(0, key.size()) == key &&
            line[key.size()] == '=')
            return line.substr(key.size() + 1);
    return {};
}

// The layout row of a ground unit section, from its id; -1 for a pilot.
int LayoutRowOf(const Section& section) {
    if (section.header.substr(0, 6) != "[unit.") return -1;
    const long id = ValLng(ValueOf(section, "id"));
    return id >= 2000 ? static_cast<int>((id - 2000) / 60) : -1;
}

// The lines of a section that another version of it has otherwise, by their place.
int ChangedLines(const Section& a, const Section& b) {
    const std::size_t n = std::max(a.lines.size(), b.lines.size());
    int changed = 0;
    for (std::size_t i = 0; i < n; ++i)
        if (i >= a.lines.size() || i >= b.lines.size() || a.lines[i] != b.lines[i]) ++changed;
    return changed;
}

// The first line that differs, as "old becomes new".
std::string FirstDifference(const Section& a, const Section& b) {
    const std::size_t n = std::max(a.lines.size(), b.lines.size());
    for (std::size_t i = 0; i < n; ++i) {
        const std::string_view left = i < a.lines.size() ? a.lines[i] : "(nothing)";
        const std::string_view right = i < b.lines.size() ? b.lines[i] : "(nothing)";
        if (left != right) return std::string(left) + " becomes " + std::string(right);
    }
    return "its lines change";
}

std::string LayoutName(Editor& ed, int row) {
    const auto& list = ed.FrmMission.lstGUAdded;
    if (row < 0 || row >= list.ListCount()) return {};
    const std::string text = list.List(row);
    const std::size_t dot = text.find(". ");
    return dot == std::string::npos ? text : text.substr(dot + 2);
}

std::string ReadFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    std::string bytes(static_cast<std::size_t>(std::max<std::streamoff>(in.tellg(), 0)), '\0');
    in.seekg(0);
    in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(in.gcount(), 0)));
    return bytes;
}

}  // namespace

ResavePreview PreviewResave(HeadlessEditor& editor, const std::string& path) {
    Editor& ed = editor.ed();
    ResavePreview preview;
    std::string composed;
    try {
        composed = ComposeMissionText(ed);
    } catch (const AppError& e) {
        preview.ok = false;
        preview.failure = "While [*** " + ed.StepText + ed.StepDetail + " ***].\n" +
                          "The following error occurred\n" + e.Description() + " Error [" +
                          IntText(e.Number()) + "]";
        return preview;
    }
    const std::string bytes = ReadFile(path);
    if (bytes == composed) return preview;
    preview.before = Cp1252ToUtf8(bytes);
    preview.after = Cp1252ToUtf8(composed);

    // The ground unit sections that change, by layout, and every other section that does.
    const std::vector<Section> was = Sections(preview.before);
    const std::vector<Section> will = Sections(preview.after);
    std::map<int, int> movedUnits;  // layout row -> unit sections that change
    std::vector<std::string> others;
    std::unordered_map<std::string_view, const Section*> byHeader;
    for (const Section& section : was)
        byHeader.emplace(section.header, &section);
    std::unordered_set<std::string_view> seen;
    for (const Section& section : will) {
        seen.insert(section.header);
        const auto found = byHeader.find(section.header);
        if (found == byHeader.end()) {
            preview.changedLines += static_cast<int>(section.lines.size()) + 1;
            const int row = LayoutRowOf(section);
            if (row >= 0) {
                ++movedUnits[row];
            } else {
                others.push_back(std::string(section.header) + " is added");
            }
            continue;
        }
        if (found->second->lines == section.lines) continue;
        preview.changedLines += ChangedLines(*found->second, section);
        const int row = LayoutRowOf(section);
        if (row >= 0 && row == LayoutRowOf(*found->second)) {
            ++movedUnits[row];
        } else {
            others.push_back(std::string(section.header) + " " +
                             FirstDifference(*found->second, section));
        }
    }
    for (const Section& section : was) {
        if (seen.count(section.header)) continue;
        preview.changedLines += static_cast<int>(section.lines.size()) + 1;
        others.push_back(std::string(section.header) + " is dropped");
    }
    // Only line ends differ: every line is written anew.
    if (preview.changedLines == 0)
        preview.changedLines = static_cast<int>(SplitLines(bytes).size());

    for (const LayoutLoadNote& note : ed.loader.LayoutNotes) {
        const std::string head = "layout " + IntText(note.row + 1) + " '" + note.layoutName + "'";
        const int units = movedUnits.count(note.row) ? movedUnits[note.row] : 0;
        movedUnits.erase(note.row);
        if (note.airfield.empty()) {
            preview.reasons.push_back(head + " is new: the load made it from the file's units");
        } else {
            preview.reasons.push_back(head + " lies " + Format(NoteKilometres(note), "0.0") +
                                      " km from " + note.airfield +
                                      " and is taken by its runway: its " + IntText(units) +
                                      " units move");
        }
    }
    for (const auto& [row, units] : movedUnits) {
        preview.reasons.push_back("layout " + IntText(row + 1) + " '" + LayoutName(ed, row) +
                                  "': " + IntText(units) +
                                  " units move to where the layout's record places them");
    }
    for (const std::string& other : others) {
        if (preview.reasons.size() == kMaxReasons) {
            preview.reasons.push_back("and " + IntText(others.size() - (&other - others.data())) +
                                      " more sections change");
            break;
        }
        preview.reasons.push_back(other);
    }
    return preview;
}

}  // namespace tarvex::cli
