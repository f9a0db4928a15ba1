#include "refdata/reference_database.h"

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "common/error.h"
#include "common/item_list.h"
#include "platform/platform.h"

namespace tarvex {

namespace {

namespace fs = std::filesystem;

constexpr long kExplorerDialog = 0x80000;  // the explorer-style open dialog

// The folder of a chosen file: its path up to the first occurrence of its name. Empty when
// nothing was chosen or the name isn't in the path.
std::string FolderOfChoice(const FileDialogResult& choice) {
    if (choice.cancelled || choice.fileTitle.empty()) return {};
    const size_t at = choice.fileName.find(choice.fileTitle);
    if (at == std::string::npos) return {};
    return choice.fileName.substr(0, at);
}

std::string CurrentFolder() {
    std::error_code error;
    const fs::path folder = fs::current_path(error);
    return error ? std::string() : folder.string();
}

// The rename of a file is on disk only once its folder is.
void SyncFolderOf(const std::string& path) {
    const std::string folder = fs::path(path).parent_path().string();
    const int fd =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) return;
    ::fsync(fd);
    ::close(fd);
}

void FileOperation(bool done, const std::error_code& error) {
    if (!done || error) {
        Raise(error == std::errc::permission_denied ? kErrPermissionDenied : kErrPathAccess,
              error ? error.message() : std::string());
    }
}

}  // namespace

bool ReferenceDatabase::OpenReferenceDatabase(Dialogs& dialogs) {
    try {
        theDB.Open(DBPath);
        return true;
    } catch (const AppError&) {
    }
    const std::string title = std::string("Unable to locate <") + kDatabaseFileName + ">";
    const MsgAnswer answer = dialogs.MsgBox({title + "\nDo you want to try and locate it yourself?",
                                             title, MsgButtons::YesNo, MsgIcon::Question});
    if (answer != MsgAnswer::Yes) return false;

    FileDialogRequest request;
    request.title = "Locate Tarvex Folder";
    request.filter = "(*.mdb)|*.mdb";
    request.initDir = CurrentFolder();
    request.flags = kExplorerDialog;
    std::string folder;
    try {
        folder = FolderOfChoice(dialogs.ShowOpen(request));
    } catch (const AppError&) {
        // A cancel reported as an error ends the same way as any other cancel.
    }
    if (folder.empty()) return false;

    DBPath = folder + kDatabaseFileName;
    try {
        theDB.Open(DBPath);
        return true;
    } catch (const AppError& error) {
        dialogs.MsgBox({"Unable to open " + DBPath + "\nError: [" + error.Description() + "]",
                        title, MsgButtons::OK, MsgIcon::Critical});
        return false;
    }
}

bool ReferenceDatabase::CheckMissionSummaries() {
    SummariesLoaded = false;
    theRS = theDB.OpenRecordset("SELECT Count(*) FROM tblMissions ", kSnapshot);
    const bool loaded = theRS.Fields(0).Long() > 0;
    theRS.Close();
    SummariesLoaded = loaded;
    return loaded;
}

MissionSummariesCheck ReferenceDatabase::CheckMissionSummaries(Dialogs& dialogs) {
    MissionSummariesCheck check;
    try {
        check.summariesLoaded = CheckMissionSummaries();
    } catch (const AppError&) {
        theRS.Close();
        dialogs.MsgBox({"Unable to open [tblMissions] table in database. Current database is:\n" +
                            DBPath +
                            "\nPlease confirm that no other version of [Tarvex Missions.mdb] "
                            "exists on your system",
                        "Missing Table in Database", MsgButtons::OK, MsgIcon::Critical});
        check.endProgram = true;
    }
    return check;
}

void ReferenceDatabase::CloseReferenceDatabase() noexcept {
    theRS.Close();
    try {
        theDB.Close();
    } catch (...) {
    }
}

void ReferenceDatabase::FillListFromQuery(ItemList& list, const std::string& sql) {
    list.Clear();
    try {
        theRS = theDB.OpenRecordset(sql, kSnapshot);
        for (int index = 0; !theRS.Eof(); ++index) {
            list.AddItem(theRS.Fields(0).Text());
            list.SetItemData(index, theRS.Fields(1).Long());
            theRS.MoveNext();
        }
    } catch (...) {
        theRS.Close();
        throw;
    }
    theRS.Close();
}

void ReferenceDatabase::CompactReferenceDatabase(
    Dialogs& dialogs, const std::function<void(const std::string&)>& showMessage,
    const std::function<void()>& closeMessage) {
    if (showMessage) showMessage("Compacting Database");
    CloseReferenceDatabase();

    std::string tempName;
    std::string failure;
    try {
        tempName = DBPath.substr(0, DBPath.size() >= 3 ? DBPath.size() - 3 : 0) + "tmp";
        // A copy that an interrupted compaction left is of no use to anyone.
        std::error_code error;
        if (fs::is_regular_file(tempName, error)) fs::remove(tempName, error);
        Database::CompactDatabase(DBPath, tempName);
        // Another running copy still writing through its log would write into the file that
        // the rename replaces; the compaction waits for a moment when the file is free.
        if (fs::file_size(DBPath + "-wal", error) > 0 && !error) {
            fs::remove(tempName, error);
            Raise(kErrPathAccess, "another copy of Tarvex Mission Editor is using the database");
        }
        // One atomic step: at every moment there is a whole database under the name, the old
        // one or the compacted one.
        fs::rename(tempName, DBPath, error);
        FileOperation(true, error);
        SyncFolderOf(DBPath);
        tempName.clear();
    } catch (const AppError& error) {
        failure = error.Description();
    } catch (const std::exception& error) {
        failure = error.what();
    }

    std::error_code error;
    if (fs::exists(DBPath, error)) {
        try {
            theDB.Open(DBPath);
        } catch (const AppError&) {
            // The program goes on without the database, as it would without the file.
        }
    }
    if (closeMessage) closeMessage();
    if (!tempName.empty()) {
        dialogs.MsgBox({"Error compacting Database.\nError: [" + failure +
                            "]\nIf all else fails, try restarting Tarvex Mission Editor",
                        "Database Compact Error", MsgButtons::OK, MsgIcon::Exclamation});
    }
}

bool IsReferenceDatabaseFile(const std::string& path, std::string& why) {
    std::error_code error;
    if (!fs::exists(path, error)) {
        why = "database not found: " + path;
        return false;
    }
    const std::string notOurs = "not a Tarvex reference database: " + path;
    if (!fs::is_regular_file(path, error)) {
        why = notOurs + " (it is not a file)";
        return false;
    }
    // Read only, so that whatever the file is, it stays as it was.
    std::string problem;
    try {
        Database db;
        db.OpenReadOnly(path);
        Recordset rs = db.OpenRecordset(
            "SELECT Count(*) FROM sqlite_master WHERE name IN ('Aircraft', 'Airfields', 'Maps', "
            "'GrndNames', 'GrndTypes', 'Stationary', 'frmNames', 'frmPatterns', 'tblMissions', "
            "'qryNextGuID', 'qryGroundUnitDetails')",
            kSnapshot);
        if (rs.Fields(0).Long() != 11) problem = " (the program's tables are missing)";
    } catch (const AppError&) {
        problem = " (not a database file)";
    }
    if (problem.empty()) return true;
    why = notOurs + problem;
    return false;
}

std::int32_t LayoutIdFromItemData(std::int32_t value) {
    return value >= 10001 ? value % 10000 : value;
}

}  // namespace tarvex
