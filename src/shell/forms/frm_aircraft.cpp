#include "shell/forms/frm_aircraft.h"

namespace tarvex {

frmAircraft::frmAircraft() : Form("frmAircraft") {
    SetCaption("Aircrafts");
    Move(0, 0, 9288, 6336);

    Add(NAMED(datPrimaryRS), Self()).SetRecordSource("qryAllMovingUnits");
    datPrimaryRS.SetVisible(false);
    // The grid takes the window above the panel of buttons, 120 apart.
    constexpr float kPanelHeight = 780;
    Add(NAMED(grdDataGrid), Self(), {0, 0, Width(), Height() - kPanelHeight - 120})
        .SetDataSource(datPrimaryRS);
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

    // The panel: the two filters on the left, each under its caption, the buttons on the right.
    Add(NAMED(picButtons), Self(), {0, Height() - kPanelHeight, Width(), kPanelHeight});
    const Container panel = In(picButtons);
    Add(NAMED(Label2), panel, {120, 60, 2000, kLabelHeight}).SetCaption("Show Allegiance");
    Add(NAMED(cmbAirforce), panel, {120, 300, 2000, kComboHeight}).SetStyle(kComboDropDownList);
    Add(NAMED(Label1), panel, {2280, 60, 2000, kLabelHeight}).SetCaption("Show Family");
    Add(NAMED(cmbUnitRole), panel, {2280, 300, 2000, kComboHeight}).SetStyle(kComboDropDownList);
    const auto buttonAt = [](int k) { return Place{4620 + k * 1140.0f, 293, 1095, kButtonHeight}; };
    Add(NAMED(cmdAdd), panel, buttonAt(0)).SetCaption("&Add");
    Add(NAMED(cmdDelete), panel, buttonAt(1)).SetCaption("&Delete");
    cmdDelete.SetEnabled(false);
    Add(NAMED(cmdUpdate), panel, buttonAt(2)).SetCaption("&Update");
    cmdUpdate.SetEnabled(false);
    Add(NAMED(cmdClose), panel, buttonAt(3)).SetCaption("&Close");

    // Laid over the file name cell of the new row while it is being entered.
    Add(NAMED(btnBrowse), Self().Overlay(), {0, 0, 300, 240}).SetCaption(",,,");
    btnBrowse.SetVisible(false);
    // Laid over a cell of the grid; rows are 192 high. The item data are the Family and
    // Allegiance ids behind the names.
    Add(NAMED(theFamList), Self().Overlay(), {0, 0, 1500, 660}).SetVisible(false);
    AddRows(theFamList, {{"Fighter", 1}, {"Bomber", 2}, {"Other", 3}});
    Add(NAMED(theAllyList), Self().Overlay(), {0, 0, 1500, 660}).SetVisible(false);
    AddRows(theAllyList, {{"RAF", 1}, {"Luftwaffe", 2}, {"USAAF", 3}});
}

}  // namespace tarvex
