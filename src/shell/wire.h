#pragma once
// What the wiring files are written with: "this event runs that handler", once per event.
// A handler is a function of the Editor and the event's arguments; the handler of a control
// array also takes the element's index, before the event's arguments.
#include <utility>

#include "shell/controls/control_array.h"
#include "shell/controls/event.h"

namespace tarvex {

class Editor;

template <typename... Args, typename Handler>
void Wire(Editor& ed, Event<Args...>& event, Handler handler) {
    event.Connect([&ed, handler](Args... args) { handler(ed, std::forward<Args>(args)...); });
}

// Every element of the array: element.*event runs handler(ed, index, args...).
template <typename T, typename Owner, typename... Args, typename Handler>
void WireEach(Editor& ed, ControlArray<T>& array, Event<Args...> Owner::*event, Handler handler) {
    for (T& element : array) {
        const int index = element.Index();
        (element.*event).Connect([&ed, index, handler](Args... args) {
            handler(ed, index, std::forward<Args>(args)...);
        });
    }
}

}  // namespace tarvex
