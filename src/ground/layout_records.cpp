#include "ground/layout_records.h"

#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "ground/layout_lists.h"
#include "ground/layout_record_grid.h"
#include "refdata/record_windows.h"
#include "refdata/shared_lookup.h"
#include "refdata/transaction.h"
#include "shell/editor.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

constexpr int kDefaultPointer = 0;
constexpr int kHourglass = 11;
// The window's caption bar and borders, which its inner size leaves out.
constexpr float kWindowFrameWidth = 120;
constexpr float kWindowFrameHeight = 405;
constexpr const char* kAddCaption = "&Add";
constexpr const char* kIdTitle = "Ground Layout ID";
constexpr std::int32_t kLargestLayoutId = 9999;

bool Adding(const frmGrndNames& f) {
    return f.cmdAdd.Caption() != kAddCaption;
}

// The layout record the window stands on; false on the new row or without one.
bool OnLayoutRecord(frmGrndNames& f) {
    return f.datPrimaryRS.HasRecordset() && f.datPrimaryRS.Recordset().AbsolutePosition() >= 0;
}

std::int32_t ShownLayoutId(frmGrndNames& f) {
    return f.datPrimaryRS.Recordset().Fields("ID").Long();
}

// The label and the entry fields show the fields of the layout record, as bound controls do.
void ShowLayoutFields(Editor& ed) {
    auto& f = ed.frmGrndNames;
    if (!OnLayoutRecord(f)) {
        f.Label1.SetCaption("");
        f.txtLayoutName.SetText("");
        f.txtLayoutID.SetText("");
        f.txtLayoutTotal.SetText("0");
        return;
    }
    Recordset& rs = f.datPrimaryRS.Recordset();
    f.Label1.SetCaption(rs.Fields("ID").Text());
    f.txtLayoutName.SetText(rs.Fields("LayoutName").Text());
    f.txtLayoutID.SetText(rs.Fields("ID").Text());
    f.txtLayoutTotal.SetText(rs.Fields("UnitTotal").Text());
}

void SelectLayout(Editor& ed, std::int32_t id) {
    auto& combo = ed.frmGrndNames.cmbGULayoutName;
    const int row = combo.FindItemData(id);
    if (row >= 0 && row != combo.ListIndex()) combo.SetListIndex(row);
}

void Refuse(Editor& ed, const std::string& text, const std::string& title) {
    MessageBoxRequest box;
    box.text = text;
    box.title = title;
    box.icon = MsgIcon::Exclamation;
    ed.svc.dialogs.MsgBox(box);
}

// The id typed for a new layout, or 0 after telling the designer why it can't be used.
std::int32_t CheckedNewLayoutId(Editor& ed) {
    const double typed = Val(ed.frmGrndNames.txtLayoutID.Text());
    if (typed != RoundHalfEven(typed) || typed < 1 || typed > kLargestLayoutId) {
        Refuse(ed, "The Ground Layout ID must be a whole number from 1 to 9999.", kIdTitle);
        return 0;
    }
    const auto id = static_cast<std::int32_t>(typed);
    SharedLookup lookup(ed.db, "SELECT LayoutName,ID FROM GrndNames Where ID=" + IntText(id));
    if (!lookup.rs.Eof()) {
        Refuse(ed,
               "The Ground Layout ID " + IntText(id) + " is already used by [" +
                   lookup.First().Fields(0).Text() + "].\nPlease choose another ID.",
               kIdTitle);
        return 0;
    }
    return id;
}

