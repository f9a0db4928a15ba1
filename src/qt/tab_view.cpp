#include "qt/tab_view.h"

#include <QMouseEvent>
#include <QTabBar>

#include "qt/binding.h"
#include "qt/input_codes.h"
#include "shell/controls/user_gestures.h"

namespace tarvex::qt {

namespace {

class TabBinding : public ControlBinding {
  public:
    TabBinding(TabControl& model, TabView* view, QPointF origin)
        : ControlBinding(model, view, origin), view_(view) {}

  protected:
    void Sync(Aspect aspect) override {
        if (aspect != Aspect::Geometry && aspect != Aspect::Focus) view_->SyncPages();
        ControlBinding::Sync(aspect);
    }

  private:
    TabView* view_;
};

}  // namespace

TabView::TabView(TabControl& model, QWidget* parent) : QTabWidget(parent), model_(model) {
    tabBar()->installEventFilter(this);
    SyncPages();
}

ControlBinding* TabView::Bind(QPointF origin) {
    return new TabBinding(model_, this, origin);
}

QWidget* TabView::Page(int tab) const {
    return tab >= 0 && tab < static_cast<int>(pages_.size()) ? pages_[tab] : nullptr;
}

void TabView::SyncPages() {
    const QSignalBlocker blocker(this);
    while (static_cast<int>(pages_.size()) < model_.Tabs()) {
        auto* page = new QWidget;
        page->setObjectName(QString("page%1").arg(pages_.size()));
        page->installEventFilter(this);
        pages_.push_back(page);
        addTab(page, QString());
    }
    while (static_cast<int>(pages_.size()) > model_.Tabs()) {
        delete pages_.back();
        pages_.pop_back();
    }
    for (int tab = 0; tab < model_.Tabs(); ++tab) {
        setTabText(tab, QString::fromStdString(model_.TabCaption(tab)));
        setTabEnabled(tab, model_.TabEnabled(tab));
        setTabVisible(tab, model_.TabVisible(tab));
    }
    setCurrentIndex(model_.Tab());
}

bool TabView::eventFilter(QObject* watched, QEvent* event) {
    const bool onBar = watched == tabBar();
    const bool onPage = !onBar && event->type() != QEvent::Paint &&
                        std::find(pages_.begin(), pages_.end(), watched) != pages_.end();
    if (!onBar && !onPage) return false;
    // The strip changes tab only through the model, also on the second press of a double click.
    if (event->type() == QEvent::MouseButtonDblClick) return onBar;
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease)
        return false;
    auto* mouse = static_cast<QMouseEvent*>(event);
    const int button = ButtonOf(mouse->button());
    const int shift = ShiftOf(mouse->modifiers());
    const double scale = ScaleOf(this);
    float x = Twips(mouse->position().x(), scale);
    float y;
    int tab = -1;
    if (onBar) {
        // The header strip is the model's top TabHeight; the point keeps its place within it.
        const double share =
            tabBar()->height() > 0 ? mouse->position().y() / tabBar()->height() : 0;
        y = static_cast<float>(std::clamp(share, 0.0, 1.0) * model_.TabHeight());
        x = Twips(tabBar()->mapTo(this, mouse->position().toPoint()).x(), scale);
        tab = tabBar()->tabAt(mouse->position().toPoint());
    } else {
        y = model_.TabHeight() + Twips(mouse->position().y(), scale);
    }
    if (event->type() == QEvent::MouseButtonPress)
        Guarded([&] { UserPressTab(model_, tab, button, shift, x, y); });
    else
        Guarded([&] { model_.RaiseMouseUp(button, shift, x, y); });
    return onBar;
}

}  // namespace tarvex::qt
