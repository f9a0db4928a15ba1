#include "qt/binders.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QCursor>
#include <QDebug>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEvent>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>
#include <exception>

#include "qt/grid_view.h"
#include "qt/picture_view.h"
#include "qt/tab_view.h"

namespace tarvex::qt {

namespace {

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

int ButtonOf(Qt::MouseButtons buttons) {
    int result = 0;
    if (buttons & Qt::LeftButton) result |= kLeftButton;
    if (buttons & Qt::RightButton) result |= kRightButton;
    if (buttons & Qt::MiddleButton) result |= kMiddleButton;
    return result;
}

int ShiftOf(Qt::KeyboardModifiers modifiers) {
    int result = 0;
    if (modifiers & Qt::ShiftModifier) result |= kShiftMask;
    if (modifiers & Qt::ControlModifier) result |= kCtrlMask;
    if (modifiers & Qt::AltModifier) result |= kAltMask;
    return result;
}

const char* const kBindingProperty = "tarvexBinding";

}  // namespace

QColor ToQColor(Colour colour) {
    const Colour c = ResolveColour(colour);
    return QColor(RedOf(c), GreenOf(c), BlueOf(c));
}

QString PlainCaption(const std::string& caption) {
    QString out;
    const QString text = Q(caption);
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == '&') {
            if (i + 1 < text.size() && text[i + 1] == '&') out += '&';
            ++i;
            if (i < text.size() && text[i] != '&') out += text[i];
            continue;
        }
        out += text[i];
    }
    return out;
}

int KeyCodeOf(int key) {
    if (key >= Qt::Key_A && key <= Qt::Key_Z) return 'A' + (key - Qt::Key_A);
    if (key >= Qt::Key_0 && key <= Qt::Key_9) return '0' + (key - Qt::Key_0);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) return 112 + (key - Qt::Key_F1);
    switch (key) {
        case Qt::Key_Backspace:
            return kKeyBack;
        case Qt::Key_Tab:
            return kKeyTab;
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return kKeyReturn;
        case Qt::Key_Shift:
            return kKeyShift;
        case Qt::Key_Control:
            return kKeyControl;
        case Qt::Key_Alt:
            return 18;
        case Qt::Key_Escape:
            return kKeyEscape;
        case Qt::Key_Space:
            return 32;
        case Qt::Key_PageUp:
            return 33;
        case Qt::Key_PageDown:
            return 34;
        case Qt::Key_End:
            return 35;
        case Qt::Key_Home:
            return 36;
        case Qt::Key_Left:
            return kKeyLeft;
        case Qt::Key_Up:
            return kKeyUp;
        case Qt::Key_Right:
            return kKeyRight;
        case Qt::Key_Down:
            return kKeyDown;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Delete:
            return kKeyDelete;
        default:
            return 0;
    }
}

DragData DragDataOf(const QMimeData* mime) {
    DragData data;
    if (mime && mime->hasUrls()) {
        for (const QUrl& url : mime->urls())
            if (url.isLocalFile()) data.files.push_back(url.toLocalFile().toStdString());
        data.hasFiles = !data.files.empty();
    }
    return data;
}

