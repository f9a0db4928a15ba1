#include "library/mission_browser.h"

#include "common/error.h"
#include "common/number_text.h"
#include "refdata/record_windows.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

constexpr int kHourglass = 11;
constexpr int kDefaultPointer = 0;

constexpr const char* kSelectList =
    "select [MissionID],[Title],[Type],[Summary],[Objective],[Date],[Time],[Reqrd],[Clouds],"
    "[Wind],[Visibility],[Map],[Allegiance],[Filename] from [tblMissions] ";
constexpr const char* kOrder = "order by [Title]";

// The filter's rows: all missions, then those of allegiance 1 to 3.
constexpr int kFilterRows = 4;

constexpr const char* kAllegianceNames[] = {"RAF", "Luftwaffe", "USAAF"};

// Grid columns, as the query lists the fields.
enum Column : int {
    kColTitle = 1,
    kColType = 2,
    kColSummary = 3,
    kColObjective = 4,
    kColDate = 5,
    kColTime = 6,
    kColReqrd = 7,
    kColClouds = 8,
    kColWind = 9,
    kColVisibility = 10,
    kColAllegiance = 12,
    kColFilename = 13,
};

std::string FilterQuery(int row) {
    if (row == 0) return std::string(kSelectList) + kOrder;
    return std::string(kSelectList) + "where allegiance=" + IntText(row) + " " + kOrder;
}

// A stored number as a row of a list; -1 (no row) for an empty field or one beyond a whole
// number.
int RowOf(const FieldValue& value) {
    if (value.IsNull()) return -1;
    try {
        return value.Long();
    } catch (const AppError&) {
        return -1;
    }
}

}  // namespace

void mnuMissions_Click(Editor& ed) {
    ed.frmtblMissions.Show();
}

void SetMissionBrowserTooltips(Editor& ed) {
    auto& f = ed.frmtblMissions;
    const bool on = ed.options.ToolTipsOn;
    const auto tip = [on](Control& control, const char* text) {
        control.SetToolTipText(on ? text : "");
    };
    tip(f.cmdLoad, "Load the selected mission");
    tip(f.btnDelete, "Delete the selected mission");
    tip(f.cmdClose, "Close this window");
    tip(f.optAllegiance(0), "Display all missions titles");
    tip(f.optAllegiance(1), "Display only RAF Allegiance mission titles");
    tip(f.optAllegiance(2), "Display only Luftwaffe Allegiance mission titles");
    tip(f.optAllegiance(3), "Display only USAAF Allegiance mission titles");
}

namespace frm_tbl_missions {

void Form_Load(Editor& ed) {
    auto& f = ed.frmtblMissions;
    auto& m = ed.MDIMissionED;
    f.datPrimaryRS.SetDatabaseName(ed.db.DBPath);
    ed.library.MissionBrowserOpen = true;
    m.mnuCompact.SetEnabled(false);
    m.mnuMissDetail.SetEnabled(false);
    SetMissionBrowserTooltips(ed);
    // The filter of the last run; its click fills the grid, also when the option is still
    // set from the last time the window was open.
    const int row = ed.options.ShowAllegiance < kFilterRows ? ed.options.ShowAllegiance : 0;
    if (f.optAllegiance(row).Value()) {
        optAllegiance_Click(ed, row);
    } else {
        f.optAllegiance(row).SetValue(true);
    }
}

void Form_Unload(Editor& ed) {
    auto& f = ed.frmtblMissions;
    f.SetMousePointer(kDefaultPointer);
    ed.library.MissionBrowserOpen = false;
    // The data source lets go of the file, so that it can be compacted.
    f.datPrimaryRS.Close();
    UnlockCompactMenu(ed, f);
    if (!LayoutEditorOpen(ed)) ed.MDIMissionED.mnuMissDetail.SetEnabled(true);
}

void Form_Resize(Editor& ed) {
    // The window keeps its place and size; the grid, with the details beside it, takes its
    // height.
    auto& f = ed.frmtblMissions;
    try {
        f.Move(0, 0, 9300, 6340);
        f.grdDataGrid.SetHeight(f.Height() - 260);
    } catch (const AppError&) {
    }
}

void optAllegiance_Click(Editor& ed, int index) {
    auto& f = ed.frmtblMissions;
    f.datPrimaryRS.SetRecordSource(FilterQuery(index));
    RefreshRecordSource(f.datPrimaryRS);
    ed.options.ShowAllegiance = static_cast<std::uint8_t>(index);
    ShowMissionDetails(ed);
}

void optAllegiance_MouseDown(Editor& ed, int, int, int, float, float) {
    PlaySound(ed, ed.shell.sndCheckbox);
}

void grdDataGrid_Click(Editor& ed) {
    PlaySound(ed, ed.shell.sndClick);
}

void grdDataGrid_RowColChange(Editor& ed, int, int) {
    ShowMissionDetails(ed);
}

void ShowMissionDetails(Editor& ed) {
    auto& f = ed.frmtblMissions;
    auto& frm = ed.FrmMission;
    const DataGrid& grid = f.grdDataGrid;
    const auto text = [&grid](int col) { return grid.Columns(col).Text(); };
    const auto value = [&grid](int col) { return grid.Columns(col).Value(); };
    // The labels bound to the source follow its current row.
    f.lblType.SetCaption(text(kColType));
    f.lblSummary.SetCaption(text(kColSummary));
    f.lblObjective.SetCaption(text(kColObjective));
    f.lblDate.SetCaption(text(kColDate));
    f.lblTime.SetCaption(text(kColTime));
    f.lblReqd.SetCaption(text(kColReqrd));
    // The weather as the Summary tab's combos word it.
    f.lblClouds.SetCaption(frm.cmbClouds.List(RowOf(value(kColClouds))));
    f.lblWind.SetCaption(frm.cmbWinds.List(RowOf(value(kColWind))));
    f.lblVis.SetCaption(frm.cmbVisibility.List(RowOf(value(kColVisibility))));
    const int allegiance = RowOf(value(kColAllegiance));
    if (allegiance >= 1 && allegiance <= 3) {
        f.lblAlly.SetCaption(kAllegianceNames[allegiance - 1]);
        ShowStatus(ed, text(kColFilename));
    }
}

void cmdClose_Click(Editor& ed) {
    ed.frmtblMissions.SetMousePointer(kDefaultPointer);
    ed.frmtblMissions.UnloadForm();
}

void datPrimaryRS_Validate(Editor& ed, int&, int&) {
    ed.frmtblMissions.SetMousePointer(kHourglass);
}

void datPrimaryRS_Reposition(Editor& ed) {
    auto& f = ed.frmtblMissions;
    f.SetMousePointer(kDefaultPointer);
    try {
        f.datPrimaryRS.SetCaption("Record: " +
                                  IntText(f.datPrimaryRS.Recordset().AbsolutePosition() + 1));
    } catch (const AppError&) {
    }
}

void datPrimaryRS_Error(Editor& ed, int, int& response) {
    ShowDataError(ed, ed.frmtblMissions.datPrimaryRS.ErrorText());
    response = kDataErrContinue;
}

}  // namespace frm_tbl_missions
}  // namespace tarvex
