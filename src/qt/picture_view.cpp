#include "qt/picture_view.h"

#include <QFontMetricsF>
#include <QPainter>

#include "qt/binding.h"
#include "qt/qt_text.h"

namespace tarvex::qt {

namespace {

class PictureBinding : public ControlBinding {
  public:
    PictureBinding(PictureSurface& model, PictureView* view, QPointF origin)
        : ControlBinding(model, view, origin), view_(view) {}

  protected:
    bool PaintsBackColour() const override { return true; }
    double Scale() const override { return ControlBinding::Scale() * view_->Zoom(); }
    void Sync(Aspect aspect) override {
        if (aspect == Aspect::Drawing) view_->update();
        ControlBinding::Sync(aspect);
    }

  private:
    PictureView* view_;
};

// Points are painted at the normal scale; the painter scales them to the view's.
QPointF At(float x, float y) {
    return QPointF(x / kTwipsPerPixel, y / kTwipsPerPixel);
}

// The widget's font at the normal scale.
QFont NormalFont(const QWidget* widget) {
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() / ScaleOf(widget));
    return font;
}

}  // namespace

PictureView::PictureView(PictureSurface& model, QWidget* parent) : QWidget(parent), model_(model) {
    setMouseTracking(true);
    // Text is measured with the font it is painted in.
    model_.measureWidth = [this](const std::string& text) {
        return Twips(QFontMetricsF(NormalFont(this)).horizontalAdvance(Q(text)));
    };
    model_.measureHeight = [this](const std::string&) {
        return Twips(QFontMetricsF(NormalFont(this)).height());
    };
}

PictureView::~PictureView() {
    model_.measureWidth = nullptr;
    model_.measureHeight = nullptr;
}

ControlBinding* PictureView::Bind(QPointF origin) {
    binding_ = new PictureBinding(model_, this, origin);
    return binding_;
}

void PictureView::SetZoom(double zoom) {
    if (zoom == zoom_) return;
    zoom_ = zoom;
    if (binding_) binding_->SyncScale();
}

void PictureView::paintEvent(QPaintEvent*) {
    // The model's Paint handler redraws into the recording; what it asks to repaint meanwhile
    // is this very paint.
    if (!painting_) {
        painting_ = true;
        Guarded([this] { model_.RaisePaint(); });
        painting_ = false;
    }
    QPainter painter(this);
    if (!IsSystemColour(model_.BackColor())) painter.fillRect(rect(), ToQColor(model_.BackColor()));
    // Everything below is drawn at the normal scale and magnified whole, text included.
    const double scale = ScaleOf(this) * zoom_;
    painter.scale(scale, scale);
    const QFont font = NormalFont(this);
    painter.setFont(font);
    const QString picture = QString::fromStdString(model_.Picture());
    if (picture != loaded_) {
        loaded_ = picture;
        image_ = picture.isEmpty() ? QImage() : QImage(picture);
    }
    if (!image_.isNull()) {
        // A bitmap covers its size in map units (pixels x 1440 / its dots per inch), which is
        // what the projection works in; a dense bitmap is drawn smaller and stays sharp.
        const auto logical = [](int pixels, int dotsPerMetre) {
            const double dpi = dotsPerMetre > 0 ? dotsPerMetre * 0.0254 : 96.0;
            return pixels * 96.0 / dpi;
        };
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(0, 0, logical(image_.width(), image_.dotsPerMeterX()),
                                 logical(image_.height(), image_.dotsPerMeterY())),
                          image_);
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const QFontMetricsF metrics(font);
    for (const DrawOp& op : model_.Operations()) {
        QPen pen(ToQColor(op.pen), std::max(1, op.drawWidth));
        painter.setPen(pen);
        painter.setBrush(op.fillStyle == kFillSolid ? QBrush(ToQColor(op.fillColor)) : Qt::NoBrush);
        switch (op.kind) {
            case DrawKind::Circle: {
                const double r = op.radius / kTwipsPerPixel;
                painter.drawEllipse(At(op.x1, op.y1), r, r);
                break;
            }
            case DrawKind::Line:
                painter.drawLine(At(op.x1, op.y1), At(op.x2, op.y2));
                break;
            case DrawKind::Box: {
                const QRectF box = QRectF(At(op.x1, op.y1), At(op.x2, op.y2)).normalized();
                if (op.fillStyle == kFillSolid && op.fillColor == op.pen)
                    painter.fillRect(box, ToQColor(op.pen));
                else
                    painter.drawRect(box);
                break;
            }
            case DrawKind::Text:
                painter.drawText(At(op.x1, op.y1) + QPointF(0, metrics.ascent()),
                                 QString::fromStdString(op.text));
                break;
        }
    }
}

}  // namespace tarvex::qt