void Guarded(const std::function<void()>& call) {
    try {
        call();
    } catch (const std::exception& error) {
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

// ---- Common part -------------------------------------------------------------------------

ControlBinding::ControlBinding(Control& model, QWidget* widget, QPointF origin)
    : QObject(widget), model_(model), widget_(widget), origin_(origin) {
    widget->setProperty(kBindingProperty, QVariant::fromValue(static_cast<QObject*>(this)));
    widget->setObjectName(Q(model.Name()) +
                          (model.Index() >= 0 ? QString("(%1)").arg(model.Index()) : QString()));
    widget->installEventFilter(this);
    listener_ = model.AddListener([this](Aspect aspect) { OnModel(aspect); });
    // A handler of the pointer's moves hears them with no button down too (status texts).
    if (model.MouseMove) widget->setMouseTracking(true);
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

namespace {

const char* const kScrolledViewProperty = "tarvexScrolledView";
const char* const kPlaceSizeProperty = "tarvexPlaceSize";

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

void ShowThroughScrolledView(QWidget* control, QScrollArea* view, QSize placeSize) {
    control->setProperty(kScrolledViewProperty, QVariant::fromValue(static_cast<QObject*>(view)));
    view->setProperty(kPlaceSizeProperty, placeSize);
}

void ControlBinding::SyncGeometry() {
    const int w = std::max(0, Px(model_.Width()));
    const int h = std::max(0, Px(model_.Height()));
    widget_->setGeometry(Px(model_.Left() - origin_.x()), Px(model_.Top() - origin_.y()), w, h);
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
    const QPalette defaults = QApplication::palette(widget_);
    for (QPalette::ColorRole role : {QPalette::Window, QPalette::Base, QPalette::Button})
        palette.setColor(role, ownBack ? ToQColor(model_.BackColor()) : defaults.color(role));
    const bool ownFore = !IsSystemColour(model_.ForeColor());
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, ownFore ? ToQColor(model_.ForeColor()) : defaults.color(role));
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
    const auto at = [&](const QMouseEvent* mouse) {
        const QPointF p = target == widget_
                              ? mouse->position()
                              : QPointF(target->mapTo(widget_, mouse->position().toPoint()));
        return std::pair<float, float>(Twips(p.x()), Twips(p.y()));
    };
    // The widget's own handling runs first, so that its change (a selection, a click) comes
    // between the model's MouseDown and MouseUp or before its DblClick.
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
            const auto [x, y] = at(mouse);
            const int button = ButtonOf(mouse->button());
            const int shift = ShiftOf(mouse->modifiers());
            const bool first = SelectsBeforeMouseEvents();
            if (first && !deliverFirst()) return true;
            Guarded([&] { model_.RaiseMouseDown(button, shift, x, y); });
            return first;
        }
        case QEvent::MouseMove: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const auto [x, y] = at(mouse);
            const int buttons = ButtonOf(mouse->buttons());
            const int shift = ShiftOf(mouse->modifiers());
            const bool first = SelectsBeforeMouseEvents();
            if (first && !deliverFirst()) return true;
            Guarded([&] { model_.RaiseMouseMove(buttons, shift, x, y); });
            return first;
        }
        case QEvent::MouseButtonRelease: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const auto [x, y] = at(mouse);
            const int button = ButtonOf(mouse->button());
            const int shift = ShiftOf(mouse->modifiers());
            if (!deliverFirst()) return true;
            Guarded([&] { model_.RaiseMouseUp(button, shift, x, y); });
            return true;
        }
        case QEvent::MouseButtonDblClick: {
            auto* mouse = static_cast<QMouseEvent*>(event);
            const auto [x, y] = at(mouse);
            Guarded([&] {
                model_.RaiseMouseDown(ButtonOf(mouse->button()), ShiftOf(mouse->modifiers()), x, y);
            });
            if (!deliverFirst()) return true;
            Guarded([&] { model_.RaiseDblClick(); });
            return true;
        }
        case QEvent::KeyPress: {
            if (target != widget_ && !target->hasFocus()) return false;
            auto* key = static_cast<QKeyEvent*>(event);
            const int code = KeyCodeOf(key->key());
            int left = code;
            if (code != 0)
                Guarded([&] { left = model_.RaiseKeyDown(code, ShiftOf(key->modifiers())); });
            if (code != 0 && left == 0) return true;
            const QString text = key->text();
            if (text.size() == 1 && text[0].unicode() < 256) {
                int ascii = text[0].unicode();
                Guarded([&] { ascii = model_.RaiseKeyPress(ascii); });
                if (ascii == 0) return true;
            }
            return false;
        }
        case QEvent::KeyRelease: {
            auto* key = static_cast<QKeyEvent*>(event);
            const int code = KeyCodeOf(key->key());
            int left = code;
            if (code != 0)
                Guarded([&] { left = model_.RaiseKeyUp(code, ShiftOf(key->modifiers())); });
            return code != 0 && left == 0;
        }
        case QEvent::FocusIn:
            if (target == widget_ || !widget_->hasFocus()) Guarded([&] { model_.RaiseGotFocus(); });
            return false;
        case QEvent::FocusOut:
            if (target == widget_ || !widget_->hasFocus())
                Guarded([&] { model_.RaiseLostFocus(); });
            return false;
        default:
            return false;
    }
}

