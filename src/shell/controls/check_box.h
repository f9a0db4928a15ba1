#pragma once
#include "shell/controls/control.h"

namespace tarvex {

constexpr int kUnchecked = 0;
constexpr int kChecked = 1;
constexpr int kGrayed = 2;

// Value 0 unchecked, 1 checked, 2 grayed. A change of Value, by code or by the user, fires
// Click inside the setter; any other value raises error 380.
class CheckBox : public CaptionControl {
  public:
    using CaptionControl::CaptionControl;
    int Value() const { return value_; }
    void SetValue(int value);
    // A click of the user: checked becomes unchecked, anything else checked.
    void UserClick() override { SetValue(value_ == kChecked ? kUnchecked : kChecked); }

  private:
    int value_ = kUnchecked;
};

}  // namespace tarvex
