#include "library/mission_browser_actions.h"

#include <filesystem>
#include <system_error>

#include "common/error.h"
#include "common/number_text.h"
#include "common/paths.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "library/mission_browser.h"
#include "refdata/record_windows.h"
#include "shell/editor.h"
#include "shell/forms/frm_tbl_missions.h"

namespace tarvex::frm_tbl_missions {

namespace {

namespace fs = std::filesystem;

constexpr int kColTitle = 1;
constexpr int kColFilename = 13;

bool OnRecord(Editor& ed) {
    const DataGrid& grid = ed.frmtblMissions.grdDataGrid;
    return grid.Row() >= 0 && grid.Row() < grid.RowCount();
}

// The current row's file, and its name as the folder lists it: empty when it has gone.
void SelectedMission(Editor& ed, std::string& path, std::string& file) {
    path = ed.frmtblMissions.grdDataGrid.Columns(kColFilename).Text();
    std::error_code error;
    const fs::path native(NativePath(path));
    file = fs::is_regular_file(native, error) ? native.filename().string() : std::string();
}

bool SameFile(const std::string& a, const std::string& b) {
    if (a.empty() || b.empty()) return false;
    std::error_code error;
    return fs::equivalent(fs::path(NativePath(a)), fs::path(NativePath(b)), error);
}

void ShowDeleteFailure(Editor& ed, const std::string& what, const std::string& path,
                       const AppError& error) {
    MessageBoxRequest box;
    box.text = what + "\n[" + path + "]\n" + error.Description() + " Error [" +
               IntText(error.Number()) + "]";
    box.title = "Delete Mission File";
    box.icon = MsgIcon::Critical;
    ed.svc.dialogs.MsgBox(box);
}

void DeleteMissionFile(const std::string& path) {
    std::error_code error;
    if (fs::remove(fs::path(NativePath(path)), error)) return;
    if (!error || error == std::errc::no_such_file_or_directory) Raise(kErrFileNotFound);
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted)
        Raise(kErrPermissionDenied);
    Raise(kErrPathAccess);
}

}  // namespace

void ReadSelectedMission(Editor& ed) {
    SelectedMission(ed, ed.doc.MissionPath, ed.doc.MissionFile);
}

void LoadSelectedMission(Editor& ed) {
    if (!OnRecord(ed)) return;
    LoweredFlag loading(ed.doc.NotLoading);
    ResetMission(ed);
    ReadSelectedMission(ed);
    LoadMission(ed);
    ed.frmtblMissions.UnloadForm();
}

void grdDataGrid_DblClick(Editor& ed) {
    LoadSelectedMission(ed);
}

void cmdLoad_Click(Editor& ed) {
    LoadSelectedMission(ed);
}

void btnDelete_Click(Editor& ed) {
    if (!OnRecord(ed)) return;
    auto& f = ed.frmtblMissions;
    // The row's mission is read for the question and the deletion only: the mission open in
    // the editor keeps its file.
    std::string path;
    std::string file;
    SelectedMission(ed, path, file);

    MessageBoxRequest question;
    question.text = "You are about to delete the following:\n\nFile: " + file +
                    "\nTitle: " + f.grdDataGrid.Columns(kColTitle).Text() + "\n\nAre you sure?";
    question.title = "Delete Mission File";
    question.buttons = MsgButtons::YesNo;
    question.icon = MsgIcon::Exclamation;
    if (ed.svc.dialogs.MsgBox(question) == MsgAnswer::No) return;

    const bool openMission = SameFile(path, ed.doc.MissionPath);
    try {
        DeleteMissionFile(path);
    } catch (const AppError& error) {
        ShowDeleteFailure(ed, "The mission file could not be deleted; its summary stays.", path,
                          error);
        return;
    }
    // The next save of the open mission must not bring the deleted file back unasked.
    if (openMission) ed.doc.MissionPath.clear();
    try {
        f.datPrimaryRS.Recordset().Delete();
    } catch (const AppError& error) {
        ShowDeleteFailure(ed, "The mission file was deleted, but its summary could not be removed.",
                          path, error);
    }
    RefreshRecordSource(f.datPrimaryRS);
    ShowMissionDetails(ed);
}

}  // namespace tarvex::frm_tbl_missions
