#include "app/command_line.h"

#include <charconv>

#include "common/program_version.h"

namespace tarvex {

namespace {

// A whole number in [low, high] and nothing else; false for anything else.
bool ReadWholeNumber(const std::string& text, int low, int high, int& value) {
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end && value >= low && value <= high;
}

EditorCommandLine Refused(std::string problem) {
    EditorCommandLine line;
    line.action = EditorCommandLine::Action::Refuse;
    line.problem = std::move(problem);
    return line;
}

}  // namespace

EditorCommandLine ParseEditorCommandLine(const std::vector<std::string>& args) {
    EditorCommandLine line;
    bool optionsEnded = false;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (optionsEnded || arg.empty() || arg[0] != '-' || arg == "-") {
            line.files.push_back(arg);
            continue;
        }
        if (arg == "--") {
            optionsEnded = true;
            continue;
        }
        if (arg == "--help" || arg == "-h") {
            line.action = EditorCommandLine::Action::Help;
            return line;
        }
        if (arg == "--version") {
            line.action = EditorCommandLine::Action::Version;
            return line;
        }
        const bool takesValue =
            arg == "--screenshot" || arg == "--tab" || arg == "--form" || arg == "--edit-layout";
        if (!takesValue) return Refused("unknown option '" + arg + "' (try --help)");
        if (i + 1 >= args.size()) return Refused(arg + " needs a value");
        const std::string& value = args[++i];
        if (arg == "--screenshot") {
            line.screenshot = value;
        } else if (arg == "--tab") {
            if (!ReadWholeNumber(value, 0, 3, line.tab))
                return Refused("--tab takes a number from 0 to 3, not '" + value + "'");
        } else if (arg == "--form") {
            line.form = value;
        } else if (!ReadWholeNumber(value, 0, 32767, line.layoutRow)) {
            return Refused("--edit-layout takes a row number from 0, not '" + value + "'");
        }
    }
    if (line.screenshot.empty() && (!line.form.empty() || line.layoutRow >= 0))
        return Refused("--form and --edit-layout go with --screenshot");
    return line;
}

std::string EditorUsageText() {
    return "Usage: tarvex-editor [OPTION]... [MISSION.mis]\n"
           "Creates, opens, edits and saves Tarvex mission files.\n"
           "\n"
           "  -h, --help           show this help and exit\n"
           "      --version        show the program's version and exit\n"
           "      --tab N          start on tab N: 0 Summary, 1 Formations, 2 Ground Units,\n"
           "                       3 Waypoints\n"
           "      --screenshot FILE\n"
           "                       start without a window, write a PNG picture of the\n"
           "                       editor to FILE and exit (non-zero when the mission\n"
           "                       named fails to load)\n"
           "      --form NAME      with --screenshot: picture the window NAME instead of\n"
           "                       the main one (frmAircraft, frmGrndNames, frmtblMissions,\n"
           "                       frmGUOffsets, frmAbout)\n"
           "      --edit-layout ROW\n"
           "                       with --screenshot: open the layout editor on row ROW\n"
           "                       (from 0) of the mission's ground layouts\n"
           "\n"
           "The data folder is $TARVEX_HOME, else the installation's share/tarvex.\n"
           "Qt's own options go in the environment (QT_QPA_PLATFORM=offscreen, ...).\n";
}

std::string EditorVersionText() {
    return std::string("tarvex-editor ") + ProgramVersionText() + "\n";
}

}  // namespace tarvex
