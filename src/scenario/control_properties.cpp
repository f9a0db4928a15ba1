#include "scenario/control_properties.h"

#include <string_view>

#include "common/number_text.h"
#include "common/text.h"
#include "scenario/scenario_error.h"
#include "shell/controls/controls.h"
#include "shell/controls/data_grid.h"
#include "shell/controls/data_source.h"
#include "shell/forms/form.h"

namespace tarvex::scenario {

namespace {

std::string Text(std::string text) {
    return text;
}
std::string Whole(long long value) {
    return IntText(value);
}
std::string Real(float value) {
    return FloatText(value);
}
std::string Flag(bool value) {
    return value ? "True" : "False";
}

// Reads the property when its name is this one, with `arity` arguments.
class Reader {
  public:
    Reader(const PropertyName& property) : property_(property) {}

    bool Is(std::string_view name, size_t arity = 0) const {
        if (!SameText(property_.name, name)) return false;
        if (property_.args.size() != arity)
            throw ScenarioError(std::string(name) + (arity == 0   ? " takes no index"
                                                     : arity == 1 ? " takes one index, as in " +
                                                                        std::string(name) + "(0)"
                                                                  : " takes two indexes"));
        return true;
    }
    int Arg(size_t i) const { return property_.args[i]; }
    // The row argument, which must be one of `count` rows.
    int Row(int count, const std::string& what) const {
        const int row = property_.args[0];
        if (row < 0 || row >= count)
            throw ScenarioError("row " + std::to_string(row) + " is outside " + what + " (" +
                                std::to_string(count) + " rows)");
        return row;
    }

