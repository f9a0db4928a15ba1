#include "qt/form_view.h"

#include <QCloseEvent>
#include <QScreen>
#include <QScrollArea>

#include "qt/binding.h"
#include "qt/timer_binding.h"
#include "qt/widget_factory.h"

namespace tarvex::qt {

FormView::FormView(Form& form, QWidget* parent, Mode mode)
    : QWidget(parent), form_(form), mode_(mode) {
    if (mode == Mode::Window) setWindowFlag(Qt::Window);
    setObjectName(QString::fromStdString(form.Name()));
    SetViewScale(this, scale_);
    QFont font = this->font();
    font.setPointSizeF(kPointSize);
    setFont(font);
    sharedHome_ = new QWidget(this);
    sharedHome_->hide();

    // A form enters each container before what it holds, so one pass in the order of the
    // register finds every container's widget made.
    for (Control* control : form.Controls()) {
        const Container& where = control->Where();
        QPointF origin;
        QWidget* parentWidget = HolderOf(where, origin);
        if (!parentWidget) {
            qWarning("tarvex: %s.%s lies in a container without a widget", form.Name().c_str(),
                     control->Name().c_str());
            continue;
        }
        QScrollArea* view = nullptr;
        const QPointF outerOrigin = origin;
        if (where.IsScrolled()) {
            view = ScrolledView(*control, parentWidget, origin);
            parentWidget = view->widget();
        }
        QWidget* widget = CreateControlWidget(*control, parentWidget, origin);
        if (!widget) continue;
        if (view) {
            views_.push_back({view, widget, control->Home(), outerOrigin});
            ShowThroughScrolledView(widget, view, view->size());
        }
        if (holders_.count(parentWidget)) {
            widget->installEventFilter(this);
            parentWidget->resize(widget->geometry().bottomRight().x() + 1,
                                 widget->geometry().bottomRight().y() + 1);
        }
        widgets_[control] = widget;
        if (where.PageList().size() > 1) shared_.push_back({widget, where});
        if (auto* strip = dynamic_cast<TabControl*>(control)) {
            strips_.push_back(strip);
            stripListeners_.push_back(strip->AddListener([this](Aspect aspect) {
                if (aspect == Aspect::Value) PlaceShared();
            }));
        }
    }
    // Start the timers of the form with the window.
    for (Component* component : form.Components())
        if (auto* timer = dynamic_cast<TimerControl*>(component)) BindTimer(*timer, this);

    PlaceShared();
    formListener_ = form.AddListener([this](Aspect) { SyncForm(); });
    SyncForm();
}

FormView::~FormView() {
    for (size_t k = 0; k < strips_.size(); ++k)
        strips_[k]->RemoveListener(stripListeners_[k]);
    form_.RemoveListener(formListener_);
}

QWidget* FormView::WidgetOf(const Control& control) const {
    auto it = widgets_.find(&control);
    return it == widgets_.end() ? nullptr : it->second;
}

QWidget* FormView::WidgetOf(const std::string& name, int index) const {
    const Control* control = form_.FindControl(name, index);
    return control ? WidgetOf(*control) : nullptr;
}

QScrollArea* FormView::ScrolledView(const Control& control, QWidget* parent, QPointF& origin) {
    const Place& view = control.Home();
    auto* area = new QScrollArea(parent);
    area->setObjectName(QString::fromStdString(control.Name()) + "View");
    area->setFrameShape(QFrame::StyledPanel);
    area->setGeometry(Px(view.left - origin.x(), scale_), Px(view.top - origin.y(), scale_),
                      Px(view.width, scale_), Px(view.height, scale_));
    // The holder grows with the control inside; the control's home is the holder's top left
    // corner.
    auto* holder = new QWidget;
    holder->resize(area->viewport()->size());
    area->setWidget(holder);
    area->setWidgetResizable(false);
    origin = QPointF(view.left, view.top);
    holders_.insert(holder);
    return area;
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

QWidget* FormView::HolderOf(const Container& where, QPointF& origin) {
    origin = QPointF(0, 0);
    if (!where.Holder() || where.Holder() == &form_) return this;
    QWidget* holder = WidgetOf(*where.Holder());
    if (!holder || !where.HasPages()) return holder;
    // Page coordinates are the strip's, whose top TabHeight is the header.
    const auto* strip = dynamic_cast<const TabControl*>(where.Holder());
    if (!strip) return nullptr;
    origin = QPointF(0, strip->TabHeight());
    const std::vector<int> pages = where.PageList();
    return pages.size() == 1 ? TabPage(holder, pages.front()) : sharedHome_;
}

void FormView::PlaceShared() {
    for (Shared& shared : shared_) {
        const auto* strip = dynamic_cast<const TabControl*>(shared.where.Holder());
        QWidget* stripWidget = strip ? WidgetOf(*strip) : nullptr;
        QWidget* target = nullptr;
        if (stripWidget && shared.where.OnPage(strip->Tab()))
            target = TabPage(stripWidget, strip->Tab());
        if (!target) target = sharedHome_;
        if (shared.widget->parentWidget() != target) shared.widget->setParent(target);
        if (ControlBinding* binding = ControlBinding::Of(shared.widget)) binding->SyncAll();
        shared.widget->raise();
    }
}

void FormView::SetScale(double scale, QPoint offset) {
    if (scale == scale_ && offset == offset_) return;
    const bool rescale = scale != scale_;
    scale_ = scale;
    offset_ = offset;
    if (rescale) {
        SetViewScale(this, scale_);
        QFont font = this->font();
        font.setPointSizeF(kPointSize * scale_);
        setFont(font);
        for (const View& view : views_)
            PlaceView(view);
        for (const auto& [control, widget] : widgets_)
            if (ControlBinding* binding = ControlBinding::Of(widget)) binding->SyncScale();
    }
    SyncForm();
}

void FormView::SetCentred(bool centred) {
    centred_ = centred;
    placed_ = QRectF(0, 0, -1, -1);
    SyncForm();
}

void FormView::PlaceView(const View& view) {
    const QRect place(Px(view.place.left - view.origin.x(), scale_),
                      Px(view.place.top - view.origin.y(), scale_), Px(view.place.width, scale_),
                      Px(view.place.height, scale_));
    view.area->setGeometry(place);
    ShowThroughScrolledView(view.control, view.area, place.size());
}

void FormView::SyncForm() {
    if (mode_ == Mode::Child) {
        setGeometry(offset_.x() + Px(form_.Left(), scale_), offset_.y() + Px(form_.Top(), scale_),
                    Px(form_.Width(), scale_), Px(form_.Height(), scale_));
        setEnabled(form_.Enabled());
        setVisible(form_.Visible());
        return;
    }
    QWidget* top = window();
    // A top-most window floats over the others; changing the kind hides it until shown below.
    if (mode_ == Mode::Window &&
        top->windowFlags().testFlag(Qt::WindowStaysOnTopHint) != form_.TopMost())
        top->setWindowFlags(form_.TopMost() ? Qt::Tool | Qt::WindowStaysOnTopHint : Qt::Window);
    top->setWindowTitle(QString::fromStdString(form_.Caption()));
    // The window follows the model's moves; the user's own sizing (a maximised window) stays
    // until the program places the window again.
    const QRectF place(form_.Left(), form_.Top(), form_.Width(), form_.Height());
    if (place != placed_) {
        placed_ = place;
        if (form_.Width() > 0 && form_.Height() > 0)
            top->resize(Px(form_.Width()), Px(form_.Height()));
        QPoint at(Px(form_.Left()), Px(form_.Top()));
        if (centred_ && top->screen())
            at = top->screen()->availableGeometry().center() - top->rect().center();
        top->move(at);
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
