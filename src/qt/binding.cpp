#include "qt/binding.h"

#include <QApplication>
#include <QDropEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollArea>
#include <algorithm>
#include <utility>
#include <vector>

#include "qt/input_codes.h"
#include "qt/qt_text.h"
#include "shell/controls/text_box.h"
#include "shell/controls/user_gestures.h"

namespace tarvex::qt {

namespace {

const char* const kBindingProperty = "tarvexBinding";
const char* const kScrolledViewProperty = "tarvexScrolledView";
const char* const kPlaceSizeProperty = "tarvexPlaceSize";

std::function<void(const std::exception&)>& FailureReport() {
    static std::function<void(const std::exception&)> report;
    return report;
}

// Characters a key gives that a text takes: no control characters.
bool IsTypedText(const QString& text) {
    if (text.isEmpty()) return false;
    for (QChar c : text)
        if (c.unicode() < 0x20 || c.unicode() == 0x7F) return false;
    return true;
}

QScrollArea* ScrolledViewOf(const QWidget* control) {
    return qobject_cast<QScrollArea*>(control->property(kScrolledViewProperty).value<QObject*>());
}

// The rank of a widget among its siblings: its control's, or for a scrolled view the rank of the
// control it shows. Widgets of the skin's own have none and stay below.
bool RankOf(QWidget* widget, long& rank) {
    ControlBinding* binding = ControlBinding::Of(widget);
    if (!binding && widget) {
        const auto* view = qobject_cast<QScrollArea*>(widget);
        if (view && view->widget()) {
            for (QObject* child : view->widget()->children())
                if ((binding = ControlBinding::Of(qobject_cast<QWidget*>(child)))) break;
        }
    }
    if (!binding) return false;
    rank = binding->Model().ZRank();
    return true;
}

// Siblings lie in the order of their ranks; equal ranks keep the order of creation.
void StackByRank(QWidget* parent) {
    if (!parent) return;
    std::vector<std::pair<long, QWidget*>> ranked;
    for (QObject* child : parent->children()) {
        auto* sibling = qobject_cast<QWidget*>(child);
        long rank = 0;
        if (sibling && RankOf(sibling, rank)) ranked.emplace_back(rank, sibling);
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (auto& [rank, sibling] : ranked)
        sibling->raise();
}

}  // namespace

QColor ToQColor(Colour colour) {
    const Colour c = ResolveColour(colour);
    return QColor(RedOf(c), GreenOf(c), BlueOf(c));
}

void SetFailureReport(std::function<void(const std::exception&)> report) {
    FailureReport() = std::move(report);
}

void Guarded(const std::function<void()>& call) {
    try {
        call();
    } catch (const std::exception& error) {
        try {
            if (FailureReport()) return FailureReport()(error);
        } catch (const std::exception& inReport) {
            qWarning("tarvex: the error box failed: %s", inReport.what());
        }
        qWarning("tarvex: unhandled error in an event: %s", error.what());
    }
}

// Marks the widget as being updated by code while it lives.
class SyncScope {
  public:
    explicit SyncScope(ControlBinding& binding) : binding_(binding), blocker_(binding.Widget()) {
        ++binding_.syncing_;
    }
    ~SyncScope() { --binding_.syncing_; }

