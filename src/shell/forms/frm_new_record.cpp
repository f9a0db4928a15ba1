#include "shell/forms/frm_new_record.h"

namespace tarvex {

frmNewRecord::frmNewRecord() : Form("frmNewRecord") {
    // The caption is set by whoever opens the dialog, for groups or for pilots.
    Add(txtNewRecord, "txtNewRecord");
    Add(cmbPilotName, "cmbPilotName").SetStyle(kComboDropDownList);
    // Both wait for a text to be typed or proposed.
    Add(btnAddRecord, "btnAddRecord").SetCaption("Add");
    btnAddRecord.SetEnabled(false);
    Add(btnReplace, "btnReplace").SetCaption("Replace");
    btnReplace.SetEnabled(false);
    Add(btnCancel, "btnCancel").SetCaption("Close");
}

}  // namespace tarvex