// ---- Captions: labels, frames, buttons ----------------------------------------------------

namespace {

class LabelBinding : public ControlBinding {
  public:
    LabelBinding(Label& model, QLabel* label, QPointF origin)
        : ControlBinding(model, label, origin), model_(model), label_(label) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    }

  protected:
    bool PaintsBackColour() const override { return true; }
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Appearance)
            label_->setText(PlainCaption(model_.Caption()));
        ControlBinding::Sync(aspect);
    }

  private:
    Label& model_;
    QLabel* label_;
};

class FrameBinding : public ControlBinding {
  public:
    FrameBinding(Frame& model, QGroupBox* box, QPointF origin)
        : ControlBinding(model, box, origin), model_(model), box_(box) {}

  protected:
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Appearance)
            box_->setTitle(PlainCaption(model_.Caption()));
        ControlBinding::Sync(aspect);
    }
    // A frame covers what lies under it, as a panel opened over other controls must.
    void SyncAppearance() override {
        ControlBinding::SyncAppearance();
        box_->setAutoFillBackground(true);
    }

  private:
    Frame& model_;
    QGroupBox* box_;
};

class ButtonBinding : public ControlBinding {
  public:
    ButtonBinding(CommandButton& model, QPushButton* button, QPointF origin)
        : ControlBinding(model, button, origin), model_(model), button_(button) {
        connect(button, &QPushButton::clicked, this, [this] {
            if (!Syncing()) Guarded([this] { model_.UserClick(); });
        });
        // A button that takes dropped files says so in its events.
        button->setAcceptDrops(model.OLEDragOver.Connected() || model.OLEDragDrop.Connected());
    }

  protected:
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Appearance)
            button_->setText(Q(model_.Caption()));
        ControlBinding::Sync(aspect);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched != button_) return ControlBinding::eventFilter(watched, event);
        switch (event->type()) {
            case QEvent::DragEnter: {
                auto* drag = static_cast<QDragEnterEvent*>(event);
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
                auto* drop = static_cast<QDropEvent*>(event);
                const DragData data = DragDataOf(drop->mimeData());
                drop->acceptProposedAction();
                Guarded([&] { model_.RaiseDragDrop(data); });
                return true;
            }
            default:
                return ControlBinding::eventFilter(watched, event);
        }
    }

  private:
    CommandButton& model_;
    QPushButton* button_;
};

class CheckBinding : public ControlBinding {
  public:
    CheckBinding(CheckBox& model, QCheckBox* box, QPointF origin)
        : ControlBinding(model, box, origin), model_(model), box_(box) {
        connect(box, &QCheckBox::clicked, this, [this] {
            if (Syncing()) return;
            Guarded([this] { model_.UserClick(); });
            SyncAll();
        });
    }

  protected:
    bool PaintsBackColour() const override { return true; }
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Appearance)
            box_->setText(Q(model_.Caption()));
        if (aspect == Aspect::Value) {
            box_->setTristate(model_.Value() == kGrayed);
            box_->setCheckState(model_.Value() == kChecked  ? Qt::Checked
                                : model_.Value() == kGrayed ? Qt::PartiallyChecked
                                                            : Qt::Unchecked);
        }
        ControlBinding::Sync(aspect);
    }

  private:
    CheckBox& model_;
    QCheckBox* box_;
};

