#pragma once
#include "shell/controls/control.h"

namespace tarvex {

// A whole-number spinner. Value must lie between Min and Max (in either order); a value
// outside raises error 380. Change fires whenever Value changes, also when code sets it.
// The arrows step by Increment, stop at the bounds, and fire UpClick / DownClick after the
// value's Change, even when the value stood at its bound already.
class UpDown : public Control {
  public:
    using Control::Control;

    int Value() const { return value_; }
    void SetValue(int value);
    int Min() const { return min_; }
    int Max() const { return max_; }
    // Bounds are set without firing; a Value outside them moves to the nearest bound silently.
    void SetMin(int min);
    void SetMax(int max);
    int Increment() const { return increment_; }
    void SetIncrement(int increment);  // below 1 raises error 380

    void UserUp();
    void UserDown();

    // The value stands in a box beside the arrows, where it can be typed as well; otherwise
    // the control is the arrows alone.
    bool ShowValue() const { return showValue_; }
    void SetShowValue(bool show);

    Event<> Change;
    Event<> UpClick;
    Event<> DownClick;

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    void ClampSilently();
    void Step(int delta);

    int value_ = 0;
    int min_ = 0;
    int max_ = 10;
    int increment_ = 1;
    bool showValue_ = false;
};

}  // namespace tarvex
