#pragma once
// The records of the Aircraft table: a grid, two filter combos, the buttons, and the pick lists
// laid over the grid's Family and Allegiance cells.
#include "shell/forms/form.h"

namespace tarvex {

class frmAircraft : public Form {
  public:
    explicit frmAircraft(Editor& ed);

    Editor& ed;

    // TODO(forms): datPrimaryRS (data source) and grdDataGrid (bound grid) once the grid
    // models exist.
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
