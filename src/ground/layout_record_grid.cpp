#include "ground/layout_record_grid.h"

#include <chrono>
#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "ground/layout_records.h"
#include "refdata/record_windows.h"
#include "refdata/shared_lookup.h"
#include "shell/editor.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

// Columns of the unit grid.
constexpr int kIdColumn = 1;
constexpr int kTypeColumn = 2;
constexpr int kDamageColumn = 7;
constexpr int kDamageIdColumn = 8;

// Both drop-down lists have rows of this height.
constexpr float kListRowHeight = 192;
// A list opened at or below this top opens upward instead.
constexpr float kLowestListTop = 4020;
// The type list's scroll bar starts here; its bands of edge scrolling lie between these.
constexpr float kListScrollBarLeft = 1400;
constexpr float kBottomBandTop = 1750;
constexpr float kBottomBandBottom = 1840;
constexpr float kTopBandTop = 10;
constexpr float kTopBandBottom = 90;
constexpr double kScrollStepSeconds = 0.1;
constexpr float kNoPointer = -255;

// What a number typed into a cell must be. The offsets stay within what a layout's turn can
// carry (32.767 layout units).
struct NumberColumn {
    int col;
    double lowest;
    double highest;
    bool whole;
    const char* name;
};
constexpr NumberColumn kNumberColumns[] = {
    {kTypeColumn, 0, 2147483647.0, true, "UnitType"},
    {3, 0, 255, true, "Points"},
    {4, -32768, 32767, true, "Heading"},
    {5, -32.767, 32.767, false, "XOffset"},
    {6, -32.767, 32.767, false, "YOffset"},
    {kDamageIdColumn, 0, 2, true, "DamageID"},
};

double ClockSeconds() {
    using namespace std::chrono;
    return duration<double>(steady_clock::now().time_since_epoch()).count();
}

// Stores the grid's row; the row stored becomes the current one.
void StoreUnitRow(Editor& ed) {
    DataSource& units = ed.frmGrndNames.datSecondaryRS;
    try {
        units.UpdateRecord();
        units.MoveToBookmark(units.Recordset().LastModified());
    } catch (const AppError& error) {
        units.ReportUserError(error);
    }
}

bool IsStationaryType(Editor& ed, std::int32_t type) {
    SharedLookup lookup(ed.db, "SELECT UnitType FROM Stationary Where UnitType=" + IntText(type));
    return !lookup.rs.Eof();
}

std::string FirstLetter(const std::string& text) {
    return UCase(Left(text, 1));
}

// The rows of the edge scrolling: while the pointer stays in the band the list steps a row
// every tenth of a second, the row under the pointer selected, until its end.
void ScrollAtEdge(Editor& ed, int r, bool down) {
    auto& f = ed.frmGrndNames;
    ListBox& list = f.lstStationaryName;
    GroundState& g = ed.ground;
    const auto inBand = [&g, down] {
        return down ? g.StationaryLastY > kBottomBandTop && g.StationaryLastY < kBottomBandBottom
                    : g.StationaryLastY > kTopBandTop && g.StationaryLastY < kTopBandBottom;
    };
    const int lastRow = list.ListCount() - 1;
    while (inBand() && list.Visible()) {
        ed.svc.clock.DoEvents();
        const int row = list.TopIndex() + r;
        const double now = ClockSeconds();
        if (now - g.StationaryScrollTime > kScrollStepSeconds && row >= 0 && row <= lastRow) {
            list.SetListIndex(row);
            list.SetTopIndex(list.TopIndex() + (down ? 1 : -1));
            g.StationaryScrollTime = now;
        }
        if (down ? list.TopIndex() + r >= lastRow : list.TopIndex() + r <= 0)
            g.StationaryLastY = kNoPointer;
    }
}

}  // namespace

void LockUnitGrid(Editor& ed, bool locked) {
    DataGrid& grid = ed.frmGrndNames.grdDataGrid;
    for (int c = 0; c < grid.ColumnCount(); ++c)
        grid.Columns(c).SetLocked(locked || c == kIdColumn);
    grid.SetAllowAddNew(!locked);
}

void updateStationary(Editor& ed, std::int32_t& Index) {
    auto& f = ed.frmGrndNames;
    if (RecordLayoutLocked(ed)) return;
    try {
        f.grdDataGrid.Columns(kTypeColumn).SetValue(Index);
        f.grdDataGrid.Columns(kIdColumn).SetValue(ValLng(f.Label1.Caption()));
    } catch (const AppError& error) {
        f.datSecondaryRS.ReportUserError(error);
        return;
    }
    StoreUnitRow(ed);
}

