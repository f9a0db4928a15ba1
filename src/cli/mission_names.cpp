#include "cli/mission_names.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "cli/install_folders.h"
#include "common/text.h"

namespace tarvex::cli {

namespace fs = std::filesystem;

std::vector<NamedMission> ExpandMissionNames(const std::vector<std::string>& names) {
    std::vector<NamedMission> items;
    for (const std::string& name : names) {
        std::error_code error;
        if (!fs::is_directory(name, error)) {
            items.push_back({name, AbsolutePath(name)});
            continue;
        }
        std::vector<NamedMission> inFolder;
        for (fs::directory_iterator it(name, error), end; !error && it != end;
             it.increment(error)) {
            const fs::path& file = it->path();
            if (EndsWithText(file.filename().string(), ".mis") && !it->is_directory(error))
                inFolder.push_back({file.string(), AbsolutePath(file.string())});
        }
        std::sort(inFolder.begin(), inFolder.end(),
                  [](const NamedMission& a, const NamedMission& b) { return a.shown < b.shown; });
        items.insert(items.end(), inFolder.begin(), inFolder.end());
    }
    return items;
}

}  // namespace tarvex::cli
