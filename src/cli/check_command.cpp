#include <ostream>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/mission_names.h"
#include "cli/mission_session.h"
#include "cli/resave_preview.h"

namespace tarvex::cli {

int RunCheck(const CommonOptions& options, const std::vector<std::string>& files,
             std::ostream& cout, std::ostream& cerr) {
    const std::vector<NamedMission> items = ExpandMissionNames(files);
    if (items.empty()) {
        cerr << "tarvex-mis: no mission files to check\n";
        return kExitUsage;
    }
    ScratchDatabase copy;
    auto editor = StartEditor(options, true, copy, cerr);
    if (!editor) return kExitNoDatabase;

    int result = kExitOk;
    for (const NamedMission& item : items) {
        Outcome outcome = OpenMission(*editor, item.path);
        int failure = kExitLoadFailed;
        if (outcome.ok) {
            outcome = ValidateLoadedMission(*editor);
            failure = kExitInvalid;
        }
        if (outcome.ok) {
            const ResavePreview preview = PreviewResave(*editor, item.path);
            if (!preview.ok) {
                cout << item.shown << ": a save would fail\n" << Indented(preview.failure, "    ");
                if (result == kExitOk) result = kExitSaveFailed;
                continue;
            }
            cout << item.shown << ": OK\n";
            if (preview.reasons.empty()) continue;
            cout << "    a first save changes " << preview.changedLines << " lines:\n";
            for (const std::string& reason : preview.reasons)
                cout << "    - " << reason << "\n";
            continue;
        }
        cout << Headline(item.shown, item.path, outcome.report) << "\n"
             << Indented(outcome.report, "    ");
        // A file that didn't load weighs more than one that only failed the check.
        if (result == kExitOk || failure == kExitLoadFailed) result = failure;
    }
    return result;
}

}  // namespace tarvex::cli
