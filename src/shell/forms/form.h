#pragma once
// What every form shares: its own window (caption, place and size, visibility, through the
// caption control it derives from) and the register of its controls, through which the skin
// and the tests reach each control by the name it carries.
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

class Form : public CaptionControl {
  public:
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

    // Names a component that stands alone and enters it in the register.
    template <typename T>
    T& Add(T& component, std::string name) {
        component.SetIdentity(std::move(name), -1);
        Registered entry;
        entry.name = component.Name();
        entry.single = &component;
        entries_.push_back(std::move(entry));
        return component;
    }

    // Enters an array (named when it was made); elements loaded later are found as well.
    template <typename T>
    ControlArray<T>& Add(ControlArray<T>& array) {
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

    // Rows whose item data is the row number.
    static void AddRows(ListControl& list, std::initializer_list<const char*> texts);
    static void AddRows(ListControl& list, std::initializer_list<FixedRow> rows);
    template <size_t N>
    static void AddColumns(DataGrid& grid, const FixedColumn (&columns)[N]) {
        for (const FixedColumn& column : columns)
            grid.AddColumn(column.caption, column.dataField);
    }

  private:
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
