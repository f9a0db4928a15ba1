// The user's actions of a scenario, each through the gestures the skin uses.
#include "common/number_text.h"
#include "common/text.h"
#include "scenario/control_properties.h"
#include "scenario/scenario_error.h"
#include "scenario/scenario_run.h"
#include "shell/controls/controls.h"
#include "shell/controls/data_grid.h"
#include "shell/controls/user_gestures.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex::scenario {

namespace {

// The entries from the menu bar down to `item`, `item` last; empty when it is in no menu.
bool MenuPath(const std::vector<MenuItem*>& entries, const MenuItem& item,
              std::vector<MenuItem*>& path) {
    for (MenuItem* entry : entries) {
        path.push_back(entry);
        if (entry == &item || MenuPath(entry->Children(), item, path)) return true;
        path.pop_back();
    }
    return false;
}

// The caption without the "&" of the access key.
std::string PlainCaption(const std::string& caption) {
    std::string plain;
    for (size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        plain += caption[i];
    }
    return plain;
}

}  // namespace

template <typename T>
T& ScenarioRun::ReachAs(const ControlName& name, const char* verbs) const {
    Control& control = Reach(name);
    auto* typed = dynamic_cast<T*>(&control);
    if (!typed) throw ScenarioError(name.Display() + " is " + KindOf(control) + ": " + verbs);
    return *typed;
}

void ScenarioRun::Menu(const ControlName& entry) {
    const Found found = Find(entry);
    auto* item = dynamic_cast<MenuItem*>(found.component);
    if (!item)
        throw ScenarioError(entry.Display() + " is " + KindOf(*found.component) +
                            ", not a menu entry");
    std::vector<MenuItem*> path;
    if (!MenuPath(editor_.ed().MDIMissionED.MenuBar(), *item, path)) path = {item};
    // Each menu on the way opens as the pointer reaches it, which clicks its entry.
    for (MenuItem* step : path) {
        if (!step->Visible()) throw ScenarioError("the menu entry " + step->Name() + " is hidden");
        if (!step->Enabled())
            throw ScenarioError("the menu entry " + step->Name() + " is disabled");
        step->UserClick();
    }
}

void ScenarioRun::MenuWithFile(const ControlName& entry, const std::string& path) {
    File(path, false);
    Menu(entry);
}

void ScenarioRun::Tab(int page, const std::string& caption) {
    TabControl& strip = editor_.ed().FrmMission.SSTab1;
    Reach({"FrmMission", "SSTab1", -1});
    std::string captions;
    for (int i = 0; i < strip.Tabs() && page < 0; ++i) {
        if (SameText(PlainCaption(strip.TabCaption(i)), caption)) page = i;
        captions += (i == 0 ? "" : ", ") + PlainCaption(strip.TabCaption(i));
    }
    if (page < 0 && !caption.empty())
        throw ScenarioError("there is no tab " + Quoted(caption) + " (" + captions + ")");
    if (page < 0 || page >= strip.Tabs())
        throw ScenarioError("there is no tab " + std::to_string(page) + ": the tabs go from 0 to " +
                            std::to_string(strip.Tabs() - 1));
    if (!strip.TabVisible(page)) throw ScenarioError("tab " + std::to_string(page) + " is hidden");
    if (!strip.TabEnabled(page))
        throw ScenarioError("tab " + std::to_string(page) + " is disabled");
    const float x = strip.Width() / static_cast<float>(strip.Tabs()) * (page + 0.5f);
    const float y = strip.TabHeight() / 2;
    UserPressTab(strip, page, kLeftButton, 0, x, y);
    strip.RaiseMouseUp(kLeftButton, 0, x, y);
}

void ScenarioRun::Click(const ControlName& name, int times) {
    Repeat(times, "click", [&] { ClickOnce(name); });
}

void ScenarioRun::ClickOnce(const ControlName& name) {
    if (dynamic_cast<MenuItem*>(Find(name).component)) {
        Menu(name);
        return;
    }
    Control& control = Reach(name);
    const char* instead = nullptr;
    if (dynamic_cast<ComboBox*>(&control)) instead = "use pick";
    if (dynamic_cast<ListBox*>(&control)) instead = "use select";
    if (dynamic_cast<PictureSurface*>(&control)) instead = "click it at a point X Y";
    if (dynamic_cast<TabControl*>(&control)) instead = "use tab";
    if (dynamic_cast<DataGrid*>(&control)) instead = "use select or cell";
    if (dynamic_cast<UpDown*>(&control)) instead = "use up or down";
    if (instead) throw ScenarioError(name.Display() + " is " + KindOf(control) + ": " + instead);
    UserClickControl(control);
}

