// Feeds arbitrary bytes to the mission reader as File Open would: a fresh document, then the
// load, against a private reference database. Whatever the bytes, the load must end in a
// document or a load report, never in a crash, a hang or undefined behaviour.
#include <sqlite3.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "shell/editor.h"
#include "shell/scripted_platform.h"
#include "shell/settings.h"
#include "shell/startup.h"

namespace {

using namespace tarvex;
namespace fs = std::filesystem;

std::string ReadAll(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// One started editor for the whole run; each input gets a fresh document.
struct Harness : ScriptedServices {
    std::unique_ptr<Editor> ed;
    fs::path folder;
    fs::path mission;

    Harness() {
        std::string pattern = (fs::temp_directory_path() / "tarvex-fuzz-XXXXXX").string();
        if (!::mkdtemp(pattern.data())) std::abort();
        folder = pattern;
        mission = folder / "sim" / "missions" / "fuzz.mis";
        fs::create_directories(mission.parent_path());
        fs::create_directories(folder / "maps");
        const fs::path db = folder / "Tarvex Missions.mdb";
        const fs::path refdb = fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb";
        sqlite3* handle = nullptr;
        if (sqlite3_open(db.string().c_str(), &handle) != SQLITE_OK) std::abort();
        for (const char* script : {"schema.sql", "seed.sql"})
            if (sqlite3_exec(handle, ReadAll(refdb / script).c_str(), nullptr, nullptr, nullptr) !=
                SQLITE_OK)
                std::abort();
        sqlite3_close(handle);

        auto put = [&](const char* key, const std::string& value) {
            settings.values[{kSettingsApp, kSettingsSection, key}] = value;
        };
        put("Path", (folder / "sim").string() + "/");
        put("Sortak DB", db.string());
        // No bitmaps: a map that can't be loaded leaves a plain surface, and the run stays fast.
        put("Sortak Map", (folder / "maps").string() + "/");
        put("Measurement", "True");
        ed = std::make_unique<Editor>(Bind());
        ReadSettings(*ed);
        if (!LoadMainWindow(*ed)) std::abort();
    }

    void Load(const std::uint8_t* data, std::size_t size) {
        std::ofstream(mission, std::ios::binary | std::ios::trunc)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
        Editor& e = *ed;
        // What the load adds to the database is undone, so that every input meets the same
        // database. The loader's own transaction then folds into this one.
        e.db.theDB.Execute("BEGIN");
        e.doc.NotLoading = false;
        ResetMission(e);
        e.doc.MissionPath = mission.string();
        e.doc.MissionFile = mission.filename().string();
        LoadMission(e);
        e.doc.NotLoading = true;
        e.db.theRS.Close();
        e.db.theDB.Execute("ROLLBACK");
        dialogs.ClearRecord();
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Harness* harness = new Harness();
    harness->Load(data, size);
    return 0;
}
