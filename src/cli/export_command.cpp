#include <ostream>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/mission_session.h"

namespace tarvex::cli {

int RunExport(const CommonOptions& options, const std::string& in, std::ostream& cout,
              std::ostream& cerr) {
    if (!IsMissionName(in, cerr)) return kExitUsage;
    const std::string inPath = AbsolutePath(in);
    ScratchDatabase copy;
    int exitCode = kExitOk;
    auto editor = StartWithMission(options, true, copy, in, cerr, exitCode);
    if (!editor) return exitCode;
    const Outcome exported = ExportLoadedMission(*editor);
    if (!exported.ok) {
        cerr << ExportPathOf(in) << ": export failed: " << exported.report << "\n";
        return kExitSaveFailed;
    }
    cout << "Wrote " << ExportPathOf(inPath) << "\n";
    return kExitOk;
}

}  // namespace tarvex::cli
