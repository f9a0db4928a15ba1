#include "shell/forms/frm_new_record.h"

namespace tarvex {

frmNewRecord::frmNewRecord() : Form("frmNewRecord") {
    // The caption is set by whoever opens the dialog, for groups or for pilots; so is the place.
    Move(0, 0, 4200, 1440);
    Add(NAMED(txtNewRecord), Self(), {120, 120, 3960, kTextHeight});
    Add(NAMED(cmbPilotName), Self(), {120, 480, 3960, kComboHeight}).SetStyle(kComboDropDownList);
    // Both wait for a text to be typed or proposed.
    const auto buttonAt = [](int k) { return Place{120 + k * 1432.0f, 960, 1095, kButtonHeight}; };
    Add(NAMED(btnAddRecord), Self(), buttonAt(0)).SetCaption("Add");
    btnAddRecord.SetEnabled(false);
    Add(NAMED(btnReplace), Self(), buttonAt(1)).SetCaption("Replace");
    btnReplace.SetEnabled(false);
    Add(NAMED(btnCancel), Self(), buttonAt(2)).SetCaption("Close");
}

}  // namespace tarvex
