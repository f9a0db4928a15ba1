#include "qt/list_bindings.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTimer>
#include <algorithm>
#include <functional>
#include <vector>

#include "qt/binding.h"
#include "qt/input_codes.h"
#include "qt/qt_text.h"
#include "shell/controls/user_gestures.h"

namespace tarvex::qt {

namespace {

// Rows of the height the model gives, so that a row under the pointer is found from Y.
class RowHeightDelegate : public QStyledItemDelegate {
  public:
    RowHeightDelegate(const ListBox& model, QObject* parent)
        : QStyledItemDelegate(parent), model_(model) {}
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        if (model_.RowHeight() > 0) size.setHeight(Px(model_.RowHeight(), ScaleOf(option.widget)));
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
        // The list's own moves, by the keys the core leaves to it (Page Up, Shift with an
        // arrow), go to the model as the user's selection.
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
    // The pointer on the rows is the core's gesture, which selects before it reports a press,
    // as a scenario's press does; the list's own mouse handling never runs.
    bool eventFilter(QObject* watched, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (watched != list_->viewport() ||
            (type != QEvent::MouseButtonPress && type != QEvent::MouseMove &&
             type != QEvent::MouseButtonRelease && type != QEvent::MouseButtonDblClick))
            return ControlBinding::eventFilter(watched, event);
        auto* mouse = static_cast<QMouseEvent*>(event);
        // The point counts from the rows' area, where the model's RowAt finds the same row.
        const int row = list_->indexAt(mouse->position().toPoint()).row();
        const int shift = ShiftOf(mouse->modifiers());
        const int button = ButtonOf(type == QEvent::MouseMove ? mouse->buttons() : mouse->button());
        const float x = Twips(mouse->position().x(), Scale());
        const float y = Twips(mouse->position().y(), Scale());
        Guarded([&] {
            if (type == QEvent::MouseButtonPress)
                UserPressRow(model_, row, button, shift, x, y);
            else if (type == QEvent::MouseMove)
                UserMoveOverRow(model_, row, button, shift, x, y);
            else if (type == QEvent::MouseButtonRelease)
                UserReleaseRow(model_, row, button, shift, x, y);
            else
                UserDoubleClickRow(model_, row, button, shift, x, y);
        });
        return true;
    }
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

}  // namespace

ControlBinding* BindList(ListBox& model, QWidget* parent, QPointF origin) {
    return new ListBinding(model, new QListWidget(parent), origin);
}

ControlBinding* BindCombo(ComboBox& model, QWidget* parent, QPointF origin) {
    return new ComboBinding(model, new DropComboBox(parent), origin);
}

}  // namespace tarvex::qt