class OptionBinding : public ControlBinding {
  public:
    OptionBinding(OptionButton& model, QRadioButton* button, QPointF origin)
        : ControlBinding(model, button, origin), model_(model), button_(button) {
        // The group is the model's business; Qt's own exclusion would fight it.
        button->setAutoExclusive(false);
        connect(button, &QRadioButton::clicked, this, [this] {
            if (Syncing()) return;
            Guarded([this] { model_.UserClick(); });
            SyncAll();
        });
    }

  protected:
    bool PaintsBackColour() const override { return true; }
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Appearance)
            button_->setText(Q(model_.Caption()));
        if (aspect == Aspect::Value) button_->setChecked(model_.Value());
        ControlBinding::Sync(aspect);
    }

  private:
    OptionButton& model_;
    QRadioButton* button_;
};

// ---- Text boxes -----------------------------------------------------------------------------

// Multi-line text boxes hold their line breaks as CR LF.
QString FromModelText(const std::string& text) {
    return Q(text).replace("\r\n", "\n");
}
std::string ToModelText(QString text, bool multiLine) {
    if (multiLine) text.replace("\n", "\r\n");
    return text.toStdString();
}

class LineEditBinding : public ControlBinding {
  public:
    LineEditBinding(TextBox& model, QLineEdit* edit, QPointF origin)
        : ControlBinding(model, edit, origin), model_(model), edit_(edit) {
        connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (Syncing()) return;
            const int caret = edit_->cursorPosition();
            Guarded([&] {
                model_.SetText(ToModelText(text, false));
                model_.SetSelStart(caret);
            });
        });
        connect(edit, &QLineEdit::selectionChanged, this, [this] { ReportSelection(); });
        connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { ReportSelection(); });
    }

  protected:
    // A click in the box, after its press and release, as the desktop's text box raises it.
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool click = event->type() == QEvent::MouseButtonRelease &&
                           static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        const bool handled = ControlBinding::eventFilter(watched, event);
        if (click && Widget()) Guarded([this] { model_.RaiseClick(); });
        return handled;
    }
    void ReportSelection() {
        if (Syncing()) return;
        const int start =
            edit_->hasSelectedText() ? edit_->selectionStart() : edit_->cursorPosition();
        const int length = edit_->hasSelectedText() ? edit_->selectedText().size() : 0;
        Guarded([&] {
            model_.SetSelStart(start);
            model_.SetSelLength(length);
        });
    }
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Selection) {
            const QString text = FromModelText(model_.Text());
            if (edit_->text() != text) edit_->setText(text);
            if (model_.SelLength() > 0)
                edit_->setSelection(model_.SelStart(), model_.SelLength());
            else
                edit_->setCursorPosition(model_.SelStart());
        }
        if (aspect == Aspect::Appearance) {
            edit_->setReadOnly(model_.Locked());
            edit_->setMaxLength(model_.MaxLength() > 0 ? model_.MaxLength() : 32767);
        }
        ControlBinding::Sync(aspect);
    }
    bool PaintsBackColour() const override { return true; }

  private:
    TextBox& model_;
    QLineEdit* edit_;
};

class TextEditBinding : public ControlBinding {
  public:
    TextEditBinding(TextBox& model, QPlainTextEdit* edit, QPointF origin)
        : ControlBinding(model, edit, origin), model_(model), edit_(edit) {
        WatchChild(edit->viewport());
        connect(edit, &QPlainTextEdit::textChanged, this, [this] {
            if (Syncing()) return;
            const int caret = edit_->textCursor().position();
            Guarded([&] {
                model_.SetText(ToModelText(edit_->toPlainText(), true));
                model_.SetSelStart(caret);
            });
        });
    }

