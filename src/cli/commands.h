#pragma once
// The commands of tarvex-mis. Each writes its results to `out` and its complaints to `err`
// and answers the process's exit code.
#include <iosfwd>
#include <string>
#include <vector>

namespace tarvex::cli {

enum ExitCode : int {
    kExitOk = 0,
    kExitLoadFailed = 1,    // a mission didn't load: the load report says why
    kExitInvalid = 2,       // a mission the simulator couldn't fly: nothing was written
    kExitSaveFailed = 3,    // the save or the export failed: the files on disk are as before
    kExitExportFailed = 4,  // the mission was written, but its export beside it failed
    kExitUsage = 64,        // bad arguments
    kExitNoDatabase = 66    // the reference database is missing or isn't one
};

// What every command may be told; empty paths take the editor's or the default installation's.
struct CommonOptions {
    std::string database;
    std::string simFolder;
    bool imperial = false;
};

// Load IN as File Open does, save it as OUT as File Save As does (with the export beside
// OUT). Works on the given database, which the load may extend as the editor's does.
int RunResave(const CommonOptions& options, const std::string& in, const std::string& out,
              std::ostream& cout, std::ostream& cerr);

// Loads and validates each file (a folder stands for its .mis files), on a scratch copy of
// the database: "OK" or the first line of the report, with the whole report under it.
int RunCheck(const CommonOptions& options, const std::vector<std::string>& files,
             std::ostream& cout, std::ostream& cerr);

// Writes the spreadsheet export beside IN, on a scratch copy of the database.
int RunExport(const CommonOptions& options, const std::string& in, std::ostream& cout,
              std::ostream& cerr);

// Prints a unified diff between IN and what a resave of it would write (nothing when a resave
// changes nothing), on a scratch copy of the database.
int RunDiff(const CommonOptions& options, const std::string& in, std::ostream& cout,
            std::ostream& cerr);

// What play is told besides the common options.
struct PlayOptions {
    std::string scenario;
    std::vector<std::string> missions;
    // Work on the database itself rather than a scratch copy of it.
    bool writeDatabase = false;
};

// Runs a scenario on a fresh headless editor, once, or once per mission with $MISSION set:
// "OK" or the line where it stopped, with what differed on `cerr`.
int RunPlay(const CommonOptions& options, const PlayOptions& play, std::ostream& cout,
            std::ostream& cerr);

// Prints what IN holds, as text or JSON, on a scratch copy of the database.
int RunInfo(const CommonOptions& options, const std::string& in, bool json, std::ostream& cout,
            std::ostream& cerr);

// Fills tblMissions of the database from the simulator's missions folder, as the editor's
// Missions Summary does, and prints the number of missions read (or, as JSON, the rows).
int RunScan(const CommonOptions& options, bool json, std::ostream& cout, std::ostream& cerr);

}  // namespace tarvex::cli
