#pragma once
// The program's one connection to the reference database, the recordset slot that every
// lookup shares, and the procedures around them: locating and opening the file at start-up,
// the check that it is the right database, filling lists from queries, compaction.
#include <cstdint>
#include <functional>
#include <string>

#include "refdata/database.h"
#include "refdata/recordset.h"

namespace tarvex {

class Dialogs;
class ItemList;

// The fixed name of the database file inside its folder.
inline constexpr const char* kDatabaseFileName = "Tarvex Missions.mdb";

struct MissionSummariesCheck {
    bool summariesLoaded = false;  // tblMissions has rows
    bool endProgram = false;       // the file isn't the reference database: the program ends
};

class ReferenceDatabase {
  public:
    ReferenceDatabase() = default;
    ReferenceDatabase(const ReferenceDatabase&) = delete;
    ReferenceDatabase& operator=(const ReferenceDatabase&) = delete;

    // Opens DBPath; when that fails, offers to locate the folder that holds the database and
    // opens "Tarvex Missions.mdb" there. False when the program can't go on and must end.
    bool OpenReferenceDatabase(Dialogs& dialogs);

    // Whether tblMissions has rows; the answer is also kept in SummariesLoaded. A failure
    // raises the error (the summary scan handles it itself).
    bool CheckMissionSummaries();
    // The start-up form: a failure shows the "Missing Table in Database" box and asks the
    // program to end.
    MissionSummariesCheck CheckMissionSummaries(Dialogs& dialogs);

    // Closes theRS, then theDB; never fails, whatever state the two are in.
    void CloseReferenceDatabase() noexcept;

    // Clears the list and adds one row per record of the query: field 0 the text, field 1
    // (a whole number) the item data. A query without rows leaves the list empty.
    void FillListFromQuery(ItemList& list, const std::string& sql);

    // Compacts the file in place and opens it again; a failure is reported in the
    // "Database Compact Error" box and the program goes on. The two callbacks show and close
    // the message window around the work.
    void CompactReferenceDatabase(Dialogs& dialogs,
                                  const std::function<void(const std::string&)>& showMessage,
                                  const std::function<void()>& closeMessage);

    std::string DBPath;
    Database theDB;
    Recordset theRS;
    bool SummariesLoaded = false;
};

// Whether a file is a reference database, looked at without writing to it: a database file
// of the engine with the program's tables. False, with the reason in words, otherwise.
bool IsReferenceDatabaseFile(const std::string& path, std::string& why);

// A layout list's item data to the layout id it stands for: an airfield layout's value
// (k * 10000 + id) from 10001 on is reduced to its remainder by 10000; 10000 itself stays.
std::int32_t LayoutIdFromItemData(std::int32_t value);

}  // namespace tarvex
