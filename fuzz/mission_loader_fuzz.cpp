// Feeds arbitrary bytes to the mission reader as File Open would: a fresh document, then the
// load, against a private reference database. Whatever the bytes, the load must end in a
// document or a load report, never in a crash, a hang or undefined behaviour.
#include <cstdint>
#include <filesystem>
#include <fstream>

#include "app/scratch_editor.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"

namespace {

using namespace tarvex;
namespace fs = std::filesystem;

// One started editor for the whole run; each input gets a fresh document.
struct Harness : ScratchEditor {
    fs::path mission;

    Harness()
        : ScratchEditor({{fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "schema.sql",
                          fs::path(TARVEX_SOURCE_DIR) / "data" / "refdb" / "seed.sql"},
                         {},
                         // No bitmaps: a map that can't be loaded leaves a plain surface, and
                         // the run stays fast.
                         fs::path(TARVEX_SOURCE_DIR) / "no-maps",
                         true},
                        "fuzz"),
          mission(SimFolder() / "missions" / "fuzz.mis") {}

    void Load(const std::uint8_t* data, std::size_t size) {
        std::ofstream(mission, std::ios::binary | std::ios::trunc)
            .write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
        Editor& e = ed();
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
        dialogs().ClearRecord();
    }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static Harness* harness = new Harness();
    harness->Load(data, size);
    return 0;
}
