#include <ostream>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/mission_session.h"

namespace tarvex::cli {

int RunResave(const CommonOptions& options, const std::string& in, const std::string& out,
              std::ostream& cout, std::ostream& cerr) {
    if (!IsMissionName(out, cerr)) return kExitUsage;
    const std::string outPath = AbsolutePath(out);
    ScratchDatabase unused;
    int exitCode = kExitOk;
    auto editor = StartWithMission(options, false, unused, in, cerr, exitCode);
    if (!editor) return exitCode;
    bool validationFailed = false;
    const Outcome save = SaveMissionAs(*editor, outPath, validationFailed);
    if (!save.ok) {
        if (validationFailed) {
            cerr << in << ": " << save.report << (save.report.ends_with('\n') ? "" : "\n");
            return kExitInvalid;
        }
        if (save.missionWritten) {
            cerr << out << ": saved, but its export " << ExportPathOf(out) << " was not written\n"
                 << Indented(save.report, "    ");
            return kExitExportFailed;
        }
        cerr << Headline(out, outPath, save.report) << "\n" << Indented(save.report, "    ");
        return kExitSaveFailed;
    }
    cout << "Saved " << outPath << " and " << ExportPathOf(outPath) << "\n";
    return kExitOk;
}

}  // namespace tarvex::cli
