#pragma once
// The records of the ground layouts: a layout picked in a combo, the entry of a new one, and a
// grid of its units with drop-down lists laid over the type and damage cells.
#include "shell/controls/data_grid.h"
#include "shell/controls/data_source.h"
#include "shell/forms/form.h"

namespace tarvex {

class frmGrndNames : public Form {
  public:
    frmGrndNames();

    // The layout, and its units.
    DataSource datPrimaryRS;
    DataSource datSecondaryRS;
    DataGrid grdDataGrid;
    Frame fraLayoutView;
    Label lblGULayoutNameCaption;
    ComboBox cmbGULayoutName;
    Label lblIDCaption;
    // Shows the layout's ID.
    Label Label1;
    Label lblUnitCountCaption;
    Label lblUnitCount;
    Frame fraLayoutAdd;
    Label lblLayoutNameCaption;
    TextBox txtLayoutName;
    Label lblLayoutIDCaption;
    TextBox txtLayoutID;
    Label lblLayoutTotalCaption;
    TextBox txtLayoutTotal;
    ListBox lstStationaryName;
    TextBox txtStationaryName;
    ListBox theDamageList;
    PictureSurface picButtons;
    CommandButton cmdAdd;
    CommandButton cmdUpdate;
    CommandButton cmdDeleteLayout;
    CommandButton cmdDeleteUnits;
    CommandButton cmdClose;
};

}  // namespace tarvex
