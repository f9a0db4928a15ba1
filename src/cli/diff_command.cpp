#include <ostream>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/resave_preview.h"
#include "cli/unified_diff.h"
#include "common/encoding.h"

namespace tarvex::cli {

int RunDiff(const CommonOptions& options, const std::string& in, std::ostream& cout,
            std::ostream& cerr) {
    const std::string inPath = AbsolutePath(in);
    ScratchDatabase copy;
    int exitCode = kExitOk;
    auto editor = StartWithMission(options, true, copy, in, cerr, exitCode);
    if (!editor) return exitCode;
    const ResavePreview preview = PreviewResave(*editor, inPath);
    if (!preview.ok) {
        cerr << in << ": a save would fail\n" << Indented(preview.failure, "    ");
        return kExitSaveFailed;
    }
    cout << UnifiedDiff(in, in + " (resaved)", SplitLines(preview.before),
                        SplitLines(preview.after));
    return kExitOk;
}

}  // namespace tarvex::cli
