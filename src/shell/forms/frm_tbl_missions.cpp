#include "shell/forms/frm_tbl_missions.h"

namespace tarvex {

frmtblMissions::frmtblMissions() : Form("frmtblMissions"), optAllegiance(0, 3) {
    SetCaption("Missions Summary");
    Move(0, 0, 9300, 6340);

    Add(NAMED(datPrimaryRS), Self());
    // The grid on the left, the details of its row in a column on the right.
    Add(NAMED(grdDataGrid), Self(), {120, 120, 4560, Height() - 240}).SetDataSource(datPrimaryRS);
    grdDataGrid.SetAllowAddNew(false);
    const FixedColumn columns[] = {
        {"MissionID", "MissionID"},
        {"Title", "Title"},
        {"Type", "Type"},
        {"Summary", "Summary"},
        {"Objective", "Objective"},
        {"Date", "Date"},
        {"Time", "Time"},
        {"Reqrd", "Reqrd"},
        {"Clouds", "Clouds"},
        {"Wind", "Wind"},
        {"Visibility", "Visibility"},
        {"Map", "Map"},
        {"Allegiance", "Allegiance"},
        {"Filename", "Filename"},
    };
    AddColumns(grdDataGrid, columns);
    // The grid shows the id, the title and the map; the labels beside it and the status
    // strip show the rest of the selected row.
    for (int col = 0; col < grdDataGrid.ColumnCount(); ++col)
        grdDataGrid.Columns(col).SetVisible(col == 0 || col == 1 || col == 11);

    // Each detail under its caption's row: the caption on the left, the value on the right.
    const auto captionAt = [](float top) { return Place{4800, top, 1020, kLabelHeight}; };
    const auto valueAt = [](float top, float height = kLabelHeight) {
        return Place{5940, top, 3240, height};
    };
    Add(NAMED(lblTypeCaption), Self(), captionAt(120)).SetCaption("Type");
    Add(NAMED(lblType), Self(), valueAt(120));
    Add(NAMED(lblSummaryCaption), Self(), captionAt(420)).SetCaption("Summary");
    Add(NAMED(lblSummary), Self(), valueAt(420, 1200));
    Add(NAMED(lblObjectiveCaption), Self(), captionAt(1740)).SetCaption("Objective");
    Add(NAMED(lblObjective), Self(), valueAt(1740, 1200));
    Add(NAMED(lblDateCaption), Self(), captionAt(3060)).SetCaption("Date");
    Add(NAMED(lblDate), Self(), valueAt(3060));
    Add(NAMED(lblTimeCaption), Self(), captionAt(3360)).SetCaption("Time");
    Add(NAMED(lblTime), Self(), valueAt(3360));
    Add(NAMED(lblReqdCaption), Self(), captionAt(3660)).SetCaption("% Reqd");
    Add(NAMED(lblReqd), Self(), valueAt(3660));
    Add(NAMED(lblCloudsCaption), Self(), captionAt(3960)).SetCaption("Clouds");
    Add(NAMED(lblClouds), Self(), valueAt(3960));
    Add(NAMED(lblWindCaption), Self(), captionAt(4260)).SetCaption("Wind");
    Add(NAMED(lblWind), Self(), valueAt(4260));
    Add(NAMED(lblVisCaption), Self(), captionAt(4560)).SetCaption("Visibility");
    Add(NAMED(lblVis), Self(), valueAt(4560));
    Add(NAMED(lblAllyCaption), Self(), captionAt(4860)).SetCaption("Allegiance");
    Add(NAMED(lblAlly), Self(), valueAt(4860));
    // The filter's row is the Allegiance value, 0 for all.
    Add(NAMED(optAllegiance), Self(), [](int k) {
        const float lefts[] = {4800, 5700, 6660, 8040};
        const float widths[] = {840, 900, 1320, 1140};
        return Place{lefts[k], 5280, widths[k], kCheckHeight};
    });
    const char* captions[] = {"All", "RAF", "Luftwaffe", "USAAF"};
    for (int k = 0; k <= 3; ++k)
        optAllegiance(k).SetCaption(captions[k]);
    const auto buttonAt = [](int k) {
        return Place{5625 + k * 1230.0f, 5820, 1095, kButtonHeight};
    };
    Add(NAMED(cmdLoad), Self(), buttonAt(0)).SetCaption("&Load");
    Add(NAMED(btnDelete), Self(), buttonAt(1)).SetCaption("&Delete");
    Add(NAMED(cmdClose), Self(), buttonAt(2)).SetCaption("&Close");
}

}  // namespace tarvex
