#include "ground/offsets_window.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "document/coord_text.h"
#include "ground/layout_drawing.h"
#include "ground/layout_editor.h"
#include "ground/layout_units.h"
#include "refdata/record_windows.h"
#include "refdata/shared_lookup.h"
#include "refdata/transaction.h"
#include "shell/editor.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/setting_values.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

constexpr int kDefaultPointer = 0;
constexpr int kCrossPointer = 2;
// The grid's columns of the offsets in layout units, and in metres or feet.
constexpr int kXOffsetColumn = 2;
constexpr int kMetresXColumn = 4;
constexpr int kMetresYColumn = 5;
// The window's caption bar and borders, which its inner height leaves out.
constexpr float kWindowFrameHeight = 405;
constexpr float kLowestHeight = 1400;
constexpr float kHighestHeight = 5736;
constexpr float kWidestGrid = 2544;
// One layout unit in the two unit systems, as the offsets queries show it.
constexpr double kMetresPerLayoutUnit = 1000;
constexpr double kFeetPerLayoutUnit = 3280.8;

std::string Heading3(double heading) {
    return Format(NormalizeHeading(static_cast<float>(heading)), "000");
}

bool MovesWithTheSpinner(const GroundState& g) {
    return (g.OffsetColumn == 2 || g.OffsetColumn == 3) && !g.LayoutLocked;
}

// The picture of the layout, when the editor shows it.
void RedrawLayout(Editor& ed) {
    if (ed.FrmMission.mapGroundUnits.Tag() != "True") return;
    try {
        DrawGU(ed);
    } catch (const AppError&) {
    }
}

void SetLeftTopFromSettings(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    const double left = Val(GetSetting(ed, "frmGUOffset Left"));
    const double top = Val(GetSetting(ed, "frmGUOffset Top"));
    if (left != 0 || top != 0) {
        w.Move(static_cast<float>(left), static_cast<float>(top));
    } else {
        w.Move(ed.MDIMissionED.Left() + 96, ed.MDIMissionED.Top() + 672);
    }
}

// IsDefault of the layout: from its first unit row, or from the layout itself when it has
// none.
bool LayoutIsLocked(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    if (w.dataGUOffsets.HasRecordset() && w.dataGUOffsets.Recordset().RecordCount() > 0) {
        Recordset& rs = w.dataGUOffsets.Recordset();
        rs.MoveFirst();
        return rs.Fields("IsDefault").Bool();
    }
    SharedLookup lookup(
        ed.db, "SELECT IsDefault FROM GrndNames Where ID=" + IntText(ed.ground.EditedLayoutID));
    return lookup.First().Fields(0).Bool();
}

}  // namespace

void SetOffsetsSource(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    const char* query = ed.options.Measurement ? "qryGUOffsetsMetric" : "qryGUOffsetsImp";
    w.dbgGUOffsets.ClearSelBookmarks();
    w.dataGUOffsets.SetRecordSource(std::string("select [ID],[FullName],[XOffset],[YOffset],") +
                                    "[Expr1],[Expr2],[IsDefault] from [" + query + "] where [ID]=" +
                                    IntText(ed.ground.EditedLayoutID) + " ORDER BY Fullname");
    RefreshRecordSource(w.dataGUOffsets);
}

void SetOffsetCaptions(Editor& ed, double heading, int columnA, int columnB) {
    auto& w = ed.frmGUOffsets;
    w.LoadForm();
    w.dbgGUOffsets.Columns(columnA).SetCaption(Heading3(heading) + " / " + Heading3(heading - 180));
    w.dbgGUOffsets.Columns(columnB).SetCaption(Heading3(heading + 90) + " / " +
                                               Heading3(heading - 90));
    w.lblUpGU.SetCaption("Move Unit " + Format(NormalizeHeading(static_cast<float>(heading)), "0") +
                         " Degrees.");
    w.lblDownGU.SetCaption("Move Unit " +
                           Format(NormalizeHeading(static_cast<float>(heading - 180)), "0") +
                           " Degrees.");
}

void SetOffsetsTips(Editor& ed) {
    if (!ed.ground.OffsetsOpen) return;
    auto& w = ed.frmGUOffsets;
    if (!ed.options.ToolTipsOn) {
        w.dbgGUOffsets.SetToolTipText("");
        w.btnOffsetEdit.SetToolTipText("");
        return;
    }
    w.dbgGUOffsets.SetToolTipText(
        ed.ground.LayoutLocked
            ? "Default Offset data cannot be modified. Use [Save Layout] to create copy first."
            : "Offset data can be modified by selecting the column and entering new x/y offsets");
    w.btnOffsetEdit.SetToolTipText(
        "Click to move the selected unit in the direction indicated by the column header");
}