void ScenarioRun::DoubleClick(const ControlName& name, const std::optional<Spot>& row) {
    Control& control = Reach(name);
    if (auto* list = dynamic_cast<ListBox*>(&control)) {
        if (!row) throw ScenarioError("name the row of " + name.Display() + " to double-click");
        const int r = RowOf(name, *row, list, list->ListCount());
        UserPressRow(*list, r, kLeftButton, 0);
        UserReleaseRow(*list, r, kLeftButton, 0);
        UserDoubleClickRow(*list, r, kLeftButton, 0);
        UserReleaseRow(*list, r, kLeftButton, 0);
        return;
    }
    if (auto* grid = dynamic_cast<DataGrid*>(&control)) {
        if (!row) throw ScenarioError("name the row of " + name.Display() + " to double-click");
        grid->UserSelectRow(RowOf(name, *row, nullptr, grid->RowCount()), false);
        grid->RaiseDblClick();
        return;
    }
    if (row) throw ScenarioError(name.Display() + " is " + KindOf(control) + ": it has no rows");
    if (dynamic_cast<ListControl*>(&control) || dynamic_cast<PictureSurface*>(&control))
        throw ScenarioError(name.Display() + " is " + KindOf(control) +
                            ": a double click on it is not a gesture of the program");
    UserClickControl(control);
    control.RaiseMouseDown(kLeftButton, 0, control.Width() / 2, control.Height() / 2);
    control.RaiseDblClick();
    control.RaiseMouseUp(kLeftButton, 0, control.Width() / 2, control.Height() / 2);
}

void ScenarioRun::Check(const ControlName& name, bool on) {
    Control& control = Reach(name);
    if (auto* box = dynamic_cast<CheckBox*>(&control)) {
        const int want = on ? kChecked : kUnchecked;
        if (box->Value() == want) return;
        UserClickControl(*box);
        if (box->Value() != want)
            throw ScenarioError("a click left " + name.Display() + " at Value " +
                                std::to_string(box->Value()));
        return;
    }
    if (auto* option = dynamic_cast<OptionButton*>(&control)) {
        if (option->Value() == on) return;
        if (!on)
            throw ScenarioError(name.Display() +
                                " is an option button: a click sets it; set another of its group");
        UserClickControl(*option);
        return;
    }
    throw ScenarioError(name.Display() + " is " + KindOf(control) +
                        ": check works on check boxes and option buttons");
}

void ScenarioRun::Select(const ControlName& name, const Spot& row, const Modifiers& keys) {
    Control& control = Reach(name);
    if (auto* grid = dynamic_cast<DataGrid*>(&control)) {
        const int rows = grid->RowCount() + (grid->AllowAddNew() ? 1 : 0);
        grid->UserSelectRow(RowOf(name, row, nullptr, rows), (keys.shift & kCtrlMask) != 0);
        return;
    }
    if (dynamic_cast<ComboBox*>(&control))
        throw ScenarioError(name.Display() + " is a combo: use pick");
    auto* list = dynamic_cast<ListBox*>(&control);
    if (!list)
        throw ScenarioError(name.Display() + " is " + KindOf(control) +
                            ": select works on lists and grids");
    const int r = RowOf(name, row, list, list->ListCount());
    const int button = keys.button != 0 ? keys.button : kLeftButton;
    UserPressRow(*list, r, button, keys.shift);
    UserReleaseRow(*list, r, button, keys.shift);
}

void ScenarioRun::Cell(const ControlName& name, int row, int col) {
    auto& grid = ReachAs<DataGrid>(name, "cell works on grids");
    const int rows = grid.RowCount() + (grid.AllowAddNew() ? 1 : 0);
    Spot spot;
    spot.row = row;
    RowOf(name, spot, nullptr, rows);
    if (col < 0 || col >= grid.ColumnCount())
        throw ScenarioError("column " + std::to_string(col) + " is outside " + name.Display() +
                            " (" + std::to_string(grid.ColumnCount()) + " columns)");
    grid.UserMoveTo(row, col);
}

void ScenarioRun::Pick(const ControlName& name, const Spot& row) {
    auto& combo = ReachAs<ComboBox>(name, "pick works on combos");
    const int r = RowOf(name, row, &combo, combo.ListCount());
    // The pointer rests on the row before it is chosen.
    combo.UserHighlight(r);
    combo.UserChoose(r);
}

void ScenarioRun::Highlight(const ControlName& name, const Spot& row) {
    auto& combo = ReachAs<ComboBox>(name, "highlight works on combos");
    combo.UserHighlight(RowOf(name, row, &combo, combo.ListCount()));
}

void ScenarioRun::Dismiss(const ControlName& name) {
    auto& combo = ReachAs<ComboBox>(name, "dismiss closes the list of a combo");
    if (!combo.DroppedDown()) throw ScenarioError("the list of " + name.Display() + " is not open");
    combo.UserCancelDrop();
}

