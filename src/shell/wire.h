#pragma once
// What the wiring files are written with: "this event runs that handler", once per event.
// A handler is a function of the Editor and the event's arguments; the handler of a control
// array also takes the element's index, before the event's arguments.
#include <utility>
#include <vector>

#include "shell/controls/control_array.h"
#include "shell/controls/event.h"
#include "shell/controls/menu_item.h"

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

// Every entry of a menu tree, the entries of the bar included: entry.*event runs
// handler(ed, entry, args...), for a watcher of all the menus.
template <typename... Args, typename Handler>
void WireMenus(Editor& ed, const std::vector<MenuItem*>& entries, Event<Args...> MenuItem::*event,
               Handler handler) {
    for (MenuItem* entry : entries) {
        const MenuItem& e = *entry;
        (entry->*event).Connect([&ed, &e, handler](Args... args) {
            handler(ed, e, std::forward<Args>(args)...);
        });
        WireMenus(ed, entry->Children(), event, handler);
    }
}

}  // namespace tarvex
