#pragma once
// The look shared by the maps and pictures: a quiet period chart, pale buff land on a soft
// blue-grey sea, dark ink for coasts and names, and a label placer that keeps names apart.
#include <QColor>
#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <vector>

namespace tarvex::mapgen {

inline const QColor kLand(238, 227, 198);
inline const QColor kSea(199, 215, 222);
inline const QColor kCoast(72, 92, 104);
inline const QColor kRiver(108, 142, 168);
inline const QColor kBorder(140, 98, 86);
inline const QColor kGraticule(92, 92, 84, 120);
inline const QColor kInk(46, 38, 32);
inline const QColor kAirfield(128, 34, 22);
inline const QColor kSeaName(86, 118, 136);
inline const QColor kCountryName(150, 128, 96);

QFont ChartFont(int pixelSize, bool bold = false, bool italic = false, double spacing = 0);

// Text with a pale halo, so that names stay readable over lines. The baseline starts at pos.
void DrawHaloText(QPainter& painter, QPointF pos, const QString& text, const QFont& font,
                  const QColor& colour, int haloAlpha = 150);

// Keeps the rectangles already taken on a picture and finds a free place for a new one.
class LabelPlacer {
  public:
    explicit LabelPlacer(QRectF bounds) : bounds_(bounds) {}

    bool IsFree(const QRectF& rect) const;
    void Take(const QRectF& rect) { taken_.push_back(rect); }
    // The first of the usual places around an anchor (right, left, above, below) where a box
    // of the given size fits; the box is taken. Nothing when all are blocked.
    bool PlaceAround(QPointF anchor, QSizeF size, double gap, QRectF& placed);

  private:
    QRectF bounds_;
    std::vector<QRectF> taken_;
};

}  // namespace tarvex::mapgen
