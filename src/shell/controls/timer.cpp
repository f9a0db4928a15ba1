#include "shell/controls/timer.h"

#include "common/error.h"

namespace tarvex {

void TimerControl::SetInterval(int milliseconds) {
    if (milliseconds < 0) Raise(kErrInvalidProperty);
    if (milliseconds == interval_) return;
    interval_ = milliseconds;
    Notify(Aspect::Value);
}

void TimerControl::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Notify(Aspect::Value);
}

bool TimerControl::Fire() {
    if (!Running()) return false;
    if (Timer) Timer();
    return true;
}

void TimerControl::ListEvents(std::vector<NamedEvent>& out) const {
    Component::ListEvents(out);
    out.push_back({"Timer", &Timer});
}

}  // namespace tarvex
