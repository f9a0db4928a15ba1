#include "shell/forms/frm_aircraft.h"

namespace tarvex {

frmAircraft::frmAircraft() : Form("frmAircraft") {
    SetCaption("Aircrafts");
    Move(0, 0, 9288, 6336);

    Add(datPrimaryRS, "datPrimaryRS").SetRecordSource("qryAllMovingUnits");
    datPrimaryRS.SetVisible(false);
    Add(grdDataGrid, "grdDataGrid").SetDataSource(datPrimaryRS);
    // The cell buttons of Family and Allegiance open the pick lists; the id columns behind
    // them hold what the lists pick.
    const FixedColumn columns[] = {
        {"A/C ID", "AcID"},
        {"A/C Filename", "ShortName"},
        {"Descriptive Name", "LongName"},
        {"Family", "UnitRole"},
        {"F. ID", "Family"},
        {"Allegiance", "AirforceName"},
        {"A. ID", "Allegiance"},
        {"Gun", "Gun"},
        {"Cannon", "Cannon"},
        {"Rockets", "Rockets"},
        {"Bombs", "Bombs"},
    };
    AddColumns(grdDataGrid, columns);
    grdDataGrid.Columns(3).SetButton(true);
    grdDataGrid.Columns(5).SetButton(true);

    Add(picButtons, "picButtons");
    Add(cmdAdd, "cmdAdd").SetCaption("&Add");
    Add(cmdDelete, "cmdDelete").SetCaption("&Delete");
    cmdDelete.SetEnabled(false);
    Add(cmdUpdate, "cmdUpdate").SetCaption("&Update");
    cmdUpdate.SetEnabled(false);
    Add(cmdClose, "cmdClose").SetCaption("&Close");
    Add(Label2, "Label2").SetCaption("Show Allegiance");
    Add(cmbAirforce, "cmbAirforce").SetStyle(kComboDropDownList);
    Add(Label1, "Label1").SetCaption("Show Family");
    Add(cmbUnitRole, "cmbUnitRole").SetStyle(kComboDropDownList);
    // Laid over the file name cell of the new row while it is being entered.
    Add(btnBrowse, "btnBrowse").SetCaption(",,,");
    btnBrowse.SetVisible(false);
    // The item data are the Family and Allegiance ids behind the names.
    Add(theFamList, "theFamList").SetVisible(false);
    AddRows(theFamList, {{"Fighter", 1}, {"Bomber", 2}, {"Other", 3}});
    Add(theAllyList, "theAllyList").SetVisible(false);
    AddRows(theAllyList, {{"RAF", 1}, {"Luftwaffe", 2}, {"USAAF", 3}});
}

}  // namespace tarvex