void FitOffsetsWindow(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    DataGrid& grid = w.dbgGUOffsets;
    const int count =
        w.dataGUOffsets.HasRecordset() ? w.dataGUOffsets.Recordset().RecordCount() : 0;
    float h = static_cast<float>(
        RoundHalfEven((grid.RowHeight() + 1) * count + w.Picture1.ScaleHeight() + 912));
    if (h >= kHighestHeight + 1) h = kHighestHeight;
    if (h < kLowestHeight) h = kLowestHeight;
    w.SetHeight(h);
    grid.SetHeight(std::max(0.0f, h - kWindowFrameHeight - w.Picture1.ScaleHeight() - 90));
    grid.SetWidth(std::min(grid.Width() + 216, kWidestGrid));
    w.SetWidth(grid.Width() + 96);
}

namespace frm_gu_offsets {

void Form_Load(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    GroundState& g = ed.ground;
    w.dataGUOffsets.SetDatabaseName(ed.db.DBPath);
    // Beside the editor and above every other window, where a click on the map leaves it.
    w.SetTopMost(true);
    SetLeftTopFromSettings(ed);
    g.OffsetsOpen = true;
    SetOffsetsSource(ed);
    bool locked = true;
    try {
        locked = LayoutIsLocked(ed);
    } catch (const AppError&) {
        // A layout that can't be read is not changed from here.
    }
    ApplyLayoutLock(ed, locked);
    // Only the offsets in metres or feet are typed into; the rest change by the map and the
    // spinner.
    for (int c = 0; c < w.dbgGUOffsets.ColumnCount(); ++c)
        w.dbgGUOffsets.Columns(c).SetLocked(
            (c == kMetresXColumn || c == kMetresYColumn) ? g.LayoutLocked : true);
    SetOffsetsTips(ed);
    FitOffsetsWindow(ed);
    const ListBox& added = ed.FrmMission.lstGUAdded;
    w.SetCaption(Mid(added.List(added.ListIndex()), 5));
    SetOffsetCaptions(ed, ed.placement.LayoutHeading, kMetresXColumn, kMetresYColumn);
    g.OffsetLastValue = 0;
    g.OffsetColumn = 0;
    g.SelectedUnit = -1;
    g.OffsetStepDivisor = 100;
    w.btnOffsetEdit.SetValue(0);
    w.btnOffsetEdit.SetEnabled(false);
    w.lblUpGU.SetEnabled(false);
    w.lblDownGU.SetEnabled(false);
    w.btnDelGU.SetEnabled(false);
}

void Form_Unload(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    GroundState& g = ed.ground;
    PutSetting(ed, "frmGUOffset Left", FloatText(w.Left()));
    PutSetting(ed, "frmGUOffset Top", FloatText(w.Top()));
    g.OffsetsOpen = false;
    w.dbgGUOffsets.ClearSelBookmarks();
    w.dataGUOffsets.Close();
    // No unit can stay selected without its row.
    g.SelectedUnit = -1;
    ed.FrmMission.mapGroundUnits.SetMousePointer(kDefaultPointer);
    RedrawLayout(ed);
}

void dbgGUOffsets_RowColChange(Editor& ed, int, int) {
    auto& w = ed.frmGUOffsets;
    GroundState& g = ed.ground;
    g.OffsetColumn = static_cast<std::int16_t>(w.dbgGUOffsets.Col() - 2);
    const bool spins = MovesWithTheSpinner(g);
    w.btnOffsetEdit.SetEnabled(spins);
    w.lblUpGU.SetEnabled(spins);
    w.lblDownGU.SetEnabled(spins);
    if (!spins) return;
    g.OffsetLastValue = 0;
    w.btnOffsetEdit.SetValue(0);
    const std::string& heading = w.dbgGUOffsets.Columns(w.dbgGUOffsets.Col()).Caption();
    w.lblUpGU.SetCaption("Move Unit " + Left(heading, 3) + " Degrees.");
    w.lblDownGU.SetCaption("Move Unit " + Right(heading, 3) + " Degrees.");
}

void dbgGUOffsets_SelChange(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    GroundState& g = ed.ground;
    DataGrid& grid = w.dbgGUOffsets;
    PictureSurface& map = ed.FrmMission.mapGroundUnits;
    if (!grid.SelBookmarks().empty() && w.dataGUOffsets.HasRecordset()) {
        const int position = w.dataGUOffsets.Recordset().AbsolutePosition();
        if (position == g.SelectedUnit) {
            // The second press on the selected row drops it.
            g.SelectedUnit = -1;
            grid.SetCol(0);
            map.SetMousePointer(kDefaultPointer);
            grid.ClearSelBookmarks();
        } else {
            if (!g.LayoutLocked) {
                ShowStatus(ed,
                           "Click a new point to relocate the selected Ground Unit. Right-Click "
                           "to cancel",
                           kStatusWarning);
                map.SetMousePointer(kCrossPointer);
                w.btnDelGU.SetEnabled(true);
            }
            g.SelectedUnit = static_cast<std::int16_t>(position);
        }
    } else {
        g.SelectedUnit = -1;
        map.SetMousePointer(kDefaultPointer);
        w.btnDelGU.SetEnabled(false);
    }
    RedrawLayout(ed);
}

void dbgGUOffsets_AfterColUpdate(Editor& ed, int col) {
    auto& w = ed.frmGUOffsets;
    DataGrid& grid = w.dbgGUOffsets;
    if (col != kMetresXColumn && col != kMetresYColumn) return;
    if (ed.ground.LayoutLocked) {
        grid.SetCurrentCellModified(false);
        return;
    }
    const double perUnit = ed.options.Measurement ? kMetresPerLayoutUnit : kFeetPerLayoutUnit;
    const double typed = Val(grid.Columns(col).Text());
    const double v = typed / perUnit;
    if (std::fabs(v) > kLargestOffset) {
        ShowStatus(ed,
                   "An offset takes numbers from -" + Format(kLargestOffset * perUnit, "0") +
                       " to " + Format(kLargestOffset * perUnit, "0") +
                       (ed.options.Measurement ? " Meters." : " Feet."),
                   kStatusWarning);
        grid.SetCurrentCellModified(false);
        return;
    }
    try {
        // Only the offset itself is stored: the view works out the metres or feet again.
        Recordset& rs = w.dataGUOffsets.Recordset();
        rs.CancelUpdate();
        rs.Edit();
        rs.Fields(col - 2) = static_cast<double>(CSng(v));
        w.dataGUOffsets.UpdateRecord();
    } catch (const AppError& error) {
        grid.SetCurrentCellModified(false);
        w.dataGUOffsets.ReportUserError(error);
        return;
    }
    RedrawLayout(ed);
}

void dataGUOffsets_Error(Editor& ed, int, int& response) {
    ShowDataError(ed, ed.frmGUOffsets.dataGUOffsets.ErrorText());
    response = kDataErrContinue;
}

void btnOffsetEdit_MouseDown(Editor& ed, int, int shift, float, float) {
    ed.ground.OffsetStepDivisor = (shift & kShiftMask) != 0 ? 1000 : 100;
}

void btnOffsetEdit_Change(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    GroundState& g = ed.ground;
    if (g.OffsetColumn < 2) return;
    const int value = w.btnOffsetEdit.Value();
    const double d = static_cast<double>(value - g.OffsetLastValue) / g.OffsetStepDivisor;
    g.OffsetLastValue = value;
    if (d == 0 || g.LayoutLocked || !w.dataGUOffsets.HasRecordset()) return;
    Recordset& rs = w.dataGUOffsets.Recordset();
    try {
        const float moved = CSng(rs.Fields(g.OffsetColumn).Double() + d);
        if (std::fabs(moved) > kLargestOffset) {
            ShowStatus(ed, "The unit can't be moved further from the layout's origin.",
                       kStatusWarning);
            return;
        }
        rs.Edit();
        rs.Fields(g.OffsetColumn) = static_cast<double>(moved);
        rs.Update();
    } catch (const AppError& error) {
        if (rs.GetEditMode() != EditMode::None) rs.CancelUpdate();
        // Without a row to stand on there is nothing to move.
        if (error.Number() != kErrNoCurrentRecord) w.dataGUOffsets.ReportUserError(error);
        return;
    }
    w.dataGUOffsets.RowsChanged();
    RedrawLayout(ed);
}

void btnDelGU_Click(Editor& ed) {
    auto& w = ed.frmGUOffsets;
    GroundState& g = ed.ground;
    DataGrid& grid = w.dbgGUOffsets;
    if (g.LayoutLocked || !w.dataGUOffsets.HasRecordset()) return;
    DeleteSelectedRecords(ed, w.dataGUOffsets, grid);
    ed.FrmMission.mapGroundUnits.SetMousePointer(kDefaultPointer);
    w.btnDelGU.SetEnabled(false);
    g.SelectedUnit = -1;
    RedrawLayout(ed);
}

}  // namespace frm_gu_offsets
}  // namespace tarvex