  protected:
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Text || aspect == Aspect::Selection) {
            const QString text = FromModelText(model_.Text());
            if (edit_->toPlainText() != text) edit_->setPlainText(text);
            QTextCursor cursor = edit_->textCursor();
            const int end = static_cast<int>(edit_->toPlainText().size());
            cursor.setPosition(std::min(model_.SelStart(), end));
            cursor.setPosition(std::min(model_.SelStart() + model_.SelLength(), end),
                               QTextCursor::KeepAnchor);
            edit_->setTextCursor(cursor);
        }
        if (aspect == Aspect::Appearance) edit_->setReadOnly(model_.Locked());
        ControlBinding::Sync(aspect);
    }
    bool PaintsBackColour() const override { return true; }

  private:
    TextBox& model_;
    QPlainTextEdit* edit_;
};

// ---- Lists and combos -----------------------------------------------------------------------

// Rows of the height the model gives, so that a row under the pointer is found from Y.
class RowHeightDelegate : public QStyledItemDelegate {
  public:
    RowHeightDelegate(const ListBox& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model) {}
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        if (model_.RowHeight() > 0) size.setHeight(Px(model_.RowHeight()));
        return size;
    }

  private:
    const ListBox& model_;
};

class ListBinding : public ControlBinding {
  public:
    ListBinding(ListBox& model, QListWidget* list, QPointF origin)
        : ControlBinding(model, list, origin), model_(model), list_(list) {
        WatchChild(list->viewport());
        list->setUniformItemSizes(true);
        list->setItemDelegate(new RowHeightDelegate(model, list));
        // The first row shown is the model's TopIndex, however the list was scrolled.
        connect(list->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] {
            if (Syncing()) return;
            const int top = list_->indexAt(QPoint(1, 1)).row();
            if (top >= 0) Guarded([&] { model_.SetTopIndex(top); });
        });
        connect(list, &QListWidget::currentRowChanged, this, [this](int row) {
            if (Syncing() || model_.MultiSelect() != kMultiSelectNone) return;
            Guarded([&] { model_.SetListIndex(row); });
            SyncAll();
        });
        connect(list, &QListWidget::itemSelectionChanged, this, [this] {
            if (Syncing() || model_.MultiSelect() == kMultiSelectNone) return;
            std::vector<int> rows;
            for (int i = 0; i < list_->count(); ++i)
                if (list_->item(i)->isSelected()) rows.push_back(i);
            Guarded([&] { model_.SetSelection(rows, list_->currentRow()); });
            SyncAll();
        });
    }

  protected:
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Rows) {
            list_->clear();
            for (int i = 0; i < model_.ListCount(); ++i)
                list_->addItem(Q(model_.List(i)));
        }
        if (aspect == Aspect::Rows || aspect == Aspect::Selection) {
            list_->setSelectionMode(model_.MultiSelect() == kMultiSelectNone
                                        ? QAbstractItemView::SingleSelection
                                    : model_.MultiSelect() == kMultiSelectSimple
                                        ? QAbstractItemView::MultiSelection
                                        : QAbstractItemView::ExtendedSelection);
            if (model_.MultiSelect() == kMultiSelectNone) {
                list_->setCurrentRow(model_.ListIndex());
                if (model_.ListIndex() < 0) list_->clearSelection();
            } else {
                list_->setCurrentRow(model_.ListIndex(), QItemSelectionModel::NoUpdate);
                for (int i = 0; i < list_->count(); ++i)
                    list_->item(i)->setSelected(model_.Selected(i));
            }
            if (QListWidgetItem* top = list_->item(model_.TopIndex()))
                list_->scrollToItem(top, QAbstractItemView::PositionAtTop);
        }
        ControlBinding::Sync(aspect);
    }
    bool PaintsBackColour() const override { return true; }
    bool SelectsBeforeMouseEvents() const override { return true; }

  private:
    ListBox& model_;
    QListWidget* list_;
};

