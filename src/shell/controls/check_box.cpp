#include "shell/controls/check_box.h"

#include "common/error.h"

namespace tarvex {

void CheckBox::SetValue(int value) {
    if (value < kUnchecked || value > kGrayed) Raise(kErrInvalidProperty);
    if (value == value_) return;
    value_ = value;
    Notify(Aspect::Value);
    RaiseClick();
}

}  // namespace tarvex
