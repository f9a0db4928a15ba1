#include <ostream>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/mission_session.h"

namespace tarvex::cli {

int RunResave(const CommonOptions& options, const std::string& in, const std::string& out,
              std::ostream& cout, std::ostream& cerr) {
    const std::string inPath = AbsolutePath(in);
    const std::string outPath = AbsolutePath(out);
    ScratchDatabase unused;
    auto editor = StartEditor(options, false, unused, cerr);
    if (!editor) return kExitNoDatabase;

    const Outcome load = OpenMission(*editor, inPath);
    if (!load.ok) {
        cerr << in << ": " << load.report << "\n";
        return kExitLoadFailed;
    }
    bool validationFailed = false;
    const Outcome save = SaveMissionAs(*editor, outPath, validationFailed);
    if (!save.ok) {
        cerr << in << ": " << save.report << (save.report.ends_with('\n') ? "" : "\n");
        return validationFailed ? kExitInvalid : kExitSaveFailed;
    }
    cout << "Saved " << outPath << " and " << ExportPathOf(outPath) << "\n";
    return kExitOk;
}

}  // namespace tarvex::cli
