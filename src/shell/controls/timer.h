#pragma once
#include <functional>

#include "shell/controls/control.h"

namespace tarvex {

// A timer runs its Timer event every Interval milliseconds while Enabled and Interval > 0.
// The skin drives it with a real timer and calls Fire; tests call Fire directly. The class
// has its own name because its one event is called Timer; forms declare it as `Timer`.
class TimerControl : public Component {
  public:
    using Component::Component;

    int Interval() const { return interval_; }
    void SetInterval(int milliseconds);  // negative raises error 380
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Running() const { return enabled_ && interval_ > 0; }

    // Runs the event when the timer is running; whether it ran.
    bool Fire();

    Event<> Timer;

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    int interval_ = 0;
    bool enabled_ = true;
};

using Timer = TimerControl;

}  // namespace tarvex
