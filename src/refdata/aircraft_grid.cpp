#include "refdata/aircraft_grid.h"

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "refdata/aircraft_records.h"
#include "shell/editor.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex::frm_aircraft {

namespace {

enum Column : int {
    kColId = 0,
    kColFilename = 1,
    kColName = 2,
    kColFamilyId = 4,
    kColAllegianceId = 6,
};

void ShowUpdateFailure(Editor& ed, const AppError& error) {
    MessageBoxRequest box;
    box.text = "Unable to update Aircraft Record\nError Message [" + error.Description() +
               "]\nErrror Number [" + IntText(error.Number()) + "]";
    box.title = "Aircraft Record Update Error";
    box.icon = MsgIcon::Critical;
    ed.svc.dialogs.MsgBox(box);
}

// The typed id, when it is one the table can hold; otherwise the cell keeps its value and
// the status strip says why.
bool TypedId(Editor& ed, std::int16_t& id) {
    const double typed = Val(ed.frmAircraft.grdDataGrid.Columns(kColId).Text());
    if (typed > 0.5 && typed < 32767.5) {
        id = CInt(typed);
        return true;
    }
    ShowStatus(ed, "An aircraft ID is a whole number from 1 to 32767.", kStatusWarning);
    return false;
}

// An id entered in the new row: refused when any aircraft has it, whatever the filter shows.
void CheckNewId(Editor& ed) {
    auto& grid = ed.frmAircraft.grdDataGrid;
    ShowStatus(ed, "");
    std::int16_t id = 0;
    if (!TypedId(ed, id)) {
        grid.SetCurrentCellModified(false);
        return;
    }
    // The row takes the number, not the text typed.
    grid.Columns(kColId).SetValue(static_cast<int>(id));
    Recordset& rs = ed.db.theRS;
    try {
        rs = ed.db.theDB.OpenRecordset("SELECT ACID FROM Aircraft Where ACId=" + IntText(id),
                                       kSnapshot);
        const bool inUse = !rs.Eof();
        rs.Close();
        if (inUse) {
            MessageBoxRequest box;
            box.text = "Aircraft ID [" + IntText(id) +
                       "] is not unique.\nPlease find and enter an ID not in use";
            box.title = "Aircraft ID not Unique";
            box.icon = MsgIcon::Exclamation;
            ed.svc.dialogs.MsgBox(box);
            grid.SetCurrentCellModified(false);
        }
    } catch (const AppError&) {
        rs.Close();
        throw;
    }
    ed.aircraftRecords.AircraftChanged = true;
}

}  // namespace

void cmdAdd_Click(Editor& ed) {
    auto& f = ed.frmAircraft;
    auto& grid = f.grdDataGrid;
    Recordset& rs = ed.db.theRS;
    try {
        // From the last row a step down reaches the new row; with no rows it is the first.
        grid.SetFocus();
        const int count = grid.RowCount();
        if (count > 0) {
            grid.UserMoveTo(count - 1, kColId);
            grid.UserKeyDown(kKeyDown, 0);
        } else {
            grid.UserMoveTo(0, kColId);
        }
        SetIDColumnsLocked(ed, false);
        rs = ed.db.theDB.OpenRecordset("qryNextAcID");
        if (grid.OnNewRow()) grid.Columns(kColId).SetValue(rs.Fields("NextID").Value());
        rs.Close();
    } catch (const AppError& error) {
        rs.Close();
        f.datPrimaryRS.ReportUserError(error);
    }
}

void cmdUpdate_Click(Editor& ed) {
    auto& f = ed.frmAircraft;
    DataSource& source = f.datPrimaryRS;
    try {
        Recordset& rs = source.Recordset();
        const bool pending = rs.GetEditMode() != EditMode::None;
        source.UpdateRecord();
        if (pending) {
            rs.SetBookmark(rs.LastModified());
            source.RowsChanged();
            source.RaiseReposition();
        }
        f.cmdUpdate.SetEnabled(false);
    } catch (const AppError& error) {
        ShowUpdateFailure(ed, error);
    }
}

void cmdDelete_Click(Editor& ed) {
    auto& f = ed.frmAircraft;
    MessageBoxRequest question;
    question.text = "Are you sure you want to delete this aircraft";
    question.title = "Delete Aircraft";
    question.buttons = MsgButtons::YesNo;
    question.icon = MsgIcon::Question;
    if (ed.svc.dialogs.MsgBox(question) == MsgAnswer::No) return;
    DataSource& source = f.datPrimaryRS;
    try {
        // The selected row is the one to go.
        if (!f.grdDataGrid.SelBookmarks().empty())
            source.MoveToBookmark(f.grdDataGrid.SelBookmarks().front());
        Recordset& rs = source.Recordset();
        rs.Delete();
        rs.MoveNext();
        if (rs.Eof() && rs.RecordCount() > 0) rs.MoveLast();
    } catch (const AppError& error) {
        source.ReportUserError(error);
        return;
    }
    ed.aircraftRecords.AircraftChanged = true;
    f.grdDataGrid.ClearSelBookmarks();
    f.cmdDelete.SetEnabled(false);
    source.RowsChanged();
    source.RaiseReposition();
}

