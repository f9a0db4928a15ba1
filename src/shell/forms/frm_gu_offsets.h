#pragma once
// The offsets window: the units of the layout in the editor, one row each, with the spin
// control that nudges the selected unit.
#include "shell/controls/data_grid.h"
#include "shell/controls/data_source.h"
#include "shell/forms/form.h"

namespace tarvex {

class frmGUOffsets : public Form {
  public:
    frmGUOffsets();

    DataSource dataGUOffsets;
    DataGrid dbgGUOffsets;
    PictureSurface Picture1;
    UpDown btnOffsetEdit;
    CommandButton btnDelGU;
    Label lblUpGU;
    Label lblDownGU;
};

}  // namespace tarvex
