#include "qt/menu_bar.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>

#include "qt/binding.h"
#include "qt/qt_text.h"

namespace tarvex::qt {

namespace {

// Whether the pointer rests on an open menu, which tells a mouse highlight from a key's.
bool PointerOnMenu() {
    return qobject_cast<QMenu*>(QApplication::widgetAt(QCursor::pos())) != nullptr;
}

void BindAction(MenuItem& item, QAction* action) {
    const auto sync = [&item, action] {
        const QSignalBlocker blocker(action);
        action->setSeparator(item.IsSeparator());
        // A separator with a text would show it as a section title.
        action->setText(item.IsSeparator() ? QString() : Q(item.Caption()));
        if (!item.Shortcut().empty())
            action->setShortcut(QKeySequence(Q(item.Shortcut())));
        else
            action->setShortcut(QKeySequence());
        action->setEnabled(item.Enabled());
        action->setVisible(item.Visible());
        action->setCheckable(item.Checked());
        action->setChecked(item.Checked());
    };
    const int id = item.AddListener([sync](Aspect) { sync(); });
    QObject::connect(action, &QObject::destroyed, [&item, id] { item.RemoveListener(id); });
    QObject::connect(action, &QAction::triggered, [&item, sync] {
        Guarded([&] { item.UserClick(); });
        sync();
    });
    QObject::connect(action, &QAction::hovered, [&item] {
        Guarded([&] { item.RaiseHighlight(PointerOnMenu() && item.Children().empty()); });
    });
    action->setObjectName(Q(item.Name()) +
                          (item.Index() >= 0 ? QString("(%1)").arg(item.Index()) : QString()));
    sync();
}

// An entry that opens a menu is clicked as it opens, so its handler can set its entries first.
void OpenRaisesClick(QMenu* menu, MenuItem& item) {
    QObject::connect(menu, &QMenu::aboutToShow, [&item] { Guarded([&] { item.UserClick(); }); });
}

void AddEntries(QMenu* menu, MenuItem& parent) {
    for (MenuItem* child : parent.Children()) {
        if (!child->Children().empty()) {
            QMenu* sub = menu->addMenu(Q(child->Caption()));
            BindAction(*child, sub->menuAction());
            OpenRaisesClick(sub, *child);
            AddEntries(sub, *child);
        } else {
            auto* action = new QAction(menu);
            menu->addAction(action);
            BindAction(*child, action);
        }
    }
}

}  // namespace

void BuildMenuBar(QMenuBar* bar, const std::vector<MenuItem*>& entries) {
    for (MenuItem* entry : entries) {
        QMenu* menu = bar->addMenu(Q(entry->Caption()));
        BindAction(*entry, menu->menuAction());
        OpenRaisesClick(menu, *entry);
        AddEntries(menu, *entry);
    }
}

}  // namespace tarvex::qt
