#include "qt/line_binding.h"

#include <QEvent>
#include <QPainter>
#include <QWidget>

#include "qt/binding.h"

namespace tarvex::qt {

namespace {

// Covers its container and draws the line on it, letting the pointer through.
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
        const double perTwip = ScaleOf(this) / kTwipsPerPixel;
        painter.drawLine(
            QPointF((model_.X1() - origin.x()) * perTwip, (model_.Y1() - origin.y()) * perTwip),
            QPointF((model_.X2() - origin.x()) * perTwip, (model_.Y2() - origin.y()) * perTwip));
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

ControlBinding* BindLine(LineControl& model, QWidget* parent, QPointF origin) {
    return new LineBinding(model, new LineWidget(model, parent), origin);
}

}  // namespace tarvex::qt
