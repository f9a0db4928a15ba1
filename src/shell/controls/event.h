#pragma once
// The event slot of a control: one handler, connected once. A second connection is a fault of
// the wiring, not something to resolve quietly, because the handler it would replace stops
// running without a trace; where two behaviours meet on one event, the handler named for the
// event calls both.
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace tarvex {

// What every slot answers, whatever its arguments: for the check that all handlers are wired.
class EventSlot {
  public:
    EventSlot() = default;
    EventSlot(const EventSlot&) = delete;
    EventSlot& operator=(const EventSlot&) = delete;
    virtual ~EventSlot() = default;
    virtual bool Connected() const = 0;
};

class EventAlreadyConnected : public std::logic_error {
  public:
    using std::logic_error::logic_error;
};

template <typename... Args>
class Event final : public EventSlot {
  public:
    using Handler = std::function<void(Args...)>;

    // Raises EventAlreadyConnected when the slot holds a handler.
    void Connect(Handler handler) {
        if (handler_) throw EventAlreadyConnected("an event handler is connected twice");
        handler_ = std::move(handler);
    }
    // Leaves the slot empty, for a test that puts its own probe in.
    void Disconnect() { handler_ = nullptr; }

    bool Connected() const override { return static_cast<bool>(handler_); }
    explicit operator bool() const { return Connected(); }

    // Runs the handler, if one is connected.
    void operator()(Args... args) const {
        if (handler_) handler_(std::forward<Args>(args)...);
    }

  private:
    Handler handler_;
};

// The events of a component by name ("Click", "MouseDown"), for the wiring check.
struct NamedEvent {
    const char* name;
    const EventSlot* slot;
};

}  // namespace tarvex
