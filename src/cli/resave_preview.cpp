#include "cli/resave_preview.h"

#include <fstream>
#include <iterator>
#include <map>
#include <sstream>

#include "cli/unified_diff.h"
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
    std::string header;
    std::vector<std::string> lines;  // the lines behind the header
};

std::vector<Section> Sections(const std::vector<std::string>& lines) {
    std::vector<Section> sections;
    for (const std::string& line : lines) {
        if (!line.empty() && line[0] == '[') {
            sections.push_back({line, {}});
        } else if (!sections.empty()) {
            if (!line.empty()) sections.back().lines.push_back(line);
        }
    }
    return sections;
}

// The value of `key=` in a section, or empty.
std::string ValueOf(const Section& section, const std::string& key) {
    for (const std::string& line : section.lines)
        if (line.compare(0, key.size() + 1, key + "=") == 0) return line.substr(key.size() + 1);
    return {};
}

// The layout row of a ground unit section, from its id; -1 for a pilot.
int LayoutRowOf(const Section& section) {
    if (section.header.rfind("[unit.", 0) != 0) return -1;
    const long id = ValLng(ValueOf(section, "id"));
    return id >= 2000 ? static_cast<int>((id - 2000) / 60) : -1;
}

// The first line that differs, as "old becomes new".
std::string FirstDifference(const Section& a, const Section& b) {
    const std::size_t n = std::max(a.lines.size(), b.lines.size());
    for (std::size_t i = 0; i < n; ++i) {
        const std::string left = i < a.lines.size() ? a.lines[i] : std::string("(nothing)");
        const std::string right = i < b.lines.size() ? b.lines[i] : std::string("(nothing)");
        if (left != right) return left + " becomes " + right;
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
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
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
    preview.before = SplitLines(Cp1252ToUtf8(ReadFile(path)));
    preview.after = SplitLines(Cp1252ToUtf8(composed));
    for (const DiffLine& line : DiffLines(preview.before, preview.after)) {
        if (line.op == '-') ++preview.changedLines;
        if (line.op == '+') ++preview.addedLines;
    }
    if (preview.changedLines == 0 && preview.addedLines == 0) return preview;

    // The ground unit sections that change, by layout, and every other section that does.
    const std::vector<Section> was = Sections(preview.before);
    const std::vector<Section> will = Sections(preview.after);
    std::map<int, int> movedUnits;  // layout row -> unit sections that change
    std::vector<std::string> others;
    std::map<std::string, const Section*> byHeader;
    for (const Section& section : was)
        byHeader.emplace(section.header, &section);
    std::map<std::string, bool> seen;
    for (const Section& section : will) {
        seen[section.header] = true;
        const auto found = byHeader.find(section.header);
        if (found == byHeader.end()) {
            const int row = LayoutRowOf(section);
            if (row >= 0) {
                ++movedUnits[row];
            } else {
                others.push_back(section.header + " is added");
            }
            continue;
        }
        if (found->second->lines == section.lines) continue;
        const int row = LayoutRowOf(section);
        if (row >= 0 && row == LayoutRowOf(*found->second)) {
            ++movedUnits[row];
        } else {
            others.push_back(section.header + " " + FirstDifference(*found->second, section));
        }
    }
    for (const Section& section : was)
        if (!seen.count(section.header)) others.push_back(section.header + " is dropped");

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
