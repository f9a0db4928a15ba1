#pragma once
// The floating dialog through which group and pilot names are entered.
#include "shell/forms/form.h"

namespace tarvex {

class frmNewRecord : public Form {
  public:
    frmNewRecord();

    TextBox txtNewRecord;
    // The aircraft offered as pilot names; hidden for groups.
    ComboBox cmbPilotName;
    CommandButton btnAddRecord;
    CommandButton btnReplace;
    CommandButton btnCancel;
};

}  // namespace tarvex
