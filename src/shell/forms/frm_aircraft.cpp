#include "shell/forms/frm_aircraft.h"

namespace tarvex {

frmAircraft::frmAircraft(Editor& ed) : Form("frmAircraft"), ed(ed) {
    SetCaption("Aircrafts");
    Move(0, 0, 9288, 6336);

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