  private:
    ControlBinding& binding_;
    QSignalBlocker blocker_;
};

ControlBinding::ControlBinding(Control& model, QWidget* widget, QPointF origin)
    : QObject(widget), model_(model), widget_(widget), origin_(origin) {
    widget->setProperty(kBindingProperty, QVariant::fromValue(static_cast<QObject*>(this)));
    widget->setObjectName(Q(model.Name()) +
                          (model.Index() >= 0 ? QString("(%1)").arg(model.Index()) : QString()));
    widget->installEventFilter(this);
    listener_ = model.AddListener([this](Aspect aspect) { OnModel(aspect); });
    // A handler of the pointer's moves hears them with no button down too (status texts).
    if (model.MouseMove) widget->setMouseTracking(true);
    // A control that takes dropped files says so in its events.
    if (model.OLEDragOver || model.OLEDragDrop) widget->setAcceptDrops(true);
}

ControlBinding::~ControlBinding() {
    model_.RemoveListener(listener_);
}

ControlBinding* ControlBinding::Of(const QWidget* widget) {
    if (!widget) return nullptr;
    return qobject_cast<ControlBinding*>(widget->property(kBindingProperty).value<QObject*>());
}

void ControlBinding::SetOrigin(QPointF origin) {
    origin_ = origin;
    SyncGeometry();
}

void ControlBinding::WatchChild(QWidget* child) {
    child->installEventFilter(this);
    if (model_.MouseMove) child->setMouseTracking(true);
}

QPointF ControlBinding::MapUnitsAt(const QWidget* target, QPointF position) const {
    const QPointF p =
        target == widget_ ? position : QPointF(target->mapTo(widget_, position.toPoint()));
    const double scale = Scale();
    return QPointF(Twips(p.x(), scale), Twips(p.y(), scale));
}

void ControlBinding::OnModel(Aspect aspect) {
    if (!widget_) return;
    SyncScope scope(*this);
    Sync(aspect);
}

void ControlBinding::SyncAll() {
    if (!widget_) return;
    SyncScope scope(*this);
    for (Aspect aspect : {Aspect::Rows, Aspect::Text, Aspect::Value, Aspect::Selection,
                          Aspect::Drawing, Aspect::Appearance, Aspect::Geometry})
        Sync(aspect);
}

void ControlBinding::SyncScale() {
    if (!widget_) return;
    SyncScope scope(*this);
    Sync(Aspect::Geometry);
    widget_->update();
}

void ControlBinding::Sync(Aspect aspect) {
    switch (aspect) {
        case Aspect::Geometry:
            SyncGeometry();
            break;
        case Aspect::Appearance:
            SyncAppearance();
            break;
        case Aspect::Focus:
            widget_->setFocus(Qt::OtherFocusReason);
            break;
        default:
            break;
    }
}

void ShowThroughScrolledView(QWidget* control, QScrollArea* view, QSize placeSize) {
    control->setProperty(kScrolledViewProperty, QVariant::fromValue(static_cast<QObject*>(view)));
    view->setProperty(kPlaceSizeProperty, placeSize);
}

void ControlBinding::SyncGeometry() {
    const double scale = Scale();
    const int w = std::max(0, Px(model_.Width(), scale));
    const int h = std::max(0, Px(model_.Height(), scale));
    widget_->setGeometry(Px(model_.Left() - origin_.x(), scale),
                         Px(model_.Top() - origin_.y(), scale), w, h);
    StackByRank(widget_->parentWidget());
    // A control brought to the front shows whole, as far as there is room, over its
    // neighbours; otherwise it is seen through its view at the view's own place.
    if (QScrollArea* view = ScrolledViewOf(widget_)) {
        QSize size = view->property(kPlaceSizeProperty).toSize();
        QWidget* parent = view->parentWidget();
        if (model_.ZRank() > 0 && parent && parent->width() > 0) {
            const int frame = 2 * view->frameWidth();
            size = size.expandedTo(QSize(w + frame, h + frame))
                       .boundedTo(parent->size() - QSize(view->x(), view->y()));
        }
        view->resize(size);
        StackByRank(parent);
    }
}

void ControlBinding::SyncAppearance() {
    widget_->setVisible(model_.Visible());
    widget_->setEnabled(model_.Enabled());
    widget_->setToolTip(Q(model_.ToolTipText()));
    QPalette palette = widget_->palette();
    const bool ownBack = !IsSystemColour(model_.BackColor()) && PaintsBackColour();
    const bool ownFore = !IsSystemColour(model_.ForeColor());
    const QPalette defaults = QApplication::palette(widget_);
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
            palette.setColor(group, role,
                             ownBack ? ToQColor(model_.BackColor()) : defaults.color(group, role));
        // A disabled control's text is the desktop's grey, whatever its own colour.
        for (QPalette::ColorRole role :
             {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(group, role,
                             ownFore && group != QPalette::Disabled ? ToQColor(model_.ForeColor())
                                                                    : defaults.color(group, role));
    }
    widget_->setPalette(palette);
    // A control laid over others hides what lies under it.
    widget_->setAutoFillBackground(ownBack || model_.Where().IsOverlay());
    switch (model_.MousePointer()) {
        case 2:
            widget_->setCursor(Qt::CrossCursor);
            break;
        case 11:
            widget_->setCursor(Qt::WaitCursor);
            break;
        case 15:
            widget_->setCursor(Qt::SizeAllCursor);
            break;
        case 0:
            widget_->unsetCursor();
            break;
        default:
            widget_->setCursor(Qt::PointingHandCursor);
            break;
    }
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event) {
    auto* target = qobject_cast<QWidget*>(watched);
    if (!target || !widget_) return false;
    // The widget's own handling runs first, so that its change (a click) comes between the
    // model's MouseDown and MouseUp or before its DblClick.
    const auto deliverFirst = [&] {
        target->removeEventFilter(this);
        QPointer<QWidget> guard(target);
        QCoreApplication::sendEvent(target, event);
        if (guard) guard->installEventFilter(this);
        return guard != nullptr;
    };
    switch (event->type()) {
        case QEvent::MouseButtonPress: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const QPointF at = MapUnitsAt(target, mouse->position());
            Guarded([&] {
                model_.RaiseMouseDown(ButtonOf(mouse->button()), ShiftOf(mouse->modifiers()),
                                      at.x(), at.y());
            });
            return false;
        }
        case QEvent::MouseMove: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const QPointF at = MapUnitsAt(target, mouse->position());
            Guarded([&] {
                model_.RaiseMouseMove(ButtonOf(mouse->buttons()), ShiftOf(mouse->modifiers()),
                                      at.x(), at.y());
            });
            return false;
        }
        case QEvent::MouseButtonRelease: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const QPointF at = MapUnitsAt(target, mouse->position());
            const int button = ButtonOf(mouse->button());
            const int shift = ShiftOf(mouse->modifiers());
            if (!deliverFirst()) return true;
            Guarded([&] { model_.RaiseMouseUp(button, shift, at.x(), at.y()); });
            return true;
        }
        case QEvent::MouseButtonDblClick: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const QPointF at = MapUnitsAt(target, mouse->position());
            Guarded([&] {
                model_.RaiseMouseDown(ButtonOf(mouse->button()), ShiftOf(mouse->modifiers()),
                                      at.x(), at.y());
            });
            if (!deliverFirst()) return true;
            Guarded([&] { model_.RaiseDblClick(); });
            return true;
        }
        case QEvent::DragEnter:
        case QEvent::DragMove: {
            if (target != widget_) return false;
            auto* drag = static_cast<QDragMoveEvent*>(event);
            int effect = kDropEffectNone;
            Guarded([&] { effect = model_.RaiseDragOver(DragDataOf(drag->mimeData())); });
            if (effect == kDropEffectNone) {
                drag->ignore();
            } else {
                drag->setDropAction(effect & kDropEffectCopy ? Qt::CopyAction : Qt::MoveAction);
                drag->accept();
            }
            return true;
        }
        case QEvent::Drop: {
            if (target != widget_) return false;
            auto* drop = static_cast<QDropEvent*>(event);
            const DragData data = DragDataOf(drop->mimeData());
            drop->acceptProposedAction();
            Guarded([&] { model_.RaiseDragDrop(data); });
            return true;
        }
        case QEvent::KeyPress:
            if (target != widget_ && !target->hasFocus()) return false;
            return KeyPressed(static_cast<QKeyEvent*>(event));
        case QEvent::KeyRelease:
            return KeyReleased(static_cast<QKeyEvent*>(event));
        case QEvent::FocusIn:
            if (target == widget_ || !widget_->hasFocus()) Guarded([&] { model_.RaiseGotFocus(); });
            return false;
        case QEvent::FocusOut:
            keysDone_.clear();
            if (target == widget_ || !widget_->hasFocus())
                Guarded([&] { model_.RaiseLostFocus(); });
            return false;
        default:
            return false;
    }
}

