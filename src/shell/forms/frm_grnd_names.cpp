#include "shell/forms/frm_grnd_names.h"

namespace tarvex {

frmGrndNames::frmGrndNames() : Form("frmGrndNames") {
    SetCaption("Ground Layouts");
    // Centred on the main window at load.
    Move(0, 1, 7336, 6300);

    Add(NAMED(datPrimaryRS), Self()).SetVisible(false);
    Add(NAMED(datSecondaryRS), Self()).SetVisible(false);

    // The layout: its name, id and unit count in one row.
    const Place layoutPlace{120, 60, Width() - 240, 780};
    Add(NAMED(fraLayoutView), Self(), layoutPlace);
    const Container view = In(fraLayoutView);
    Add(NAMED(lblGULayoutNameCaption), view, {120, 300, 1320, kLabelHeight})
        .SetCaption("Ground Layout");
    // Editable: typing a new text is how a layout is renamed.
    Add(NAMED(cmbGULayoutName), view, {1500, 260, 2820, kComboHeight});
    Add(NAMED(lblIDCaption), view, {4440, 300, 300, kLabelHeight}).SetCaption("ID");
    Add(NAMED(Label1), view, {4800, 300, 600, kLabelHeight});
    Add(NAMED(lblUnitCountCaption), view, {5520, 300, 1080, kLabelHeight})
        .SetCaption("Unit Count:");
    Add(NAMED(lblUnitCount), view, {6660, 300, 360, kLabelHeight});
    // Covers the view while a new layout is entered, with its boxes where the view has its
    // values.
    Add(NAMED(fraLayoutAdd), Self().Overlay(), layoutPlace).SetVisible(false);
    const Container entry = In(fraLayoutAdd);
    Add(NAMED(lblLayoutNameCaption), entry, {120, 300, 1320, kLabelHeight})
        .SetCaption("Layout Name");
    Add(NAMED(txtLayoutName), entry, {1500, 270, 2820, kTextHeight});
    Add(NAMED(lblLayoutIDCaption), entry, {4440, 300, 300, kLabelHeight}).SetCaption("ID");
    Add(NAMED(txtLayoutID), entry, {4800, 270, 600, kTextHeight});
    Add(NAMED(lblLayoutTotalCaption), entry, {5520, 300, 1080, kLabelHeight})
        .SetCaption("Unit Count:");
    Add(NAMED(txtLayoutTotal), entry, {6660, 270, 360, kTextHeight});

    // The units, between the layout and the button strip along the bottom.
    constexpr float kStripHeight = 600;
    const float gridTop = layoutPlace.top + layoutPlace.height + 120;
    Add(NAMED(grdDataGrid), Self(),
        {120, gridTop, Width() - 240, Height() - gridTop - kStripHeight - 120})
        .SetDataSource(datSecondaryRS);
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

    Add(NAMED(picButtons), Self(), {0, Height() - kStripHeight, Width(), kStripHeight});
    const Container strip = In(picButtons);
    const float buttonTop = (kStripHeight - kButtonHeight) / 2;
    Add(NAMED(cmdAdd), strip, {120, buttonTop, 1095, kButtonHeight}).SetCaption("&Add");
    Add(NAMED(cmdUpdate), strip, {1290, buttonTop, 1095, kButtonHeight}).SetCaption("&Update");
    Add(NAMED(cmdDeleteLayout), strip, {2460, buttonTop, 1400, kButtonHeight})
        .SetCaption("&Delete Layout");
    Add(NAMED(cmdDeleteUnits), strip, {3935, buttonTop, 1400, kButtonHeight})
        .SetCaption("&Delete Unit(s)");
    Add(NAMED(cmdClose), strip, {Width() - 1215, buttonTop, 1095, kButtonHeight})
        .SetCaption("&Close");

    // The drop-downs laid over the grid's cells, with the search field above the type list;
    // their rows are 192 high.
    Add(NAMED(lstStationaryName), Self().Overlay(), {1500, gridTop + 240, 1665, 1935})
        .SetVisible(false);
    Add(NAMED(txtStationaryName), Self().Overlay(), {1500, gridTop, 1665, 240}).SetVisible(false);
    Add(NAMED(theDamageList), Self().Overlay(), {5000, gridTop + 240, 1200, 660}).SetVisible(false);
    AddRows(theDamageList, {"None", "Smoke", "Fire"});
}

}  // namespace tarvex
