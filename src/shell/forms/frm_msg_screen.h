#pragma once
// The small window that shows what a long operation is doing.
#include "shell/forms/form.h"

namespace tarvex {

class frmMsgScreen : public Form {
  public:
    explicit frmMsgScreen(Editor& ed);

    Editor& ed;

    Label lblMessage;
};

}  // namespace tarvex