bool ControlBinding::KeyPressed(QKeyEvent* key) {
    const int code = KeyCodeOf(key->key());
    const int shift = ShiftOf(key->modifiers());
    const QString text = key->text();
    // Typing, and the keys the control answers itself (the caret, a list's row), are the
    // core's gestures, the same as a scenario's; the rest are the widget's own.
    // An editable combo's caret is its widget's own: the widget edits its text there and
    // reports it whole; only its row moves are the core's.
    const bool caretInModel = dynamic_cast<const TextBox*>(&model_) != nullptr;
    const bool typed =
        !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) &&
        IsTypedText(text) && caretInModel;
    const bool answered =
        code != 0 && KeyHasResponse(model_, code, shift) &&
        (caretInModel || !TakesTyping(model_) || code == kKeyUp || code == kKeyDown);
    if (typed || answered) {
        Guarded([&] {
            if (typed)
                UserTypeText(model_, text.toStdString(), false);
            else
                UserPressKey(model_, code, shift);
        });
        keysDone_.insert(key->key());
        return true;
    }
    int left = code;
    if (code != 0) Guarded([&] { left = model_.RaiseKeyDown(code, shift); });
    if (code != 0 && left == 0) return true;
    if (text.size() == 1 && text[0].unicode() < 256) {
        int ascii = text[0].unicode();
        Guarded([&] { ascii = model_.RaiseKeyPress(ascii); });
        if (ascii == 0) return true;
    }
    return false;
}

bool ControlBinding::KeyReleased(QKeyEvent* key) {
    // A gesture raised KeyUp with its press.
    if (keysDone_.count(key->key()) != 0) {
        if (!key->isAutoRepeat()) keysDone_.erase(key->key());
        return true;
    }
    const int code = KeyCodeOf(key->key());
    int left = code;
    if (code != 0) Guarded([&] { left = model_.RaiseKeyUp(code, ShiftOf(key->modifiers())); });
    return code != 0 && left == 0;
}

}  // namespace tarvex::qt
