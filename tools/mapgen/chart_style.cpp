#include "chart_style.h"

#include <QPainterPath>

namespace tarvex::mapgen {

QFont ChartFont(int pixelSize, bool bold, bool italic, double spacing) {
    QFont font("DejaVu Serif");
    font.setPixelSize(pixelSize);
    font.setBold(bold);
    font.setItalic(italic);
    if (spacing != 0) font.setLetterSpacing(QFont::AbsoluteSpacing, spacing);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

void DrawHaloText(QPainter& painter, QPointF pos, const QString& text, const QFont& font,
                  const QColor& colour, int haloAlpha) {
    QPainterPath path;
    path.addText(pos, font, text);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    // A neutral halo lightens what lies below without changing whether it reads as land or
    // sea.
    painter.strokePath(path, QPen(QColor(255, 255, 255, haloAlpha), 3.0, Qt::SolidLine,
                                  Qt::RoundCap, Qt::RoundJoin));
    painter.fillPath(path, colour);
    painter.restore();
}

bool LabelPlacer::IsFree(const QRectF& rect) const {
    if (!bounds_.contains(rect)) return false;
    for (const QRectF& other : taken_)
        if (other.intersects(rect)) return false;
    return true;
}

bool LabelPlacer::PlaceAround(QPointF anchor, QSizeF size, double gap, QRectF& placed) {
    const double w = size.width();
    const double h = size.height();
    const QPointF corners[] = {
        {anchor.x() + gap, anchor.y() - h / 2},
        {anchor.x() - gap - w, anchor.y() - h / 2},
        {anchor.x() + gap / 2, anchor.y() - gap - h},
        {anchor.x() + gap / 2, anchor.y() + gap},
        {anchor.x() - w / 2, anchor.y() - gap - h},
        {anchor.x() - w / 2, anchor.y() + gap},
        {anchor.x() - gap / 2 - w, anchor.y() - gap - h},
        {anchor.x() - gap / 2 - w, anchor.y() + gap},
    };
    for (const QPointF& corner : corners) {
        const QRectF rect(corner, size);
        if (IsFree(rect)) {
            Take(rect);
            placed = rect;
            return true;
        }
    }
    return false;
}

}  // namespace tarvex::mapgen