void grdDataGrid_OnAddNew(Editor& ed) {
    auto& f = ed.frmAircraft;
    const auto preset = [&f](const ComboBox& filter, int col) {
        GridColumn& column = f.grdDataGrid.Columns(col);
        if (const int id = FilterId(filter)) {
            column.SetValue(id);
        } else if (column.Text().empty()) {
            column.SetValue(1);
        }
    };
    preset(f.cmbUnitRole, kColFamilyId);
    preset(f.cmbAirforce, kColAllegianceId);
}

void grdDataGrid_RowColChange(Editor& ed, int, int) {
    auto& f = ed.frmAircraft;
    auto& grid = f.grdDataGrid;
    // The browse button belongs to the new row's file name cell only.
    if (!grid.OnNewRow()) {
        f.btnBrowse.SetVisible(false);
        return;
    }
    if (grid.Col() > kColId && grid.Columns(kColId).Text().empty()) {
        MessageBoxRequest box;
        box.text = "You must enter an unique ID first before entering any data";
        ed.svc.dialogs.MsgBox(box);
        grid.SetFocus();
        grid.SetCol(kColId);
        return;
    }
    if (grid.Col() == kColFilename) {
        const GridColumn& cell = grid.Columns(kColFilename);
        CommandButton& browse = f.btnBrowse;
        browse.Move(grid.Left() + cell.Left() + cell.Width() - browse.Width(),
                    grid.Top() + grid.RowTop(grid.Row()) + 12);
        browse.SetVisible(true);
    } else {
        f.btnBrowse.SetVisible(false);
    }
}

void grdDataGrid_AfterColUpdate(Editor& ed, int col) {
    auto& f = ed.frmAircraft;
    auto& grid = f.grdDataGrid;
    f.cmdUpdate.SetEnabled(true);
    if (col == kColId) {
        CheckNewId(ed);
    } else if (col == kColFilename) {
        if (grid.Columns(kColName).Text().empty())
            grid.Columns(kColName).SetValue(grid.Columns(kColFilename).Value());
        ed.aircraftRecords.AircraftChanged = true;
        cmdUpdate_Click(ed);
    }
}

void grdDataGrid_AfterUpdate(Editor& ed) {
    ed.frmAircraft.cmdUpdate.SetEnabled(false);
}

void grdDataGrid_SelChange(Editor& ed) {
    auto& f = ed.frmAircraft;
    f.cmdDelete.SetEnabled(!f.grdDataGrid.SelBookmarks().empty());
}

void grdDataGrid_KeyDown(Editor& ed, int& keyCode, int) {
    if (keyCode != kKeyEscape) return;
    auto& f = ed.frmAircraft;
    auto& grid = f.grdDataGrid;
    if (!grid.DataChanged() && !grid.CurrentCellModified()) f.cmdUpdate.SetEnabled(false);
    if (grid.Col() == 3 || grid.Col() == 5) {
        // Out of the name cells that the pick lists fill.
        grid.SetCol(grid.Col() + 1);
        grid.SetCurrentCellModified(false);
    } else if (grid.Col() == kColId) {
        grid.SetDataChanged(false);
        f.cmdUpdate.SetEnabled(false);
    }
    f.btnBrowse.SetVisible(false);
}

void grdDataGrid_Click(Editor& ed) {
    PlaySound(ed, ed.shell.sndClick);
}

void SetIDColumnsLocked(Editor& ed, bool flag) {
    auto& grid = ed.frmAircraft.grdDataGrid;
    grid.Columns(kColId).SetLocked(flag);
    grid.Columns(kColFilename).SetLocked(flag);
}

void SaveNewAC(Editor& ed, const std::string& theFolder, const std::string& theACFile) {
    auto& f = ed.frmAircraft;
    auto& grid = f.grdDataGrid;
    if (!grid.OnNewRow()) return;
    grid.Columns(kColFilename).SetValue(theFolder);
    grid.Columns(kColName).SetValue(theACFile);
    // A file name entered from the aircraft's folder is an entry of column 1 like a typed one:
    // the Formations tab learns of the new aircraft when the window closes.
    ed.aircraftRecords.AircraftChanged = true;
    f.cmdUpdate.SetEnabled(true);
    grid.SetFocus();
    grid.SetCol(3);
}

void StorePendingRow(Editor& ed) {
    auto& f = ed.frmAircraft;
    auto& grid = f.grdDataGrid;
    if (!grid.DataChanged()) return;
    if (grid.OnNewRow() && grid.Columns(kColFilename).Text().empty()) return;
    try {
        f.datPrimaryRS.UpdateRecord();
    } catch (const AppError& error) {
        ShowUpdateFailure(ed, error);
    }
}

}  // namespace tarvex::frm_aircraft
