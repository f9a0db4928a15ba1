#include "shell/forms/frm_tbl_missions.h"

namespace tarvex {

frmtblMissions::frmtblMissions() : Form("frmtblMissions"), optAllegiance("optAllegiance", 0, 3) {
    SetCaption("Missions Summary");
    Move(0, 0, 9300, 6340);

    Add(datPrimaryRS, "datPrimaryRS");
    Add(grdDataGrid, "grdDataGrid").SetDataSource(datPrimaryRS);
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

    Add(lblType, "lblType");
    Add(lblSummary, "lblSummary");
    Add(lblObjective, "lblObjective");
    Add(lblDate, "lblDate");
    Add(lblTime, "lblTime");
    Add(lblReqd, "lblReqd");
    Add(lblClouds, "lblClouds");
    Add(lblWind, "lblWind");
    Add(lblVis, "lblVis");
    Add(lblAlly, "lblAlly");
    // The filter's row is the Allegiance value, 0 for all.
    Add(optAllegiance);
    const char* captions[] = {"All", "RAF", "Luftwaffe", "USAAF"};
    for (int k = 0; k <= 3; ++k)
        optAllegiance(k).SetCaption(captions[k]);
    Add(cmdLoad, "cmdLoad").SetCaption("&Load");
    Add(btnDelete, "btnDelete").SetCaption("&Delete");
    Add(cmdClose, "cmdClose").SetCaption("&Close");
}

}  // namespace tarvex
