#include <ostream>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/mission_info.h"
#include "cli/mission_session.h"

namespace tarvex::cli {

int RunInfo(const CommonOptions& options, const std::string& in, bool json, std::ostream& cout,
            std::ostream& cerr) {
    ScratchDatabase copy;
    int exitCode = kExitOk;
    auto editor = StartWithMission(options, true, copy, in, cerr, exitCode);
    if (!editor) return exitCode;
    const MissionInfo info = CollectMissionInfo(editor->ed());
    cout << (json ? FormatInfoJson(info) : FormatInfoText(info));
    return kExitOk;
}

}  // namespace tarvex::cli
