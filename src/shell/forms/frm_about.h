#pragma once
// The about box: a picture and the button that closes it.
#include "shell/forms/form.h"

namespace tarvex {

class frmAbout : public Form {
  public:
    explicit frmAbout(Editor& ed);

    Editor& ed;

    PictureSurface picAbout;
    PictureSurface picOK;
};

}  // namespace tarvex
