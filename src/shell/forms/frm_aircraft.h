#pragma once
// The records of the Aircraft table: a grid, two filter combos, the buttons, and the pick lists
// laid over the grid's Family and Allegiance cells.
#include "shell/controls/data_grid.h"
#include "shell/controls/data_source.h"
#include "shell/forms/form.h"

namespace tarvex {

class frmAircraft : public Form {
  public:
    frmAircraft();

    DataSource datPrimaryRS;
    DataGrid grdDataGrid;
    PictureSurface picButtons;
    CommandButton cmdAdd;
    CommandButton cmdDelete;
    CommandButton cmdUpdate;
    CommandButton cmdClose;
    Label Label2;
    ComboBox cmbAirforce;
    Label Label1;
    ComboBox cmbUnitRole;
    CommandButton btnBrowse;
    ListBox theFamList;
    ListBox theAllyList;
};

}  // namespace tarvex
