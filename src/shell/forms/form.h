#pragma once
// What every form shares: its own window (caption, place and size, visibility, through the
// caption control it derives from) and the register of its controls, through which the skin
// and the tests reach each control by the name it carries and learn where it lies.
#include <concepts>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/controls/controls.h"
#include "shell/controls/data_grid.h"

namespace tarvex {

// A column of a bound grid: its heading and the field behind it.
struct FixedColumn {
    const char* caption;
    const char* dataField;
};

// A fixed row of a list or combo: its text and its item data.
struct FixedRow {
    const char* text;
    std::int32_t data;
};

// A member and its own name, for Add: Add(NAMED(txtTitle), ...) enters txtTitle as "txtTitle".
#define NAMED(member) member, #member

// Controls take a place in their form; the other components (menu entries, timers, dialogs)
// don't.
template <typename T>
concept ControlKind = std::derived_from<T, Control>;
template <typename T>
concept OtherComponentKind = std::derived_from<T, Component> && !ControlKind<T>;

class Form : public CaptionControl {
  public:
    // Heights of one line of each kind of control, in map units, for laying out the forms.
    static constexpr float kTextHeight = 300;
    static constexpr float kComboHeight = 330;
    static constexpr float kLabelHeight = 225;
    static constexpr float kCheckHeight = 255;
    static constexpr float kButtonHeight = 345;

    // A form starts hidden: showing it is the business of whoever opens it.
    explicit Form(std::string name) : CaptionControl(std::move(name)) { SetVisible(false); }

    // The life of a window. LoadForm raises Load the first time (a loaded form's controls keep
    // their values while it is hidden); Show loads the form and makes it visible; UnloadForm
    // raises Unload and hides the form, which loads afresh the next time. The close box of the
    // window is UserClose: QueryUnload may cancel it (a non-zero cancel), then the form unloads.
    bool Loaded() const { return loaded_; }
    void LoadForm();
    void Show();
    void UnloadForm();
    void UserClose();
    // The skin reports a new size of the window; Resize runs after it is stored.
    void UserResize(float width, float height);

    // A window that floats over the main window and stays on top of the others, without
    // holding the rest of the program up.
    bool TopMost() const { return topMost_; }
    void SetTopMost(bool topMost);

    Event<> Load;
    Event<int&> QueryUnload;  // cancel
    Event<> Unload;
    Event<> Resize;

    // The component of that name, compared without regard to case, and index (-1 for one that
    // stands alone, the element's index for a control array). nullptr when there is none.
    // Menu entries, timers and dialogs are components but not controls: FindControl answers
    // nullptr for them, FindComponent finds them as well.
    Component* FindComponent(std::string_view name, int index = -1) const;
    Control* FindControl(std::string_view name, int index = -1) const;

    // Every component in the order of registration, the elements of an array in index order.
    std::vector<Component*> Components() const;
    std::vector<Control*> Controls() const;

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

    // Each control is declared once, in the form's constructor: its name, its container and
    // its place there, in map units. A container is the form itself (Self), a frame or picture
    // surface entered before (In), or pages of a tab strip entered before (Page, Pages):
    //     Add(NAMED(lstStationary), In(fraStationary), {120, 240, 3420, 1200});
    //     Add(NAMED(txtSummary), Page(SSTab1, 0), {1320, 760, 3900, 1200}).SetMultiLine(true);
    // A map seen through a scrolled view of its place takes Page(SSTab1, 3).Scrolled(); a
    // control shown in turn with what lies under it (hidden at first), In(frame).Overlay().
    Container Self() const { return Container::In(*this); }
    static Container In(const Control& holder) { return Container::In(holder); }
    static Container Page(const TabControl& strip, int page) {
        return Container::Pages(strip, {page});
    }
    static Container Pages(const TabControl& strip, std::initializer_list<int> pages) {
        return Container::Pages(strip, pages);
    }

    template <ControlKind T>
    T& Add(T& control, std::string name, const Container& where, const Place& place = {}) {
        CheckContainer(where, name);
        control.SetIdentity(std::move(name), -1);
        control.PlaceIn(where, place);
        Enter(control);
        return control;
    }

    // A control array, each element at the place that placeOf(index) gives:
    //     Add(NAMED(chkWPOptions), In(fraWaypoints),
    //         [](int k) { return Place{2640, 980 + k * 280.0f, 1140, kCheckHeight}; });
    template <ControlKind T, typename PlaceOf>
    ControlArray<T>& Add(ControlArray<T>& array, std::string name, const Container& where,
                         PlaceOf placeOf) {
        CheckContainer(where, name);
        array.SetName(std::move(name));
        for (T& element : array)
            element.PlaceIn(where, placeOf(element.Index()));
        return Enter(array);
    }

    // Menu entries, timers and dialogs: a name and no place.
    template <OtherComponentKind T>
    T& Add(T& component, std::string name) {
        component.SetIdentity(std::move(name), -1);
        Enter(component);
        return component;
    }
    template <OtherComponentKind T>
    ControlArray<T>& Add(ControlArray<T>& array, std::string name) {
        array.SetName(std::move(name));
        return Enter(array);
    }

    // Rows whose item data is the row number.
    static void AddRows(ListControl& list, std::initializer_list<const char*> texts);
    static void AddRows(ListControl& list, std::initializer_list<FixedRow> rows);
    template <size_t N>
    static void AddColumns(DataGrid& grid, const FixedColumn (&columns)[N]) {
        for (const FixedColumn& column : columns)
            grid.AddColumn(column.caption, column.dataField);
    }

  private:
    // Enters a component that stands alone in the register.
    void Enter(Component& component) {
        Registered entry;
        entry.name = component.Name();
        entry.single = &component;
        entries_.push_back(std::move(entry));
    }
    // Enters an array; elements loaded later are found as well.
    template <typename T>
    ControlArray<T>& Enter(ControlArray<T>& array) {
        Registered entry;
        entry.name = array.Name();
        entry.find = [&array](int index) -> Component* {
            return array.Exists(index) ? &array(index) : nullptr;
        };
        entry.each = [&array](std::vector<Component*>& out) {
            for (T& element : array)
                out.push_back(&element);
        };
        entries_.push_back(std::move(entry));
        return array;
    }
    // A container must be this form or a control entered before; anything else is a fault of
    // the form's declaration, which no window could show.
    void CheckContainer(const Container& where, const std::string& name) const;

    bool loaded_ = false;
    bool topMost_ = false;
    struct Registered {
        std::string name;
        Component* single = nullptr;
        std::function<Component*(int)> find;
        std::function<void(std::vector<Component*>&)> each;
    };
    std::vector<Registered> entries_;
};

}  // namespace tarvex