// The new layout from the entry fields; false when a field was refused.
bool StoreNewLayout(Editor& ed, std::int32_t& storedId) {
    auto& f = ed.frmGrndNames;
    if (f.txtLayoutName.Text().empty()) {
        Refuse(ed, "Please enter a name for the new Ground Layout.", "Add New Ground Layout");
        return false;
    }
    const std::int32_t id = CheckedNewLayoutId(ed);
    if (id == 0) return false;
    const double total = Val(f.txtLayoutTotal.Text());
    if (total < 0 || total > 2147483647.0) {
        ShowStatus(ed, "Unit Total takes whole numbers from 0 to 2147483647.", kStatusWarning);
        return false;
    }
    Recordset& rs = f.datPrimaryRS.Recordset();
    if (rs.GetEditMode() != EditMode::Add) rs.AddNew();
    rs.Fields("ID") = id;
    rs.Fields("LayoutName") = f.txtLayoutName.Text();
    rs.Fields("UnitTotal") = CLng(total);
    f.datPrimaryRS.UpdateRecord();
    storedId = id;
    return true;
}

// The layout's new name from the combo; false when there is none.
bool StoreLayoutName(Editor& ed, std::int32_t& storedId) {
    auto& f = ed.frmGrndNames;
    if (!OnLayoutRecord(f)) return false;
    if (f.cmbGULayoutName.Text().empty()) {
        ShowStatus(ed, "A Ground Layout needs a name.", kStatusWarning);
        return false;
    }
    Recordset& rs = f.datPrimaryRS.Recordset();
    storedId = ShownLayoutId(f);
    rs.Edit();
    rs.Fields("LayoutName") = f.cmbGULayoutName.Text();
    try {
        f.datPrimaryRS.UpdateRecord();
    } catch (const AppError&) {
        rs.CancelUpdate();
        throw;
    }
    rs.SetBookmark(rs.LastModified());
    return true;
}

void LeaveAddState(Editor& ed) {
    auto& f = ed.frmGrndNames;
    f.cmdAdd.SetCaption(kAddCaption);
    f.fraLayoutAdd.SetVisible(false);
}

}  // namespace

void mnuGULayout_Click(Editor& ed) {
    ed.frmGrndNames.Show();
}

bool RecordLayoutLocked(Editor& ed) {
    auto& f = ed.frmGrndNames;
    try {
        return !OnLayoutRecord(f) || f.datPrimaryRS.Recordset().Fields("IsDefault").Bool();
    } catch (const AppError&) {
        return true;
    }
}

void FillRecordLists(Editor& ed) {
    auto& f = ed.frmGrndNames;
    ed.db.FillListFromQuery(f.cmbGULayoutName,
                            "SELECT LayoutName,ID FROM GrndNames order by LayoutName");
    ed.db.FillListFromQuery(f.lstStationaryName,
                            "SELECT FullName,UnitType FROM Stationary order by FullName,UnitType");
    if (f.cmbGULayoutName.ListCount() > 0) f.cmbGULayoutName.SetListIndex(0);
}

