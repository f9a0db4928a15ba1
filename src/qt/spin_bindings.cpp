#include "qt/spin_bindings.h"

#include <QLineEdit>
#include <QSpinBox>
#include <QToolButton>
#include <algorithm>

#include "qt/binding.h"

namespace tarvex::qt {

namespace {

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

}  // namespace

ControlBinding* BindUpDown(UpDown& model, QWidget* parent, QPointF origin) {
    if (model.ShowValue()) return new SpinBoxBinding(model, new QSpinBox(parent), origin);
    return new UpDownBinding(model, new UpDownWidget(parent), origin);
}

}  // namespace tarvex::qt
