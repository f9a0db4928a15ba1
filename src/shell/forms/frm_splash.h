#pragma once
// The first window of a run: the splash picture, the version, and the timer that ends it.
#include "shell/forms/form.h"

namespace tarvex {

class frmSplash : public Form {
  public:
    frmSplash();

    PictureSurface picSplash;
    Timer Timer1;
    Label lblVersion;
    // The program's name and its author's line.
    Label lblProductName;
    Label lblAuthor;
};

}  // namespace tarvex
