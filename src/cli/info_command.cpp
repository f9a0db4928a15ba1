#include <ostream>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/mission_info.h"
#include "cli/mission_session.h"

namespace tarvex::cli {

int RunInfo(const CommonOptions& options, const std::string& in, bool json, std::ostream& cout,
            std::ostream& cerr) {
    const std::string inPath = AbsolutePath(in);
    ScratchDatabase copy;
    auto editor = StartEditor(options, true, copy, cerr);
    if (!editor) return kExitNoDatabase;

    const Outcome load = OpenMission(*editor, inPath);
    if (!load.ok) {
        cerr << in << ": " << load.report << "\n";
        return kExitLoadFailed;
    }
    const MissionInfo info = CollectMissionInfo(editor->ed());
    cout << (json ? FormatInfoJson(info) : FormatInfoText(info));
    return kExitOk;
}

}  // namespace tarvex::cli
