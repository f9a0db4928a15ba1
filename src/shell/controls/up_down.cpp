#include "shell/controls/up_down.h"

#include <algorithm>

#include "common/error.h"

namespace tarvex {

void UpDown::SetValue(int value) {
    if (value < std::min(min_, max_) || value > std::max(min_, max_)) Raise(kErrInvalidProperty);
    if (value == value_) return;
    value_ = value;
    Notify(Aspect::Value);
    if (Change) Change();
}

void UpDown::ClampSilently() {
    value_ = std::clamp(value_, std::min(min_, max_), std::max(min_, max_));
}

void UpDown::SetMin(int min) {
    if (min == min_) return;
    min_ = min;
    ClampSilently();
    Notify(Aspect::Value);
}

void UpDown::SetMax(int max) {
    if (max == max_) return;
    max_ = max;
    ClampSilently();
    Notify(Aspect::Value);
}

void UpDown::SetIncrement(int increment) {
    if (increment < 1) Raise(kErrInvalidProperty);
    increment_ = increment;
}

void UpDown::Step(int delta) {
    // "Up" goes towards Max, whichever way round the bounds are.
    const long long target = static_cast<long long>(value_) + (max_ >= min_ ? delta : -delta);
    const int next =
        static_cast<int>(std::clamp<long long>(target, std::min(min_, max_), std::max(min_, max_)));
    if (next != value_) SetValue(next);
}

void UpDown::SetShowValue(bool show) {
    if (show == showValue_) return;
    showValue_ = show;
    Notify(Aspect::Appearance);
}

void UpDown::UserUp() {
    Step(increment_);
    if (UpClick) UpClick();
}

void UpDown::UserDown() {
    Step(-increment_);
    if (DownClick) DownClick();
}

void UpDown::ListEvents(std::vector<NamedEvent>& out) const {
    Control::ListEvents(out);
    out.push_back({"Change", &Change});
    out.push_back({"UpClick", &UpClick});
    out.push_back({"DownClick", &DownClick});
}

}  // namespace tarvex
