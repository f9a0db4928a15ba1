#pragma once
// A private copy of the reference database in a temporary folder of its own, for commands
// that must not change the user's database: loading a mission may add layouts to it.
//
// The copy goes with the object, and also when the run is interrupted: Ctrl-C, a hang-up or
// a termination removes it before the process ends. A run killed outright leaves its folder
// behind ("tarvex-mis-<process>-XXXXXX"); the next copy removes the folders whose process no
// longer runs.
#include <string>

namespace tarvex::cli {

class ScratchDatabase {
  public:
    ScratchDatabase() = default;
    ScratchDatabase(const ScratchDatabase&) = delete;
    ScratchDatabase& operator=(const ScratchDatabase&) = delete;
    // Removes the copy and its folder.
    ~ScratchDatabase();

    // Copies `source` through the engine, so that a copy taken while the editor writes is
    // still consistent, and the source is only read. False, with the reason in `error`, when
    // the source is missing or isn't a database.
    bool CopyFrom(const std::string& source, std::string& error);

    const std::string& Path() const { return path_; }

  private:
    std::string folder_;
    std::string path_;
};

// Removes the scratch folders of earlier runs whose process is no longer running.
void RemoveAbandonedScratchFolders();

}  // namespace tarvex::cli
