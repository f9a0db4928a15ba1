#pragma once
// The offsets window: the units of the layout in the editor, one row each, with the spin
// control that nudges the selected unit.
#include "shell/forms/form.h"

namespace tarvex {

class frmGUOffsets : public Form {
  public:
    explicit frmGUOffsets(Editor& ed);

    Editor& ed;

    // TODO(forms): dataGUOffsets (data source) and dbgGUOffsets (bound grid) once the grid
    // models exist.
    PictureSurface Picture1;
    UpDown btnOffsetEdit;
    CommandButton btnDelGU;
    Label lblUpGU;
    Label lblDownGU;
};

}  // namespace tarvex