// Tells when its list opens and closes, which QComboBox keeps to itself.
class DropComboBox : public QComboBox {
  public:
    using QComboBox::QComboBox;
    std::function<void()> onShow;
    std::function<void()> onShown;
    std::function<void()> onHide;
    bool PopupOpen() const { return open_; }
    void showPopup() override {
        open_ = true;
        if (onShow) onShow();
        QComboBox::showPopup();
        if (onShown) onShown();
    }
    void hidePopup() override {
        QComboBox::hidePopup();
        open_ = false;
        if (onHide) onHide();
    }

  private:
    bool open_ = false;
};

class ComboBinding : public ControlBinding {
  public:
    ComboBinding(ComboBox& model, DropComboBox* combo, QPointF origin)
        : ControlBinding(model, combo, origin), model_(model), combo_(combo) {
        connect(combo, &QComboBox::highlighted, this, [this](int row) {
            if (Syncing() || !combo_->PopupOpen()) return;
            Guarded([&] { model_.UserHighlight(row); });
        });
        connect(combo, &QComboBox::activated, this, [this](int row) {
            if (Syncing()) return;
            Guarded([&] { model_.UserChoose(row); });
            SyncAll();
        });
        // The model may make the list taller; it then opens upwards, over the combo.
        combo->onShow = [this] { Guarded([&] { model_.UserOpenDrop(); }); };
        combo->onShown = [this] { ScalePopup(); };
        // A list closed without a choice puts the row from before back. The choice, when
        // there is one, arrives right after the list closes, so look once it had its turn.
        combo->onHide = [this] {
            QTimer::singleShot(0, this, [this] {
                if (!model_.DroppedDown()) return;
                Guarded([&] { model_.UserCancelDrop(); });
                SyncAll();
            });
        };
    }

  protected:
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Appearance) {
            const bool editable = model_.Style() != kComboDropDownList;
            if (combo_->isEditable() != editable) {
                combo_->setEditable(editable);
                if (editable) WireEdit();
            }
        }
        if (aspect == Aspect::Rows) {
            combo_->clear();
            for (int i = 0; i < model_.ListCount(); ++i)
                combo_->addItem(Q(model_.List(i)));
        }
        if (aspect == Aspect::Rows || aspect == Aspect::Selection || aspect == Aspect::Text ||
            aspect == Aspect::Appearance) {
            combo_->setCurrentIndex(model_.ListIndex());
            if (combo_->isEditable() && combo_->currentText() != Q(model_.Text()))
                combo_->setEditText(Q(model_.Text()));
        }
        ControlBinding::Sync(aspect);
    }
    bool PaintsBackColour() const override { return true; }

  private:
    void ScalePopup() {
        const float scale = model_.DropDownScale();
        QWidget* popup = combo_->view()->window();
        if (scale <= 0 || !popup) return;
        // Its bottom stays at the combo's top; a list taller than the room above is cut.
        const int bottom = combo_->mapToGlobal(QPoint(0, 0)).y();
        const int screenTop = combo_->screen()->availableGeometry().top();
        const int height = std::min(qRound(popup->height() * scale), bottom - screenTop);
        popup->setGeometry(popup->x(), bottom - height, popup->width(), height);
    }
    void WireEdit() {
        QLineEdit* edit = combo_->lineEdit();
        if (!edit) return;
        WatchChild(edit);
        connect(edit, &QLineEdit::textEdited, this, [this](const QString& text) {
            if (Syncing()) return;
            Guarded([&] { model_.SetText(text.toStdString()); });
        });
    }
    ComboBox& model_;
    DropComboBox* combo_;
};

// ---- Spinners and lines ---------------------------------------------------------------------

// Two arrow buttons; side by side when the control is wider than high.
class UpDownWidget : public QWidget {
  public:
    explicit UpDownWidget(QWidget* parent) : QWidget(parent) {
        up = new QToolButton(this);
        down = new QToolButton(this);
        for (QToolButton* button : {up, down}) {
            button->setAutoRepeat(true);
            button->setFocusPolicy(Qt::NoFocus);
        }
    }
    QToolButton* up;
    QToolButton* down;