void ScenarioRun::Type(const ControlName& name, const std::string& text, bool replace) {
    Control& control = Reach(name);
    if (auto* grid = dynamic_cast<DataGrid*>(&control)) {
        if (grid->Col() < 0) throw ScenarioError("no cell of " + name.Display() + " is current");
        grid->UserEditCell(replace ? text : grid->CellText(grid->Row(), grid->Col()) + text);
        return;
    }
    if (auto* box = dynamic_cast<TextBox*>(&control); box && box->Locked())
        throw ScenarioError(name.Display() + " is locked: it takes no typing");
    auto* combo = dynamic_cast<ComboBox*>(&control);
    if (combo && combo->Style() == kComboDropDownList)
        throw ScenarioError(name.Display() + " takes no typing: pick a row");
    if (!combo && !dynamic_cast<TextBox*>(&control))
        throw ScenarioError(name.Display() + " is " + KindOf(control) +
                            ": type works on text boxes, combos and grids");
    UserTypeText(control, text, replace);
}

void ScenarioRun::Key(const ControlName& name, int keyCode, const Modifiers& keys) {
    Control& control = Reach(name);
    if (auto* grid = dynamic_cast<DataGrid*>(&control)) {
        grid->UserKeyDown(keyCode, keys.shift);
        grid->RaiseKeyUp(keyCode, keys.shift);
        return;
    }
    UserPressKey(control, keyCode, keys.shift);
}

void ScenarioRun::Pointer(Mouse what, const ControlName& name, const Spot& at,
                          const Modifiers& keys) {
    // A move or release may come after the press changed the control: only the press needs it
    // within reach.
    Control* reached = nullptr;
    if (what == Mouse::Press) {
        reached = &Reach(name);
    } else {
        reached = dynamic_cast<Control*>(Find(name).component);
        if (!reached) throw ScenarioError(name.Display() + " takes no pointer");
    }
    Control& control = *reached;
    int button = keys.button;
    if (button == 0) {
        const auto held = held_.find(&control);
        button = held != held_.end() ? held->second : what == Mouse::Move ? 0 : kLeftButton;
    }
    if (what == Mouse::Press) held_[&control] = button;
    if (what == Mouse::Release) held_.erase(&control);

    if (auto* list = dynamic_cast<ListBox*>(&control)) {
        const int row = RowOf(name, at, list, list->ListCount());
        if (what == Mouse::Press) UserPressRow(*list, row, button, keys.shift);
        if (what == Mouse::Move) UserMoveOverRow(*list, row, button, keys.shift);
        if (what == Mouse::Release) UserReleaseRow(*list, row, button, keys.shift);
        return;
    }
    if (!at.point)
        throw ScenarioError(name.Display() + " is " + KindOf(control) +
                            ": it takes a point X Y in map units, not a row");
    const bool sized = control.Width() > 0 && control.Height() > 0;
    if (what == Mouse::Press && sized &&
        (at.x < 0 || at.y < 0 || at.x > control.Width() || at.y > control.Height()))
        throw ScenarioError(FloatText(at.x) + " " + FloatText(at.y) + " lies outside " +
                            name.Display() + " (0 0 to " + FloatText(control.Width()) + " " +
                            FloatText(control.Height()) + ")");
    if (what == Mouse::Press) control.RaiseMouseDown(button, keys.shift, at.x, at.y);
    if (what == Mouse::Move) control.RaiseMouseMove(button, keys.shift, at.x, at.y);
    if (what == Mouse::Release) control.RaiseMouseUp(button, keys.shift, at.x, at.y);
}

void ScenarioRun::ClickAt(const ControlName& name, const Spot& at, const Modifiers& keys) {
    ReachAs<PictureSurface>(name, "a click at a point works on picture surfaces");
    Modifiers hover = keys;
    hover.button = 0;
    Pointer(Mouse::Move, name, at, hover);
    Pointer(Mouse::Press, name, at, keys);
    Pointer(Mouse::Release, name, at, keys);
}

void ScenarioRun::Drag(const ControlName& name, const Spot& from, const Spot& to,
                       const Modifiers& keys) {
    Pointer(Mouse::Press, name, from, keys);
    Pointer(Mouse::Move, name, to, keys);
    Pointer(Mouse::Release, name, to, keys);
}

void ScenarioRun::Spin(const ControlName& name, bool up, int times) {
    auto& spin = ReachAs<UpDown>(name, "up and down work on up-downs");
    Repeat(times, up ? "up" : "down", [&] {
        if (up) {
            spin.UserUp();
        } else {
            spin.UserDown();
        }
    });
}

void ScenarioRun::Tick(const ControlName& name, int times) {
    auto* timer = dynamic_cast<TimerControl*>(Find(name).component);
    if (!timer) throw ScenarioError(name.Display() + " is not a timer");
    if (!timer->Running()) throw ScenarioError(name.Display() + " is not running");
    for (int i = 0; i < times; ++i)
        if (!timer->Fire()) break;
}

void ScenarioRun::Close(const std::string& name) {
    Form& form = FindForm(name);
    if (!form.Visible()) throw ScenarioError(form.Name() + " is not open");
    form.UserClose();
}

}  // namespace tarvex::scenario