  private:
    const PropertyName& property_;
};

std::optional<std::string> ListProperty(const ListControl& list, const Reader& p) {
    if (p.Is("ListIndex")) return Whole(list.ListIndex());
    if (p.Is("ListCount")) return Whole(list.ListCount());
    if (p.Is("NewIndex")) return Whole(list.NewIndex());
    if (p.Is("Sorted")) return Flag(list.Sorted());
    if (p.Is("List", 1)) return Text(list.List(p.Row(list.ListCount(), list.Name())));
    if (p.Is("ItemData", 1)) return Whole(list.ItemData(p.Row(list.ListCount(), list.Name())));
    if (auto* box = dynamic_cast<const ListBox*>(&list)) {
        if (p.Is("Selected", 1)) return Flag(box->Selected(p.Row(box->ListCount(), box->Name())));
        if (p.Is("SelCount")) return Whole(box->SelCount());
        if (p.Is("TopIndex")) return Whole(box->TopIndex());
        if (p.Is("MultiSelect")) return Whole(box->MultiSelect());
    }
    if (auto* combo = dynamic_cast<const ComboBox*>(&list)) {
        if (p.Is("Text")) return Text(combo->Text());
        if (p.Is("Style")) return Whole(combo->Style());
        if (p.Is("DroppedDown")) return Flag(combo->DroppedDown());
    }
    return std::nullopt;
}

std::optional<std::string> KindProperty(const Control& control, const Reader& p) {
    if (auto* list = dynamic_cast<const ListControl*>(&control)) return ListProperty(*list, p);
    if (auto* text = dynamic_cast<const TextBox*>(&control)) {
        if (p.Is("Text")) return Text(text->Text());
        if (p.Is("SelStart")) return Whole(text->SelStart());
        if (p.Is("SelLength")) return Whole(text->SelLength());
        if (p.Is("SelText")) return Text(text->SelText());
        if (p.Is("Locked")) return Flag(text->Locked());
        if (p.Is("MaxLength")) return Whole(text->MaxLength());
    }
    if (auto* check = dynamic_cast<const CheckBox*>(&control))
        if (p.Is("Value")) return Whole(check->Value());
    if (auto* option = dynamic_cast<const OptionButton*>(&control))
        if (p.Is("Value")) return Flag(option->Value());
    if (auto* spin = dynamic_cast<const UpDown*>(&control)) {
        if (p.Is("Value")) return Whole(spin->Value());
        if (p.Is("Min")) return Whole(spin->Min());
        if (p.Is("Max")) return Whole(spin->Max());
        if (p.Is("Increment")) return Whole(spin->Increment());
    }
    if (auto* strip = dynamic_cast<const TabControl*>(&control)) {
        if (p.Is("Tab")) return Whole(strip->Tab());
        if (p.Is("Tabs")) return Whole(strip->Tabs());
        if (p.Is("TabCaption", 1)) return Text(strip->TabCaption(p.Row(strip->Tabs(), "the tabs")));
        if (p.Is("TabEnabled", 1)) return Flag(strip->TabEnabled(p.Row(strip->Tabs(), "the tabs")));
        if (p.Is("TabVisible", 1)) return Flag(strip->TabVisible(p.Row(strip->Tabs(), "the tabs")));
    }
    if (auto* surface = dynamic_cast<const PictureSurface*>(&control)) {
        if (p.Is("Picture")) return Text(surface->Picture());
        // What is printed on it, one line per Print.
        if (p.Is("Text")) {
            std::string printed;
            for (const DrawOp& op : surface->Operations())
                if (op.kind == DrawKind::Text) printed += (printed.empty() ? "" : "\n") + op.text;
            return Text(printed);
        }
    }
    if (auto* grid = dynamic_cast<const DataGrid*>(&control)) {
        if (p.Is("Row")) return Whole(grid->Row());
        if (p.Is("Col")) return Whole(grid->Col());
        if (p.Is("RowCount")) return Whole(grid->RowCount());
        if (p.Is("ColumnCount")) return Whole(grid->ColumnCount());
        if (p.Is("SelCount")) return Whole(static_cast<long long>(grid->SelBookmarks().size()));
        if (p.Is("Cell", 2)) {
            if (p.Arg(1) < 0 || p.Arg(1) >= grid->ColumnCount())
                throw ScenarioError("column " + std::to_string(p.Arg(1)) + " is outside " +
                                    grid->Name());
            return Text(grid->CellText(p.Row(grid->RowCount() + 1, grid->Name()), p.Arg(1)));
        }
    }
    if (auto* line = dynamic_cast<const LineControl*>(&control)) {
        if (p.Is("X1")) return Real(line->X1());
        if (p.Is("Y1")) return Real(line->Y1());
        if (p.Is("X2")) return Real(line->X2());
        if (p.Is("Y2")) return Real(line->Y2());
    }
    if (auto* form = dynamic_cast<const Form*>(&control))
        if (p.Is("Loaded")) return Flag(form->Loaded());
    return std::nullopt;
}

std::optional<std::string> ControlProperty(const Control& control, const Reader& p) {
    if (auto value = KindProperty(control, p)) return value;
    if (auto* caption = dynamic_cast<const CaptionControl*>(&control))
        if (p.Is("Caption")) return Text(caption->Caption());
    if (p.Is("Enabled")) return Flag(control.Enabled());
    if (p.Is("Visible")) return Flag(control.Visible());
    if (p.Is("Left")) return Real(control.Left());
    if (p.Is("Top")) return Real(control.Top());
    if (p.Is("Width")) return Real(control.Width());
    if (p.Is("Height")) return Real(control.Height());
    if (p.Is("BackColor")) return Whole(control.BackColor());
    if (p.Is("ForeColor")) return Whole(control.ForeColor());
    if (p.Is("ToolTipText")) return Text(control.ToolTipText());
    if (p.Is("MousePointer")) return Whole(control.MousePointer());
    return std::nullopt;
}

}  // namespace

std::optional<std::string> ReadProperty(const Component& component, const PropertyName& property) {
    const Reader p(property);
    if (p.Is("Tag")) return Text(component.Tag());
    if (auto* control = dynamic_cast<const Control*>(&component))
        return ControlProperty(*control, p);
    if (auto* menu = dynamic_cast<const MenuItem*>(&component)) {
        if (p.Is("Caption")) return Text(menu->Caption());
        if (p.Is("Enabled")) return Flag(menu->Enabled());
        if (p.Is("Checked")) return Flag(menu->Checked());
        if (p.Is("Visible")) return Flag(menu->Visible());
        if (p.Is("Shortcut")) return Text(menu->Shortcut());
    }
    if (auto* timer = dynamic_cast<const TimerControl*>(&component)) {
        if (p.Is("Enabled")) return Flag(timer->Enabled());
        if (p.Is("Interval")) return Whole(timer->Interval());
    }
    return std::nullopt;
}

std::string KindOf(const Component& component) {
    const Component* c = &component;
    if (dynamic_cast<const Form*>(c)) return "a window";
    if (dynamic_cast<const ComboBox*>(c)) return "a combo";
    if (dynamic_cast<const ListBox*>(c)) return "a list";
    if (dynamic_cast<const TextBox*>(c)) return "a text box";
    if (dynamic_cast<const CheckBox*>(c)) return "a check box";
    if (dynamic_cast<const OptionButton*>(c)) return "an option button";
    if (dynamic_cast<const CommandButton*>(c)) return "a button";
    if (dynamic_cast<const Label*>(c)) return "a label";
    if (dynamic_cast<const Frame*>(c)) return "a frame";
    if (dynamic_cast<const UpDown*>(c)) return "an up-down";
    if (dynamic_cast<const TabControl*>(c)) return "a tab strip";
    if (dynamic_cast<const PictureSurface*>(c)) return "a picture surface";
    if (dynamic_cast<const DataGrid*>(c)) return "a grid";
    if (dynamic_cast<const DataSource*>(c)) return "a data source";
    if (dynamic_cast<const MenuItem*>(c)) return "a menu entry";
    if (dynamic_cast<const TimerControl*>(c)) return "a timer";
    if (dynamic_cast<const CommonDialog*>(c)) return "a file dialog";
    return "a control";
}

}  // namespace tarvex::scenario
