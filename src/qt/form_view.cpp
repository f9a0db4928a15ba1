#include "qt/form_view.h"

#include <QCloseEvent>
#include <QLabel>
#include <QScrollArea>
#include <QTimer>
#include <sstream>

#include "qt/binders.h"

namespace tarvex::qt {

namespace {

std::set<int> PagesOf(const std::string& container) {
    std::set<int> pages;
    std::stringstream list(container.substr(container.find(':') + 1));
    std::string item;
    while (std::getline(list, item, ','))
        pages.insert(std::stoi(item));
    return pages;
}

}  // namespace

FormView::FormView(Form& form, const FormLayout& layout, QWidget* parent, Mode mode)
    : QWidget(parent), form_(form), mode_(mode) {
    if (mode == Mode::Window) setWindowFlag(Qt::Window);
    setObjectName(QString::fromStdString(form.Name()));
    ApplyLayout(form, layout);
    sharedHome_ = new QWidget(this);
    sharedHome_->hide();

    // Containers come before what they hold: create in rounds until nothing is left.
    std::vector<Control*> pending = form.Controls();
    for (int round = 0; round < 4 && !pending.empty(); ++round) {
        std::vector<Control*> later;
        for (Control* control : pending) {
            const Placement* place = layout.Find(control->Name(), control->Index());
            const std::string container = place ? place->container : "";
            QPointF origin;
            QWidget* parentWidget = ContainerOf(container, origin);
            if (!parentWidget) {
                later.push_back(control);
                continue;
            }
            if (place && place->scrolled)
                parentWidget = ScrolledHolder(*place, parentWidget, origin);
            QWidget* widget = CreateControlWidget(*control, parentWidget, origin);
            if (!widget) continue;
            if (place && place->scrolled)
                if (auto* view =
                        qobject_cast<QScrollArea*>(parentWidget->parentWidget()->parentWidget()))
                    ShowThroughScrolledView(widget, view, view->size());
            if (holders_.count(parentWidget)) {
                widget->installEventFilter(this);
                parentWidget->resize(widget->geometry().bottomRight().x() + 1,
                                     widget->geometry().bottomRight().y() + 1);
            }
            widgets_[{control->Name(), control->Index()}] = widget;
            if (container.rfind("pages:", 0) == 0) shared_.push_back({widget, PagesOf(container)});
        }
        pending.swap(later);
    }
    for (const StaticText& text : layout.texts) {
        QPointF origin;
        QWidget* parentWidget = ContainerOf(text.container, origin);
        if (!parentWidget) continue;
        auto* label = new QLabel(QString::fromStdString(text.text), parentWidget);
        label->setGeometry(Px(text.left - origin.x()), Px(text.top - origin.y()), Px(text.width),
                           Px(225));
        label->lower();
    }
    // Start the timers of the form with the window.
    for (Component* component : form.Components())
        if (auto* timer = dynamic_cast<TimerControl*>(component)) BindTimer(*timer, this);

    if (QWidget* strip = WidgetOf("SSTab1")) {
        tabs_ = dynamic_cast<TabControl*>(form.FindControl("SSTab1"));
        (void)strip;
        if (tabs_)
            tabsListener_ = tabs_->AddListener([this](Aspect aspect) {
                if (aspect == Aspect::Value) PlaceShared();
            });
        PlaceShared();
    }
    formListener_ = form.AddListener([this](Aspect) { SyncForm(); });
    SyncForm();
}

FormView::~FormView() {
    if (tabs_) tabs_->RemoveListener(tabsListener_);
    form_.RemoveListener(formListener_);
}

QWidget* FormView::WidgetOf(const std::string& name, int index) const {
    auto it = widgets_.find({name, index});
    return it == widgets_.end() ? nullptr : it->second;
}

QWidget* FormView::ScrolledHolder(const Placement& place, QWidget* parent, QPointF& origin) {
    auto* area = new QScrollArea(parent);
    area->setObjectName(QString::fromStdString(place.name) + "View");
    area->setFrameShape(QFrame::StyledPanel);
    area->setGeometry(Px(place.left - origin.x()), Px(place.top - origin.y()), Px(place.width),
                      Px(place.height));
    // The holder grows with the control inside; the control's own place is the holder's
    // top left corner.
    auto* holder = new QWidget;
    holder->resize(area->viewport()->size());
    area->setWidget(holder);
    area->setWidgetResizable(false);
    origin = QPointF(place.left, place.top);
    holders_.insert(holder);
    return holder;
}

bool FormView::eventFilter(QObject* watched, QEvent* event) {
    // A holder takes the size of what it holds.
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) {
        auto* widget = qobject_cast<QWidget*>(watched);
        QWidget* holder = widget ? widget->parentWidget() : nullptr;
        if (holder && holders_.count(holder)) {
            const QRect inner = widget->geometry();
            holder->resize(std::max(1, inner.right() + 1), std::max(1, inner.bottom() + 1));
        }
    }
    return false;
}

QWidget* FormView::ContainerOf(const std::string& container, QPointF& origin) {
    origin = QPointF(0, 0);
    if (container.empty()) return this;
    if (container.rfind("page", 0) == 0) {
        QWidget* strip = WidgetOf("SSTab1");
        auto* tabs = dynamic_cast<TabControl*>(form_.FindControl("SSTab1"));
        if (!strip || !tabs) return nullptr;
        // Page coordinates are the strip's, whose top TabHeight is the header.
        origin = QPointF(0, tabs->TabHeight());
        if (container.rfind("pages:", 0) == 0) return sharedHome_;
        return TabPage(strip, std::stoi(container.substr(5)));
    }
    return WidgetOf(container);
}

void FormView::PlaceShared() {
    if (!tabs_) return;
    QWidget* strip = WidgetOf("SSTab1");
    for (Shared& shared : shared_) {
        QWidget* target = shared.pages.count(tabs_->Tab()) ? TabPage(strip, tabs_->Tab()) : nullptr;
        if (!target) target = sharedHome_;
        if (shared.widget->parentWidget() != target) shared.widget->setParent(target);
        if (ControlBinding* binding = ControlBinding::Of(shared.widget)) binding->SyncAll();
        shared.widget->raise();
    }
}

void FormView::SyncForm() {
    if (mode_ == Mode::Child) {
        setGeometry(Px(form_.Left()), Px(form_.Top()), Px(form_.Width()), Px(form_.Height()));
        setEnabled(form_.Enabled());
        setVisible(form_.Visible());
        return;
    }
    QWidget* top = window();
    top->setWindowTitle(QString::fromStdString(form_.Caption()));
    top->move(Px(form_.Left()), Px(form_.Top()));
    if (form_.Width() > 0 && form_.Height() > 0)
        top->resize(Px(form_.Width()), Px(form_.Height()));
    else if (mode_ == Mode::Window) {
        // Hidden children count too: the window opens with room for all of them.
        QRect extent(0, 0, 320, 200);
        for (QObject* child : children())
            if (auto* widget = qobject_cast<QWidget*>(child); widget && widget != sharedHome_)
                extent = extent.united(widget->geometry());
        top->resize(extent.bottomRight().x() + 8, extent.bottomRight().y() + 8);
    }
    top->setEnabled(form_.Enabled());
    top->setVisible(form_.Visible());
}

void FormView::closeEvent(QCloseEvent* event) {
    if (mode_ != Mode::Window) return QWidget::closeEvent(event);
    // The close box unloads the window through the model, which may refuse.
    Guarded([this] { form_.UserClose(); });
    if (form_.Visible())
        event->ignore();
    else
        event->accept();
}

}  // namespace tarvex::qt