  protected:
    void resizeEvent(QResizeEvent*) override {
        const bool across = width() > height();
        up->setArrowType(across ? Qt::RightArrow : Qt::UpArrow);
        down->setArrowType(across ? Qt::LeftArrow : Qt::DownArrow);
        if (across) {
            down->setGeometry(0, 0, width() / 2, height());
            up->setGeometry(width() / 2, 0, width() - width() / 2, height());
        } else {
            up->setGeometry(0, 0, width(), height() / 2);
            down->setGeometry(0, height() / 2, width(), height() - height() / 2);
        }
    }
};

class UpDownBinding : public ControlBinding {
  public:
    UpDownBinding(UpDown& model, UpDownWidget* widget, QPointF origin)
        : ControlBinding(model, widget, origin), model_(model) {
        connect(widget->up, &QToolButton::clicked, this,
                [this] { Guarded([this] { model_.UserUp(); }); });
        connect(widget->down, &QToolButton::clicked, this,
                [this] { Guarded([this] { model_.UserDown(); }); });
    }

  private:
    UpDown& model_;
};

// A spinner that shows its value, which can also be typed; a typed value counts once it is
// entered.
class SpinBoxBinding : public ControlBinding {
  public:
    SpinBoxBinding(UpDown& model, QSpinBox* box, QPointF origin)
        : ControlBinding(model, box, origin), model_(model), box_(box) {
        box->setKeyboardTracking(false);
        if (QLineEdit* edit = box->findChild<QLineEdit*>()) WatchChild(edit);
        connect(box, &QSpinBox::valueChanged, this, [this](int value) {
            if (Syncing()) return;
            Guarded([&] { model_.SetValue(value); });
            // The handler may have moved the value on.
            SyncAll();
        });
    }

  protected:
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Value) {
            box_->setRange(std::min(model_.Min(), model_.Max()),
                           std::max(model_.Min(), model_.Max()));
            box_->setSingleStep(model_.Increment());
            box_->setValue(model_.Value());
        }
        ControlBinding::Sync(aspect);
    }

  private:
    UpDown& model_;
    QSpinBox* box_;
};

// A line drawn over its container, in the container's map units.
class LineWidget : public QWidget {
  public:
    LineWidget(LineControl& model, QWidget* parent) : QWidget(parent), model_(model) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        if (parent) parent->installEventFilter(this);
    }
    QPointF origin;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize && parentWidget())
            setGeometry(0, 0, parentWidget()->width(), parentWidget()->height());
        return false;
    }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(ToQColor(model_.BorderColor()), 1));
        painter.drawLine(QPointF((model_.X1() - origin.x()) / kTwipsPerPixel,
                                 (model_.Y1() - origin.y()) / kTwipsPerPixel),
                         QPointF((model_.X2() - origin.x()) / kTwipsPerPixel,
                                 (model_.Y2() - origin.y()) / kTwipsPerPixel));
    }

  private:
    LineControl& model_;
};

class LineBinding : public ControlBinding {
  public:
    LineBinding(LineControl& model, LineWidget* line, QPointF origin)
        : ControlBinding(model, line, origin), line_(line) {
        line->origin = origin;
    }

  protected:
    void SyncGeometry() override {
        if (QWidget* parent = line_->parentWidget())
            line_->setGeometry(0, 0, parent->width(), parent->height());
        line_->raise();
        line_->update();
    }

  private:
    LineWidget* line_;
};

}  // namespace

// ---- Creation -------------------------------------------------------------------------------

