#include "ground/layout_units.h"

#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "ground/layout_drawing.h"
#include "ground/offsets_window.h"
#include "refdata/transaction.h"
#include "shell/editor.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

constexpr int kDefaultPointer = 0;

// A click on the map taken back through the layout's turn to a stored offset.
void ClickToOffset(Editor& ed, float x, float y, float& xOffset, float& yOffset) {
    float a = 0;
    float b = 0;
    MapToOffset(ed, a, b, x, y);
    ed.transform.TurnOffset(a, b);
    if (ed.transform.FineRotation != 0) ed.transform.RotateOffset(a, b);
    xOffset = -a;
    yOffset = b;
}

void ShowUnitError(Editor& ed, const AppError& error) {
    MessageBoxRequest box;
    box.text = "Unable to add the unit to the Ground Layout.\nError: " + IntText(error.Number()) +
               " " + error.Description();
    box.title = "Add Stationary Unit";
    box.icon = MsgIcon::Exclamation;
    ed.svc.dialogs.MsgBox(box);
}

}  // namespace

void AddStationaryUnit(Editor& ed, float x, float y, std::int32_t layoutId, std::int32_t unitType) {
    if (ed.ground.LayoutLocked) return;
    float xOffset = 0;
    float yOffset = 0;
    ClickToOffset(ed, x, y, xOffset, yOffset);
    Database& db = ed.db.theDB;
    try {
        // The unit and the layout's fingerprint go in together or not at all.
        Transaction transaction(db);
        try {
            Recordset units = db.OpenRecordset("GrndTypes");
            units.AddNew();
            units.Fields("ID") = layoutId;
            units.Fields("UnitType") = unitType;
            units.Fields("XOffset") = static_cast<double>(xOffset);
            units.Fields("YOffset") = static_cast<double>(yOffset);
            units.Update();
            units.Close();
            Recordset layout = db.OpenRecordset("SELECT ID,UnitTotal FROM GrndNames WHERE ID =" +
                                                IntText(layoutId));
            layout.MoveFirst();
            layout.Edit();
            layout.Fields("UnitTotal") =
                static_cast<long long>(layout.Fields("UnitTotal").Long()) + unitType;
            layout.Update();
        } catch (const AppError&) {
            transaction.Rollback();
            throw;
        }
    } catch (const AppError& error) {
        ShowUnitError(ed, error);
        return;
    }
    auto& w = ed.frmGUOffsets;
    w.LoadForm();
    w.dbgGUOffsets.ClearSelBookmarks();
    SetOffsetsSource(ed);
    FitOffsetsWindow(ed);
}

void MoveSelectedUnit(Editor& ed, float x, float y) {
    GroundState& g = ed.ground;
    DataSource& offsets = ed.frmGUOffsets.dataGUOffsets;
    if (g.LayoutLocked || g.SelectedUnit < 0 || !offsets.HasRecordset()) return;
    float xOffset = 0;
    float yOffset = 0;
    ClickToOffset(ed, x, y, xOffset, yOffset);
    Recordset& rs = offsets.Recordset();
    try {
        if (rs.AbsolutePosition() != g.SelectedUnit) rs.SetAbsolutePosition(g.SelectedUnit);
        rs.Edit();
        rs.Fields(2) = static_cast<double>(xOffset);
        rs.Fields(3) = static_cast<double>(yOffset);
        rs.Update();
    } catch (const AppError& error) {
        if (rs.IsOpen() && rs.GetEditMode() != EditMode::None) rs.CancelUpdate();
        offsets.ReportUserError(error);
        return;
    }
    offsets.RowsChanged();
}

void CancelUnitSelection(Editor& ed) {
    DataGrid& grid = ed.frmGUOffsets.dbgGUOffsets;
    if (ed.FrmMission.chkDataWindow.Value() == kChecked && !grid.SelBookmarks().empty()) {
        grid.RemoveSelBookmark(static_cast<int>(grid.SelBookmarks().size()) - 1);
        ed.frmGUOffsets.btnDelGU.SetEnabled(false);
    }
    ed.ground.SelectedUnit = -1;
    ed.FrmMission.mapGroundUnits.SetMousePointer(kDefaultPointer);
}

}  // namespace tarvex
