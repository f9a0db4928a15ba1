#include "qt/widget_factory.h"

#include "qt/binding.h"
#include "qt/caption_bindings.h"
#include "qt/grid_view.h"
#include "qt/line_binding.h"
#include "qt/list_bindings.h"
#include "qt/picture_view.h"
#include "qt/spin_bindings.h"
#include "qt/tab_view.h"
#include "qt/text_bindings.h"
#include "shell/controls/controls.h"
#include "shell/controls/data_grid.h"

namespace tarvex::qt {

QWidget* CreateControlWidget(Control& control, QWidget* parent, QPointF origin) {
    ControlBinding* binding = nullptr;
    if (auto* tab = dynamic_cast<TabControl*>(&control)) {
        binding = (new TabView(*tab, parent))->Bind(origin);
    } else if (auto* surface = dynamic_cast<PictureSurface*>(&control)) {
        binding = (new PictureView(*surface, parent))->Bind(origin);
    } else if (auto* grid = dynamic_cast<DataGrid*>(&control)) {
        binding = (new GridView(*grid, parent))->Bind(origin);
    } else if (dynamic_cast<DataSource*>(&control)) {
        return nullptr;
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
        binding = BindCombo(*combo, parent, origin);
    } else if (auto* list = dynamic_cast<ListBox*>(&control)) {
        binding = BindList(*list, parent, origin);
    } else if (auto* text = dynamic_cast<TextBox*>(&control)) {
        binding = BindTextBox(*text, parent, origin);
    } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
        binding = BindCheck(*check, parent, origin);
    } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
        binding = BindOption(*option, parent, origin);
    } else if (auto* button = dynamic_cast<CommandButton*>(&control)) {
        binding = BindButton(*button, parent, origin);
    } else if (auto* frame = dynamic_cast<Frame*>(&control)) {
        binding = BindFrame(*frame, parent, origin);
    } else if (auto* label = dynamic_cast<Label*>(&control)) {
        binding = BindLabel(*label, parent, origin);
    } else if (auto* spin = dynamic_cast<UpDown*>(&control)) {
        binding = BindUpDown(*spin, parent, origin);
    } else if (auto* line = dynamic_cast<LineControl*>(&control)) {
        binding = BindLine(*line, parent, origin);
    } else {
        return nullptr;
    }
    binding->SyncAll();
    return binding->Widget();
}

QWidget* TabPage(QWidget* tabWidget, int page) {
    auto* view = dynamic_cast<TabView*>(tabWidget);
    return view ? view->Page(page) : nullptr;
}

}  // namespace tarvex::qt
