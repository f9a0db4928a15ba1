// Start-up of the program up to the main window, with the splash skipped, on the default
// installation: settings, database, the lists filled from it, the new mission and its tab.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "app/make_editor.h"
#include "platform/scripted_platform.h"
#include "shell/forms/frm_mission.h"
#include "shell/settings.h"
#include "shell/startup.h"

namespace {

using namespace tarvex;

void BM_StartProgram(benchmark::State& state) {
    const std::filesystem::path install =
        std::filesystem::path(TARVEX_BINARY_DIR) / "default-install";
    const std::filesystem::path home = std::filesystem::current_path();
    for (auto _ : state) {
        ScriptedServices services;
        const auto put = [&](const char* key, const std::string& value) {
            services.settings.Save(kSettingsApp, kSettingsSection, key, value);
        };
        put("Path", (install / "Tarvex").string() + "/");
        put("Sortak DB", (install / "Sortak" / "Sortak Data" / "Tarvex Missions.mdb").string());
        put("Sortak Map", (install / "Sortak" / "Sortak Maps").string() + "/");
        put("Last Tab", "3");
        auto editor = MakeEditor(services.Bind());
        Editor& ed = *editor;
        if (!StartProgram(ed, "", true)) state.SkipWithError("start-up ended the program");
        benchmark::DoNotOptimize(ed.FrmMission.cmbMovingType.ListCount());
        std::filesystem::current_path(home);
    }
}
BENCHMARK(BM_StartProgram)->Unit(benchmark::kMillisecond);

}  // namespace
