#include <algorithm>
#include <filesystem>
#include <ostream>
#include <system_error>

#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/mission_session.h"
#include "cli/resave_preview.h"
#include "common/text.h"

namespace tarvex::cli {

namespace {

namespace fs = std::filesystem;

struct CheckItem {
    std::string shown;  // as the user named it
    std::string path;   // absolute
};

// A folder stands for the .mis files directly in it, in name order.
std::vector<CheckItem> ExpandFiles(const std::vector<std::string>& names) {
    std::vector<CheckItem> items;
    for (const std::string& name : names) {
        std::error_code error;
        if (!fs::is_directory(name, error)) {
            items.push_back({name, AbsolutePath(name)});
            continue;
        }
        std::vector<CheckItem> inFolder;
        for (fs::directory_iterator it(name, error), end; !error && it != end;
             it.increment(error)) {
            const fs::path& file = it->path();
            if (EndsWithText(file.filename().string(), ".mis") && !it->is_directory(error))
                inFolder.push_back({file.string(), AbsolutePath(file.string())});
        }
        std::sort(inFolder.begin(), inFolder.end(),
                  [](const CheckItem& a, const CheckItem& b) { return a.shown < b.shown; });
        items.insert(items.end(), inFolder.begin(), inFolder.end());
    }
    return items;
}

}  // namespace

int RunCheck(const CommonOptions& options, const std::vector<std::string>& files,
             std::ostream& cout, std::ostream& cerr) {
    const std::vector<CheckItem> items = ExpandFiles(files);
    if (items.empty()) {
        cerr << "tarvex-mis: no mission files to check\n";
        return kExitUsage;
    }
    ScratchDatabase copy;
    auto editor = StartEditor(options, true, copy, cerr);
    if (!editor) return kExitNoDatabase;

    int result = kExitOk;
    for (const CheckItem& item : items) {
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
