#pragma once
// The small window that shows what a long operation is doing.
#include "shell/forms/form.h"

namespace tarvex {

class frmMsgScreen : public Form {
  public:
    frmMsgScreen();

    Label lblMessage;
};

}  // namespace tarvex
