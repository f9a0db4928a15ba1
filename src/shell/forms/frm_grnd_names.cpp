#include "shell/forms/frm_grnd_names.h"

namespace tarvex {

frmGrndNames::frmGrndNames() : Form("frmGrndNames") {
    SetCaption("Ground Layouts");
    // Centred on the main window at load.
    Move(0, 1, 7336, 6300);

    Add(datPrimaryRS, "datPrimaryRS").SetVisible(false);
    Add(datSecondaryRS, "datSecondaryRS").SetVisible(false);
    Add(grdDataGrid, "grdDataGrid").SetDataSource(datSecondaryRS);
    // The cell buttons of UnitType and Damage open the drop-down lists.
    const FixedColumn columns[] = {
        {"Descriptive Name", "FullName"}, {"ID", "ID"},
        {"UnitType", "UnitType"},         {"Points", "Points"},
        {"Heading", "Heading"},           {"XOffset", "XOffset"},
        {"YOffset", "YOffset"},           {"Damage", "Damage"},
        {"DamageID", "DamageID"},
    };
    AddColumns(grdDataGrid, columns);
    grdDataGrid.Columns(2).SetButton(true);
    grdDataGrid.Columns(7).SetButton(true);

    Add(fraLayoutView, "fraLayoutView");
    // Editable: typing a new text is how a layout is renamed.
    Add(cmbGULayoutName, "cmbGULayoutName");
    Add(Label1, "Label1");
    Add(lblUnitCount, "lblUnitCount");
    // Covers the view while a new layout is entered.
    Add(fraLayoutAdd, "fraLayoutAdd").SetVisible(false);
    Add(txtLayoutName, "txtLayoutName");
    Add(txtLayoutID, "txtLayoutID");
    Add(txtLayoutTotal, "txtLayoutTotal");
    // The drop-downs laid over the grid, with the search field above the type list.
    Add(lstStationaryName, "lstStationaryName").SetVisible(false);
    Add(txtStationaryName, "txtStationaryName").SetVisible(false);
    Add(theDamageList, "theDamageList").SetVisible(false);
    AddRows(theDamageList, {"None", "Smoke", "Fire"});
    Add(picButtons, "picButtons");
    Add(cmdAdd, "cmdAdd").SetCaption("&Add");
    Add(cmdUpdate, "cmdUpdate").SetCaption("&Update");
    Add(cmdDeleteLayout, "cmdDeleteLayout").SetCaption("&Delete Layout");
    Add(cmdDeleteUnits, "cmdDeleteUnits").SetCaption("&Delete Unit(s)");
    Add(cmdClose, "cmdClose").SetCaption("&Close");
}

}  // namespace tarvex
