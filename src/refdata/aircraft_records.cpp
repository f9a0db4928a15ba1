#include "refdata/aircraft_records.h"

#include "common/error.h"
#include "common/number_text.h"
#include "common/text.h"
#include "refdata/aircraft_grid.h"
#include "refdata/record_windows.h"
#include "shell/editor.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/sounds.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

constexpr int kDefaultPointer = 0;
// The row of each filter combo that stands for no filter.
constexpr int kAllRow = 3;

constexpr const char* kSelectList =
    "select [AcID],[ShortName],[LongName],[Family],[Allegiance],[Gun],[Cannon],[Rockets],"
    "[Bombs],[AirforceName],[UnitRole] from [qryAllMovingUnits]";

// The clicked combo is the first, the other the second.
void ApplyFilter(Editor& ed, bool airforceFirst) {
    if (!ed.doc.EventsOn) return;
    auto& f = ed.frmAircraft;
    PlaySound(ed, ed.shell.sndCheckbox);
    const int first = frm_aircraft::FilterId(airforceFirst ? f.cmbAirforce : f.cmbUnitRole);
    const int second = frm_aircraft::FilterId(airforceFirst ? f.cmbUnitRole : f.cmbAirforce);
    const std::string firstField = airforceFirst ? "Allegiance" : "Family";
    const std::string secondField = airforceFirst ? "Family" : "Allegiance";
    std::string source = kSelectList;
    if (first != 0 && second != 0) {
        source += " where Family=" + IntText(frm_aircraft::FilterId(f.cmbUnitRole)) +
                  " AND Allegiance=" + IntText(frm_aircraft::FilterId(f.cmbAirforce)) +
                  " Order by Family,Allegiance,ShortName";
    } else if (first != 0) {
        source += " where " + firstField + "=" + IntText(first) + " Order by " + secondField +
                  ",ShortName";
    } else if (second != 0) {
        source += " where " + secondField + "=" + IntText(second) + " Order by " + firstField +
                  ",ShortName";
    }
    f.datPrimaryRS.SetRecordSource(source);
    RefreshRecordSource(f.datPrimaryRS);
    // What a click on a column head sorts: the source without its own order, ending in the
    // blank in front of it.
    const size_t order = InStr(source, " Order by ");
    ed.aircraftRecords.GridBaseQuery = order > 0 ? Left(source, order) : source;
}

}  // namespace

void mnuAddAC_Click(Editor& ed) {
    ed.frmAircraft.Show();
}

namespace frm_aircraft {

int FilterId(const ComboBox& filter) {
    const int row = filter.ListIndex();
    return row >= 0 && row < kAllRow ? filter.ItemData(row) : 0;
}

void Form_Load(Editor& ed) {
    auto& f = ed.frmAircraft;
    auto& st = ed.aircraftRecords;
    f.datPrimaryRS.SetDatabaseName(ed.db.DBPath);
    st.AircraftChanged = false;
    f.Move(0, 0, 9288, 6336);
    ShowStatus(ed, "");
    st.GridBaseQuery = "Select * From qryAllMovingUnits ";

    // A window opened again starts as it did the first time.
    f.datPrimaryRS.SetRecordSource("qryAllMovingUnits");
    f.cmdDelete.SetEnabled(false);
    f.cmdUpdate.SetEnabled(false);
    f.btnBrowse.SetVisible(false);
    f.theFamList.SetVisible(false);
    f.theAllyList.SetVisible(false);
    f.grdDataGrid.ClearSelBookmarks();

    ed.db.FillListFromQuery(f.cmbUnitRole, "SELECT UnitRole,Family FROM tblFamily");
    ed.db.FillListFromQuery(f.cmbAirforce, "SELECT AirforceName,Allegiance FROM tblAllegiance");
    f.cmbUnitRole.AddItem("All Families");
    {
        LoweredFlag quiet(ed.doc.EventsOn);
        f.cmbAirforce.AddItem("All Allegiances");
        f.cmbUnitRole.SetListIndex(kAllRow);
        f.cmbAirforce.SetListIndex(kAllRow);
    }
    RefreshRecordSource(f.datPrimaryRS);

    ed.MDIMissionED.mnuCompact.SetEnabled(false);
    st.AircraftFormOpen = true;
}

void Form_Unload(Editor& ed) {
    auto& f = ed.frmAircraft;
    f.SetMousePointer(kDefaultPointer);
    ShowStatus(ed, "");
    StorePendingRow(ed);
    // The data source lets go of the file, so that it can be compacted.
    f.datPrimaryRS.Close();
    if (ed.aircraftRecords.AircraftChanged) {
        ed.db.FillListFromQuery(
            ed.FrmMission.cmbMovingType,
            "SELECT ShortName,ACId FROM Aircraft ORDER BY Family ASC,ShortName Asc;");
    }
    UnlockCompactMenu(ed, f);
    ed.aircraftRecords.AircraftFormOpen = false;
}

void Form_Resize(Editor& ed) {
    auto& f = ed.frmAircraft;
    try {
        // The window's height is its inner height.
        f.grdDataGrid.SetHeight(f.Height() - f.picButtons.Height() - 120);
    } catch (const AppError&) {
    }
}

void cmdClose_Click(Editor& ed) {
    ed.frmAircraft.SetMousePointer(kDefaultPointer);
    ed.frmAircraft.UnloadForm();
}

void cmbAirforce_Click(Editor& ed) {
    ApplyFilter(ed, true);
}

void cmbUnitRole_Click(Editor& ed) {
    ApplyFilter(ed, false);
}

void grdDataGrid_HeadClick(Editor& ed, int col) {
    auto& f = ed.frmAircraft;
    f.datPrimaryRS.SetRecordSource(ed.aircraftRecords.GridBaseQuery + "Order By " +
                                   f.grdDataGrid.Columns(col).DataField());
    RefreshRecordSource(f.datPrimaryRS);
}

void datPrimaryRS_Validate(Editor& ed, int& action, int&) {
    if (action == kDataActionClose) ed.frmAircraft.SetMousePointer(kDefaultPointer);
}

void datPrimaryRS_Reposition(Editor& ed) {
    auto& f = ed.frmAircraft;
    f.SetMousePointer(kDefaultPointer);
    try {
        // The new row counts as record 0.
        const int n = f.datPrimaryRS.Recordset().AbsolutePosition() + 1;
        SetIDColumnsLocked(ed, n != 0);
        ShowStatus(ed, "Record: " + IntText(n));
    } catch (const AppError&) {
    }
}

void datPrimaryRS_Error(Editor& ed, int, int& response) {
    ShowDataError(ed, ed.frmAircraft.datPrimaryRS.ErrorText());
    response = kDataErrContinue;
}

}  // namespace frm_aircraft
}  // namespace tarvex