namespace frm_grnd_names {

void grdDataGrid_HeadClick(Editor& ed, int col) {
    auto& f = ed.frmGrndNames;
    try {
        f.datSecondaryRS.SetRecordSource(
            "select [ID],[UnitType],[FullName],[Points],[Heading],[XOffset],[YOffset] from "
            "[qryGroundUnitDetails] where [ID]=" +
            f.datPrimaryRS.Recordset().Fields("ID").Text() + " Order By " +
            f.grdDataGrid.Columns(col).DataField());
    } catch (const AppError&) {
        return;
    }
    RefreshRecordSource(f.datSecondaryRS);
}

void grdDataGrid_RowColChange(Editor& ed, int, int) {
    ShowStatus(ed, "");
}

void grdDataGrid_SelChange(Editor& ed) {
    ShowStatus(ed, "");
}

void grdDataGrid_AfterColUpdate(Editor& ed, int col) {
    auto& f = ed.frmGrndNames;
    DataGrid& grid = f.grdDataGrid;
    for (const NumberColumn& field : kNumberColumns) {
        if (field.col != col) continue;
        const double typed = Val(grid.Columns(col).Text());
        const double value = field.whole ? RoundHalfEven(typed) : typed;
        if (value < field.lowest || value > field.highest) {
            ShowStatus(ed,
                       std::string(field.name) + " takes " + (field.whole ? "whole " : "") +
                           "numbers from " + DoubleText(field.lowest) + " to " +
                           DoubleText(field.highest) + ".",
                       kStatusWarning);
            grid.SetCurrentCellModified(false);
            return;
        }
        if (col == kTypeColumn && !IsStationaryType(ed, static_cast<std::int32_t>(value))) {
            MessageBoxRequest box;
            box.text = "There is no Stationary unit of type " + DoubleText(value) +
                       ".\nPick a type from the list of the cell's button.";
            box.title = "Stationary Units";
            box.icon = MsgIcon::Exclamation;
            ed.svc.dialogs.MsgBox(box);
            grid.SetCurrentCellModified(false);
            return;
        }
        // The number itself, not the text typed around it, reaches the database.
        if (field.whole)
            grid.Columns(col).SetValue(static_cast<long long>(value));
        else
            grid.Columns(col).SetValue(value);
    }
    f.cmdUpdate.SetEnabled(true);
}

void grdDataGrid_AfterUpdate(Editor& ed) {
    ed.frmGrndNames.cmdUpdate.SetEnabled(false);
}

void grdDataGrid_OnAddNew(Editor& ed) {
    auto& f = ed.frmGrndNames;
    // A new row belongs to the layout shown, whichever cell was filled first.
    f.grdDataGrid.Columns(kIdColumn).SetValue(ValLng(f.Label1.Caption()));
}

void grdDataGrid_KeyDown(Editor& ed, int& keyCode, int) {
    auto& f = ed.frmGrndNames;
    if (keyCode == kKeyEscape && !f.grdDataGrid.DataChanged() &&
        !f.grdDataGrid.CurrentCellModified())
        f.cmdUpdate.SetEnabled(false);
}

void grdDataGrid_MouseDown(Editor& ed, int, int, float, float y) {
    ed.ground.RecordGridRow =
        static_cast<std::int16_t>(ed.frmGrndNames.grdDataGrid.RowContaining(y));
}

void grdDataGrid_MouseMove(Editor& ed, int, int, float x, float) {
    auto& f = ed.frmGrndNames;
    ListBox& types = f.lstStationaryName;
    if (types.Visible() && x > types.Left() + types.Width()) {
        types.SetVisible(false);
        f.txtStationaryName.SetVisible(false);
    } else if (f.theDamageList.Visible() && f.grdDataGrid.ColContaining(x) != kDamageColumn) {
        f.theDamageList.SetVisible(false);
    }
    ed.ground.StationaryLastY = kNoPointer;
}

void grdDataGrid_ButtonClick(Editor& ed, int col) {
    auto& f = ed.frmGrndNames;
    DataGrid& grid = f.grdDataGrid;
    if (RecordLayoutLocked(ed)) return;
    const int gridRow = ed.ground.RecordGridRow >= 0 ? ed.ground.RecordGridRow : grid.Row();
    const float rowTop = grid.Top() + grid.RowTop(gridRow);
    if (col == kTypeColumn) {
        ListBox& list = f.lstStationaryName;
        TextBox& search = f.txtStationaryName;
        int row = list.FindItemData(CLng(RoundHalfEven(Val(grid.Columns(col).Text()))));
        const float left = grid.Left() + grid.Columns(col).Left();
        float top = rowTop + 240;
        if (top >= kLowestListTop) top -= list.Height();
        list.Move(left, top);
        search.Move(left, top - 240);
        list.SetVisible(!list.Visible());
        search.SetVisible(list.Visible());
        if (row < 0) row = 0;
        try {
            search.SetFocus();
            list.SetListIndex(row);
        } catch (const AppError&) {
        }
    } else if (col == kDamageColumn) {
        ListBox& list = f.theDamageList;
        int row = 0;
        try {
            if (!grid.Columns(col).Text().empty())
                row = ValInt(grid.Columns(kDamageIdColumn).Text());
            list.Move(12 + grid.Columns(col).Left(), rowTop);
            list.SetListIndex(row);
        } catch (const AppError&) {
        }
        list.SetVisible(!list.Visible());
    }
}

void theDamageList_MouseMove(Editor& ed, int, int, float, float y) {
    try {
        ed.frmGrndNames.theDamageList.SetListIndex(static_cast<int>(CLng(y) / kListRowHeight));
    } catch (const AppError&) {
    }
}

void theDamageList_MouseUp(Editor& ed, int, int, float, float) {
    auto& f = ed.frmGrndNames;
    ListBox& list = f.theDamageList;
    list.SetVisible(false);
    if (list.ListIndex() < 0 || RecordLayoutLocked(ed)) return;
    try {
        f.grdDataGrid.Columns(kDamageIdColumn).SetValue(list.ItemData(list.ListIndex()));
    } catch (const AppError& error) {
        f.datSecondaryRS.ReportUserError(error);
        return;
    }
    StoreUnitRow(ed);
}

void lstStationaryName_Click(Editor& ed) {
    auto& f = ed.frmGrndNames;
    const int row = f.lstStationaryName.ListIndex();
    if (row < 0) return;
    TextBox& search = f.txtStationaryName;
    search.SetText(f.lstStationaryName.List(row));
    search.SetSelStart(0);
    search.SetSelLength(static_cast<int>(search.Text().size()));
}

void lstStationaryName_MouseMove(Editor& ed, int, int, float x, float y) {
    ListBox& list = ed.frmGrndNames.lstStationaryName;
    GroundState& g = ed.ground;
    int r = static_cast<int>(RoundHalfEven(y) / kListRowHeight);
    if (x > kListScrollBarLeft) {
        g.StationaryLastY = kNoPointer;
        return;
    }
    g.StationaryLastY = y;
    if (y > kBottomBandTop && y < kBottomBandBottom) {
        ScrollAtEdge(ed, r + 1, true);
    } else if (y > kTopBandTop && y < kTopBandBottom) {
        ScrollAtEdge(ed, r - 1, false);
    } else {
        r += list.TopIndex();
        if (r >= 0 && r < list.ListCount() - 1) list.SetListIndex(r);
    }
}

void lstStationaryName_MouseUp(Editor& ed, int, int, float, float) {
    auto& f = ed.frmGrndNames;
    ListBox& list = f.lstStationaryName;
    list.SetVisible(false);
    f.txtStationaryName.SetVisible(false);
    ed.ground.StationaryLastY = kNoPointer;
    if (list.ListIndex() < 0) return;
    std::int32_t type = list.ItemData(list.ListIndex());
    updateStationary(ed, type);
}

void txtStationaryName_KeyUp(Editor& ed, int&, int) {
    auto& f = ed.frmGrndNames;
    ListBox& list = f.lstStationaryName;
    const std::string typed = UCase(f.txtStationaryName.Text());
    const int n = list.ListCount() - 1;
    if (typed.size() != 1 || n < 0) return;
    const auto letter = [&list](int row) { return FirstLetter(list.List(row)); };

    // A halving search of the sorted list, then back to the first row of that letter.
    int p = static_cast<int>(RoundHalfEven(n / 2.0));
    int step = static_cast<int>(RoundHalfEven(p / 2.0));
    do {
        const std::string here = letter(p);
        if (here > typed) {
            p -= step;
            if (p < 0) {
                p = 0;
                if (!(letter(p) > typed)) break;
            }
        } else if (here == typed) {
            while (p > 0 && letter(p) == typed)
                --p;
            if (letter(p) != typed) ++p;
            break;
        } else {
            p += step;
            if (p > n) {
                p = n;
                if (letter(p) > typed) break;
            }
        }
        step = static_cast<int>(RoundHalfEven(step / 2.0));
    } while (step != 0);
    if (letter(p) > typed && step == 0) {
        while (p > 0 && !(letter(p) < typed))
            --p;
    }
    list.SetListIndex(p);
}

}  // namespace frm_grnd_names
}  // namespace tarvex
