#include "refdata/record_windows.h"

#include "common/error.h"
#include "refdata/transaction.h"
#include "shell/controls/data_grid.h"
#include "shell/controls/data_source.h"
#include "shell/editor.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

void ShowDataError(Editor& ed, const std::string& text) {
    MessageBoxRequest box;
    box.text = "Data error event hit err:" + text;
    ed.svc.dialogs.MsgBox(box);
}

void RefreshRecordSource(DataSource& source) {
    try {
        source.Refresh();
    } catch (const AppError& error) {
        source.ReportUserError(error);
    }
}

void DeleteSelectedRecords(Editor& ed, DataSource& source, DataGrid& grid) {
    const auto rows = grid.SelBookmarks();
    try {
        Recordset& records = source.Recordset();
        Transaction transaction(source.Connection());
        try {
            for (RecordBookmark row : rows) {
                records.SetBookmark(row);
                records.Delete();
            }
        } catch (const AppError&) {
            transaction.Rollback();
            throw;
        }
    } catch (const AppError& error) {
        ShowDataError(ed, error.Description());
    }
    grid.ClearSelBookmarks();
    RefreshRecordSource(source);
}

bool LayoutEditorOpen(Editor& ed) {
    // The ground map's tag says whether it shows the layout editor.
    return ed.FrmMission.mapGroundUnits.Tag() == "True";
}

void UnlockCompactMenu(Editor& ed, const Form& closing) {
    const Form* windows[] = {&ed.frmAircraft, &ed.frmGrndNames, &ed.frmtblMissions};
    for (const Form* window : windows)
        if (window != &closing && window->Loaded()) return;
    if (LayoutEditorOpen(ed)) return;
    ed.MDIMissionED.mnuCompact.SetEnabled(true);
}

}  // namespace tarvex