namespace frm_grnd_names {

void Form_Load(Editor& ed) {
    auto& f = ed.frmGrndNames;
    f.datPrimaryRS.SetDatabaseName(ed.db.DBPath);
    f.datSecondaryRS.SetDatabaseName(ed.db.DBPath);
    LeaveAddState(ed);
    f.lstStationaryName.SetVisible(false);
    f.txtStationaryName.SetVisible(false);
    f.theDamageList.SetVisible(false);
    f.cmdUpdate.SetEnabled(false);
    FillRecordLists(ed);
    const float width = 7336;
    f.Move(ed.MDIMissionED.Width() / 2 - width / 2, 1, width, 6300);
    ed.ground.LayoutIDChanged = false;
    ed.ground.LayoutTotalChanged = false;
    ed.MDIMissionED.mnuCompact.SetEnabled(false);
}

void Form_Unload(Editor& ed) {
    auto& f = ed.frmGrndNames;
    // A unit row typed and not yet stored is stored as the window closes.
    if (f.grdDataGrid.DataChanged()) {
        try {
            f.datSecondaryRS.UpdateRecord();
        } catch (const AppError& error) {
            f.datSecondaryRS.ReportUserError(error);
        }
    }
    // The sources let go of the file, so that it can be compacted.
    f.datSecondaryRS.Close();
    f.datPrimaryRS.Close();
    UnlockCompactMenu(ed, f);
    f.SetMousePointer(kDefaultPointer);
}

void Form_Resize(Editor& ed) {
    auto& f = ed.frmGrndNames;
    DataGrid& grid = f.grdDataGrid;
    try {
        grid.SetWidth(f.Width() - kWindowFrameWidth - 2 * grid.Left());
        grid.SetHeight(f.Height() - kWindowFrameHeight - grid.Top() - f.picButtons.Height() - 120);
    } catch (const AppError&) {
    }
}

void cmbGULayoutName_Click(Editor& ed) {
    auto& f = ed.frmGrndNames;
    auto& combo = f.cmbGULayoutName;
    const int row = combo.ListIndex();
    if (row < 0) return;
    const std::string name = combo.List(row);
    f.datPrimaryRS.SetRecordSource(
        "select [ID],[LayoutName],[UnitTotal],[IsDefault] from [GrndNames] where [ID]=" +
        IntText(combo.ItemData(row)));
    RefreshRecordSource(f.datPrimaryRS);
    if (!OnLayoutRecord(f)) {
        // Another copy of the program deleted it since the list was filled.
        Refuse(ed,
               "The Ground Layout [" + name +
                   "] is no longer in the database.\nThe list of Ground Layouts is read again.",
               "Ground Layouts");
        FillRecordLists(ed);
        return;
    }
    const bool locked = RecordLayoutLocked(ed);
    f.cmdDeleteLayout.SetEnabled(!locked);
    f.cmdDeleteUnits.SetEnabled(!locked);
    // The units of a default layout are shown, not changed.
    LockUnitGrid(ed, locked);
    ed.ground.LayoutIDChanged = false;
    ed.ground.LayoutTotalChanged = false;
}

void cmbGULayoutName_Change(Editor& ed) {
    auto& f = ed.frmGrndNames;
    try {
        if (OnLayoutRecord(f) &&
            f.datPrimaryRS.Recordset().Fields("LayoutName").Text() != f.cmbGULayoutName.Text())
            f.cmdUpdate.SetEnabled(true);
    } catch (const AppError&) {
    }
}

void datPrimaryRS_Reposition(Editor& ed) {
    auto& f = ed.frmGrndNames;
    f.SetMousePointer(kDefaultPointer);
    try {
        ShowLayoutFields(ed);
        if (!OnLayoutRecord(f)) return;
        f.datSecondaryRS.SetRecordSource(
            "select [ID],[UnitType],[FullName],[Points],[Heading],[XOffset],[YOffset],[Damage],"
            "[DamageID] from [qryGroundUnitDetails] where [ID]=" +
            IntText(ShownLayoutId(f)) + " Order BY [Fullname]");
        f.datSecondaryRS.Refresh();
        f.lblUnitCount.SetCaption(IntText(f.datSecondaryRS.Recordset().RecordCount()));
    } catch (const AppError&) {
    }
}

void datPrimaryRS_Validate(Editor& ed, int&, int&) {
    ed.frmGrndNames.SetMousePointer(kHourglass);
}

void datPrimaryRS_Error(Editor& ed, int, int& response) {
    ShowDataError(ed, ed.frmGrndNames.datPrimaryRS.ErrorText());
    response = kDataErrContinue;
}

void datSecondaryRS_Error(Editor& ed, int, int& response) {
    ShowDataError(ed, ed.frmGrndNames.datSecondaryRS.ErrorText());
    response = kDataErrContinue;
}

void cmdAdd_Click(Editor& ed) {
    auto& f = ed.frmGrndNames;
    if (!Adding(f)) {
        f.fraLayoutAdd.Move(f.fraLayoutView.Left(), f.fraLayoutView.Top());
        f.fraLayoutAdd.SetVisible(true);
        f.fraLayoutAdd.ZOrder(0);
        try {
            f.datPrimaryRS.Recordset().AddNew();
        } catch (const AppError& error) {
            f.datPrimaryRS.ReportUserError(error);
        }
        ShowLayoutFields(ed);
        f.cmdAdd.SetCaption("Filter");
        f.txtLayoutName.SetFocus();
    } else {
        LeaveAddState(ed);
        cmbGULayoutName_Click(ed);
        FillRecordLists(ed);
    }
    ed.ground.LayoutIDChanged = false;
    ed.ground.LayoutTotalChanged = false;
}

void cmdUpdate_Click(Editor& ed) {
    auto& f = ed.frmGrndNames;
    std::int32_t storedId = 0;
    try {
        const bool stored =
            Adding(f) ? StoreNewLayout(ed, storedId) : StoreLayoutName(ed, storedId);
        if (!stored) return;
        if (f.grdDataGrid.DataChanged()) {
            f.datSecondaryRS.UpdateRecord();
            Recordset& units = f.datSecondaryRS.Recordset();
            units.SetBookmark(units.LastModified());
        }
    } catch (const AppError& error) {
        // The database refused the row: it stays in the window for correction.
        ShowDataError(ed, error.Description());
        return;
    }
    // A new layout is stored: its units are entered in the grid from here.
    if (Adding(f)) LeaveAddState(ed);
    FillRecordLists(ed);
    SelectLayout(ed, storedId);
    f.cmdUpdate.SetEnabled(false);
}

void cmdDeleteLayout_Click(Editor& ed) {
    auto& f = ed.frmGrndNames;
    if (!OnLayoutRecord(f) || RecordLayoutLocked(ed)) return;
    MessageBoxRequest question;
    question.text = "Are you sure you want to delete [" + f.cmbGULayoutName.Text() + "]";
    question.title = "Delete Ground Layout";
    question.buttons = MsgButtons::YesNo;
    question.icon = MsgIcon::Question;
    if (ed.svc.dialogs.MsgBox(question) != MsgAnswer::Yes) return;
    try {
        // The layout's units go with it, by the database's cascade.
        f.datPrimaryRS.Recordset().Delete();
    } catch (const AppError& error) {
        ShowDataError(ed, error.Description());
        return;
    }
    FillRecordLists(ed);
    FillLayoutLists(ed);
}

void cmdDeleteUnits_Click(Editor& ed) {
    auto& f = ed.frmGrndNames;
    DataGrid& grid = f.grdDataGrid;
    if (grid.SelBookmarks().empty()) {
        ShowStatus(ed, "No Record has been selected", kStatusWarning);
        return;
    }
    if (RecordLayoutLocked(ed)) return;
    DeleteSelectedRecords(ed, f.datSecondaryRS, grid);
    if (f.datSecondaryRS.HasRecordset())
        f.lblUnitCount.SetCaption(IntText(f.datSecondaryRS.Recordset().RecordCount()));
}

void cmdClose_Click(Editor& ed) {
    ed.frmGrndNames.SetMousePointer(kDefaultPointer);
    ed.frmGrndNames.UnloadForm();
}

void txtLayoutID_Change(Editor& ed) {
    ed.ground.LayoutIDChanged = true;
}

void txtLayoutID_GotFocus(Editor& ed) {
    TextBox& box = ed.frmGrndNames.txtLayoutID;
    box.SetSelStart(0);
    box.SetSelLength(static_cast<int>(box.Text().size()));
}

void txtLayoutID_LostFocus(Editor& ed) {
    if (ed.ground.LayoutIDChanged) ed.frmGrndNames.cmdUpdate.SetEnabled(true);
}

void txtLayoutTotal_Change(Editor& ed) {
    ed.ground.LayoutTotalChanged = true;
}

void txtLayoutTotal_GotFocus(Editor& ed) {
    TextBox& box = ed.frmGrndNames.txtLayoutTotal;
    box.SetSelStart(0);
    box.SetSelLength(static_cast<int>(box.Text().size()));
}

void txtLayoutTotal_LostFocus(Editor& ed) {
    if (!ed.ground.LayoutTotalChanged) return;
    cmdUpdate_Click(ed);
    ed.frmGrndNames.grdDataGrid.SetFocus();
}

}  // namespace frm_grnd_names
}  // namespace tarvex
