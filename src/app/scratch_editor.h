#pragma once
// An editor on a scratch database, for the programs that need one without touching the user's
// files: benchmarks, the fuzzer, generators and tests. The folder and all in it go with it.
#include <filesystem>
#include <string>
#include <vector>

#include "app/headless_editor.h"

namespace tarvex {

// A new folder of its own under the system's temporary folder, "tarvex-<purpose>-XXXXXX",
// removed with everything in it. Raises std::runtime_error when none can be made.
class TempFolder {
  public:
    explicit TempFolder(const std::string& purpose);
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder();

    const std::filesystem::path& Path() const { return path_; }

  private:
    std::filesystem::path path_;
};

// A reference database at `file`, built from SQL scripts run in order (the schema, then the
// seed). Raises std::runtime_error with the engine's words when a script fails.
void BuildReferenceDatabase(const std::filesystem::path& file,
                            const std::vector<std::filesystem::path>& scripts);

struct ScratchOptions {
    // The database: built from these scripts, or else a copy of `database`.
    std::vector<std::filesystem::path> scripts;
    std::filesystem::path database;
    // Where the map bitmaps are; a folder without them leaves plain surfaces.
    std::filesystem::path mapFolder;
    bool metric = true;
};

// A started headless editor on a private database in a scratch folder, with an empty
// simulator folder (its "missions" folder made). Raises std::runtime_error when it can't start.
class ScratchEditor : public HeadlessEditor {
  public:
    explicit ScratchEditor(const ScratchOptions& options, const std::string& purpose = "editor");

    const std::filesystem::path& Folder() const { return folder_.Path(); }
    std::filesystem::path DatabasePath() const { return Folder() / "Tarvex Missions.mdb"; }
    // With a trailing separator, as the settings keep it.
    std::filesystem::path SimFolder() const { return Folder() / "sim" / ""; }

  private:
    TempFolder folder_;
};

}  // namespace tarvex
