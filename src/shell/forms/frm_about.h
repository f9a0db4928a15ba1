#pragma once
// The about box: a picture and the button that closes it.
#include "shell/forms/form.h"

namespace tarvex {

class frmAbout : public Form {
  public:
    frmAbout();

    PictureSurface picAbout;
    PictureSurface picOK;
};

}  // namespace tarvex