QWidget* CreateControlWidget(Control& control, QWidget* parent, QPointF origin) {
    ControlBinding* binding = nullptr;
    if (auto* tab = dynamic_cast<TabControl*>(&control)) {
        auto* view = new TabView(*tab, parent);
        binding = view->Bind(origin);
    } else if (auto* surface = dynamic_cast<PictureSurface*>(&control)) {
        auto* view = new PictureView(*surface, parent);
        binding = view->Bind(origin);
    } else if (auto* grid = dynamic_cast<DataGrid*>(&control)) {
        auto* view = new GridView(*grid, parent);
        binding = view->Bind(origin);
    } else if (dynamic_cast<DataSource*>(&control)) {
        return nullptr;
    } else if (auto* combo = dynamic_cast<ComboBox*>(&control)) {
        binding = new ComboBinding(*combo, new DropComboBox(parent), origin);
    } else if (auto* list = dynamic_cast<ListBox*>(&control)) {
        binding = new ListBinding(*list, new QListWidget(parent), origin);
    } else if (auto* text = dynamic_cast<TextBox*>(&control)) {
        if (text->MultiLine())
            binding = new TextEditBinding(*text, new QPlainTextEdit(parent), origin);
        else
            binding = new LineEditBinding(*text, new QLineEdit(parent), origin);
    } else if (auto* check = dynamic_cast<CheckBox*>(&control)) {
        binding = new CheckBinding(*check, new QCheckBox(parent), origin);
    } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
        binding = new OptionBinding(*option, new QRadioButton(parent), origin);
    } else if (auto* button = dynamic_cast<CommandButton*>(&control)) {
        binding = new ButtonBinding(*button, new QPushButton(parent), origin);
    } else if (auto* frame = dynamic_cast<Frame*>(&control)) {
        binding = new FrameBinding(*frame, new QGroupBox(parent), origin);
    } else if (auto* label = dynamic_cast<Label*>(&control)) {
        binding = new LabelBinding(*label, new QLabel(parent), origin);
    } else if (auto* spin = dynamic_cast<UpDown*>(&control)) {
        if (spin->ShowValue())
            binding = new SpinBoxBinding(*spin, new QSpinBox(parent), origin);
        else
            binding = new UpDownBinding(*spin, new UpDownWidget(parent), origin);
    } else if (auto* line = dynamic_cast<LineControl*>(&control)) {
        binding = new LineBinding(*line, new LineWidget(*line, parent), origin);
    } else {
        return nullptr;
    }
    binding->SyncAll();
    return binding->Widget();
}

QTimer* BindTimer(TimerControl& timer, QObject* owner) {
    auto* qtimer = new QTimer(owner);
    const auto sync = [qtimer, &timer] {
        if (timer.Running()) {
            if (!qtimer->isActive() || qtimer->interval() != timer.Interval())
                qtimer->start(timer.Interval());
        } else {
            qtimer->stop();
        }
    };
    const int id = timer.AddListener([sync](Aspect) { sync(); });
    QObject::connect(qtimer, &QObject::destroyed, [&timer, id] { timer.RemoveListener(id); });
    QObject::connect(qtimer, &QTimer::timeout, [&timer, sync] {
        Guarded([&] { timer.Fire(); });
        sync();
    });
    sync();
    return qtimer;
}

// ---- Menus ----------------------------------------------------------------------------------

namespace {

// Whether the pointer rests on an open menu, which tells a mouse highlight from a key's.
bool PointerOnMenu() {
    return qobject_cast<QMenu*>(QApplication::widgetAt(QCursor::pos())) != nullptr;
}

void BindAction(MenuItem& item, QAction* action) {
    const auto sync = [&item, action] {
        const QSignalBlocker blocker(action);
        action->setSeparator(item.IsSeparator());
        action->setText(Q(item.Caption()));
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

QWidget* TabPage(QWidget* tabWidget, int page) {
    auto* view = dynamic_cast<TabView*>(tabWidget);
    return view ? view->Page(page) : nullptr;
}

}  // namespace tarvex::qt
