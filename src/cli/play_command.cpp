#include <filesystem>
#include <fstream>
#include <iterator>
#include <ostream>
#include <system_error>

#include "app/scratch_editor.h"
#include "cli/command_setup.h"
#include "cli/commands.h"
#include "cli/install_folders.h"
#include "cli/mission_names.h"
#include "scenario/scenario_run.h"
#include "scenario/scenario_script.h"

namespace tarvex::cli {

namespace {

namespace fs = std::filesystem;

// One run: a fresh editor on its own copy of the database (or on the database itself), a
// scratch folder, and the mission in $MISSION when there is one.
int PlayOnce(const CommonOptions& options, const PlayOptions& play, const std::string& text,
             const std::string& mission, std::ostream& cout, std::ostream& cerr) {
    const std::string shown = mission.empty() ? play.scenario : mission;
    TempFolder scratch("scenario");
    scenario::ScriptContext context;
    context.folder = fs::path(AbsolutePath(play.scenario)).parent_path().string();
    context.variables["SCRATCH"] = scratch.Path().string();
    context.variables["SIM"] = ResolveFolders(options).simFolder;
    if (!mission.empty()) context.variables["MISSION"] = AbsolutePath(mission);
    const scenario::Script script = scenario::ParseScenario(text, context);
    if (!script.errors.empty()) {
        for (const scenario::LineError& error : script.errors)
            cerr << play.scenario << ":" << error.line << ": " << error.message << "\n";
        return kExitLoadFailed;
    }

    ScratchDatabase copy;
    auto editor = StartEditor(options, !play.writeDatabase, copy, cerr);
    if (!editor) return kExitNoDatabase;
    scenario::ScenarioRun run(*editor);
    if (const auto failure = run.Run(script)) {
        cout << shown << ": failed at line " << failure->line << "\n";
        cerr << play.scenario << ":" << failure->line << ": "
             << (mission.empty() ? "" : mission + ": ") << failure->message << "\n";
        return kExitLoadFailed;
    }
    cout << shown << ": OK\n";
    return kExitOk;
}

}  // namespace

int RunPlay(const CommonOptions& options, const PlayOptions& play, std::ostream& cout,
            std::ostream& cerr) {
    std::ifstream in(play.scenario, std::ios::binary);
    if (!in) {
        cerr << "tarvex-mis: cannot read the scenario " << play.scenario << "\n";
        return kExitUsage;
    }
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (play.missions.empty()) return PlayOnce(options, play, text, "", cout, cerr);
    // Every mission gets its run, whatever became of the others. The editor moves into the
    // simulator's folder; each run starts from where the user stands, for the relative paths.
    std::error_code error;
    const fs::path start = fs::current_path(error);
    int result = kExitOk;
    const std::vector<NamedMission> missions = ExpandMissionNames(play.missions);
    if (missions.empty()) {
        cerr << "tarvex-mis: no mission files to play\n";
        return kExitUsage;
    }
    for (const NamedMission& mission : missions) {
        const int code = PlayOnce(options, play, text, mission.shown, cout, cerr);
        if (code != kExitOk && result != kExitNoDatabase) result = code;
        fs::current_path(start, error);
    }
    return result;
}

}  // namespace tarvex::cli
