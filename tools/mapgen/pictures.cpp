#include "pictures.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QRandomGenerator>
#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

#include "bmp_writer.h"
#include "chart_style.h"
#include "geo_data.h"

namespace tarvex::mapgen {
namespace {

const QColor kParchment(239, 230, 207);
const QColor kFrameInk(84, 66, 48);

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}

// The charts of the pictures are plain views with the longitude scaled by the cosine of the
// middle latitude, filling their target; nothing is plotted on them.
struct ChartView {
    double west, east, south, north;
    QRectF target;

    double CosLat() const { return std::cos(Radians((south + north) / 2)); }
    double Scale() const {
        return std::max(target.width() / ((east - west) * CosLat()),
                        target.height() / (north - south));
    }
    QPointF ToPixel(double lat, double lon) const {
        const QPointF c = target.center();
        return {c.x() + (lon - (west + east) / 2) * CosLat() * Scale(),
                c.y() - (lat - (south + north) / 2) * Scale()};
    }
    GeoPoint FromPixel(double x, double y) const {
        const QPointF c = target.center();
        return {(south + north) / 2 - (y - c.y()) / Scale(),
                (west + east) / 2 + (x - c.x()) / (CosLat() * Scale())};
    }
};

struct ChartPicture {
    int widthPixels;
    int heightPixels;
    double west, east, south, north;  // the region shown
};

// The splash is about 6000 by 4000 map units. The Summary tab's picture fills the upright
// panel beside the read-outs, 3720 by 4620; the about box's picture is 4320 by 3240.
constexpr ChartPicture kSplash{800, 533, -0.25, 2.0, 51.0, 51.95};
constexpr ChartPicture kSummary{496, 616, 0.75, 2.3, 50.35, 51.55};
constexpr int kLondonWidth = 576;
constexpr int kLondonHeight = 432;

void FillChart(QImage& image, const ChartView& view, const LandMask& mask) {
    constexpr int kSub = 3;
    const QRect area = view.target.toAlignedRect().intersected(image.rect());
    for (int y = area.top(); y <= area.bottom(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            int land = 0;
            for (int sy = 0; sy < kSub; ++sy)
                for (int sx = 0; sx < kSub; ++sx) {
                    const GeoPoint g = view.FromPixel(x + (sx + 0.5) / kSub, y + (sy + 0.5) / kSub);
                    if (mask.LandShare(g.lat, g.lon) >= 0.5) ++land;
                }
            const double t = land / double(kSub * kSub);
            auto mix = [t](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * t)); };
            row[x] = qRgb(mix(kSea.red(), kLand.red()), mix(kSea.green(), kLand.green()),
                          mix(kSea.blue(), kLand.blue()));
        }
    }
}

void DrawChartLines(QPainter& painter, const ChartView& view, const std::vector<GeoLine>& lines) {
    for (const GeoLine& line : lines) {
        QPolygonF polygon;
        for (const GeoPoint& p : line.points)
            polygon << view.ToPixel(p.lat, p.lon);
        painter.drawPolyline(polygon);
    }
}

// Land, sea, rivers, coast and a faint half-degree graticule inside the view's target.
bool DrawChart(QImage& image, const ChartView& view, const std::string& gmtDir,
               std::string& error) {
    const std::optional<LandMask> mask =
        ReadLandMask(gmtDir + "/mask_info.txt", gmtDir + "/mask.txt");
    if (!mask) {
        error = "the land mask in " + gmtDir + " is missing or incomplete";
        return false;
    }
    FillChart(image, view, *mask);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(view.target);
    painter.setPen(QPen(kRiver, 1.0));
    DrawChartLines(painter, view, ReadGeoLines(gmtDir + "/rivers.txt"));
    painter.setPen(QPen(kCoast, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    DrawChartLines(painter, view, ReadGeoLines(gmtDir + "/coast.txt"));
    painter.setPen(QPen(kGraticule, 0.8));
    for (double lat = std::ceil(view.south * 2) / 2; lat <= view.north; lat += 0.5) {
        const double y = view.ToPixel(lat, 0).y();
        painter.drawLine(QPointF(view.target.left(), y), QPointF(view.target.right(), y));
    }
    for (double lon = std::ceil(view.west * 2) / 2; lon <= view.east; lon += 0.5) {
        const double x = view.ToPixel(0, lon).x();
        painter.drawLine(QPointF(x, view.target.top()), QPointF(x, view.target.bottom()));
    }
    return true;
}

void DrawPlace(QPainter& painter, const ChartView& view, const char* name, double lat, double lon,
               int size, bool right = true) {
    const QPointF at = view.ToPixel(lat, lon);
    painter.setPen(QPen(QColor(255, 255, 255, 160), 1.2));
    painter.setBrush(kInk);
    painter.drawEllipse(at, 2.8, 2.8);
    const QFont font = ChartFont(size);
    const QFontMetricsF metrics(font);
    const double width = metrics.horizontalAdvance(name);
    const QPointF base(right ? at.x() + 6 : at.x() - 6 - width, at.y() + metrics.ascent() / 2 - 1);
    DrawHaloText(painter, base, name, font, kInk);
}

void DrawCentredText(QPainter& painter, QPointF centre, const QString& text, const QFont& font,
                     const QColor& colour) {
    const QFontMetricsF metrics(font);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QPointF(centre.x() - metrics.horizontalAdvance(text) / 2,
                             centre.y() + (metrics.ascent() - metrics.descent()) / 2),
                     text);
}

// An eight-pointed rose with a ring of ten-degree ticks and its north mark.
void DrawCompassRose(QPainter& painter, QPointF centre, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre);
    painter.setBrush(QColor(250, 246, 234, 170));
    painter.setPen(QPen(kFrameInk, 1.2));
    painter.drawEllipse(QPointF(0, 0), radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.drawEllipse(QPointF(0, 0), radius * 0.86, radius * 0.86);
    for (int degree = 0; degree < 360; degree += 10) {
        const double a = Radians(degree);
        const double inner = degree % 90 == 0 ? 0.74 : 0.86;
        painter.drawLine(QPointF(std::sin(a) * radius * inner, -std::cos(a) * radius * inner),
                         QPointF(std::sin(a) * radius, -std::cos(a) * radius));
    }
    const QColor dark = kFrameInk;
    const QColor light(244, 236, 214);
    for (int point = 0; point < 8; ++point) {
        const double a = Radians(point * 45.0);
        const double length = (point % 2 == 0 ? 0.84 : 0.5) * radius;
        const double waist = (point % 2 == 0 ? 0.13 : 0.1) * radius;
        const QPointF tip(std::sin(a) * length, -std::cos(a) * length);
        const QPointF left(std::sin(a - std::numbers::pi / 2) * waist,
                           -std::cos(a - std::numbers::pi / 2) * waist);
        // Each point is split along its axis into a dark and a light half.
        painter.setPen(QPen(dark, 0.8));
        painter.setBrush(dark);
        painter.drawPolygon(QPolygonF({QPointF(0, 0), tip, left}));
        painter.setBrush(light);
        painter.drawPolygon(QPolygonF({QPointF(0, 0), tip, -left}));
    }
    painter.setBrush(dark);
    painter.drawEllipse(QPointF(0, 0), radius * 0.05, radius * 0.05);
    DrawCentredText(painter, QPointF(0, -radius - radius * 0.22), "N",
                    ChartFont(static_cast<int>(radius * 0.32), true), dark);
    painter.restore();
}

// A monoplane seen from above, nose toward the heading.
void DrawAircraft(QPainter& painter, QPointF centre, double span, double heading,
                  const QColor& colour) {
    QPainterPath shape;
    shape.addEllipse(QPointF(0, 0.02), 0.055, 0.42);
    shape.addPolygon(QPolygonF(
        {QPointF(-0.5, -0.06), QPointF(0.5, -0.06), QPointF(0.46, 0.05), QPointF(-0.46, 0.05)}));
    shape.addPolygon(QPolygonF(
        {QPointF(-0.17, 0.33), QPointF(0.17, 0.33), QPointF(0.15, 0.4), QPointF(-0.15, 0.4)}));
    shape.setFillRule(Qt::WindingFill);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(centre);
    painter.rotate(heading);
    painter.scale(span, span);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPath(shape.simplified());
    painter.restore();
}

// A double rule round the picture, in the manner of a printed chart.
void DrawFrame(QPainter& painter, QSize size) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(kFrameInk, 3));
    painter.drawRect(QRectF(4.5, 4.5, size.width() - 9, size.height() - 9));
    painter.setPen(QPen(kFrameInk, 1));
    painter.drawRect(QRectF(10.5, 10.5, size.width() - 21, size.height() - 21));
    painter.restore();
}

bool RenderSplash(const std::string& gmtDir, const std::string& outPath, std::string& error) {
    QImage image(kSplash.widthPixels, kSplash.heightPixels, QImage::Format_RGB32);
    image.fill(kParchment);
    const ChartView view{kSplash.west, kSplash.east, kSplash.south, kSplash.north,
                         QRectF(11, 11, kSplash.widthPixels - 22, kSplash.heightPixels - 22)};
    if (!DrawChart(image, view, gmtDir, error)) return false;

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.setClipRect(view.target);
    DrawPlace(painter, view, "London", 51.507, -0.128, 15);
    DrawPlace(painter, view, "Southend", 51.538, 0.714, 13, false);
    DrawPlace(painter, view, "Chatham", 51.380, 0.527, 13);
    DrawPlace(painter, view, "Margate", 51.389, 1.386, 13, false);
    DrawPlace(painter, view, "Colchester", 51.889, 0.903, 13);
    DrawPlace(painter, view, "Harwich", 51.944, 1.287, 13);
    DrawPlace(painter, view, "Chelmsford", 51.736, 0.479, 13);

    const QFont seaFont = ChartFont(17, false, true, 4);
    DrawCentredText(painter, view.ToPixel(51.6, 1.55), "NORTH SEA", seaFont, kSeaName);
    DrawCentredText(painter, view.ToPixel(51.47, 0.93), "THAMES ESTUARY",
                    ChartFont(12, false, true, 2.5), kSeaName);

    // A flight of three coming up the estuary.
    const QColor aircraft(52, 48, 46, 215);
    const QPointF lead = view.ToPixel(51.62, 0.98);
    const double heading = -68;  // on the picture, from straight up
    const QPointF back(std::sin(Radians(heading + 180)), -std::cos(Radians(heading + 180)));
    const QPointF side(std::cos(Radians(heading)), std::sin(Radians(heading)));
    QPen track(QColor(52, 48, 46, 110), 1.2, Qt::DashLine);
    painter.setPen(track);
    painter.drawLine(lead + back * 30, lead + back * 260);
    DrawAircraft(painter, lead, 40, heading, aircraft);
    DrawAircraft(painter, lead + back * 34 + side * 34, 40, heading, aircraft);
    DrawAircraft(painter, lead + back * 34 - side * 34, 40, heading, aircraft);

    DrawCompassRose(painter, view.ToPixel(51.2, 1.78), 58);

    // The title cartouche.
    const QRectF box(28, 330, 476, 160);
    painter.setPen(QPen(kFrameInk, 2.5));
    painter.setBrush(QColor(kParchment.red(), kParchment.green(), kParchment.blue(), 240));
    painter.drawRect(box);
    painter.setPen(QPen(kFrameInk, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(box.adjusted(6, 6, -6, -6));
    DrawCentredText(painter, QPointF(box.center().x(), box.top() + 56), "Tarvex Mission Editor",
                    ChartFont(35, true), kInk);
    painter.setPen(QPen(kFrameInk, 1.2));
    painter.drawLine(QPointF(box.left() + 70, box.top() + 92),
                     QPointF(box.right() - 70, box.top() + 92));
    DrawCentredText(painter, QPointF(box.center().x(), box.top() + 122), "By Bram Oskett",
                    ChartFont(20, false, true), kInk);
    painter.setClipping(false);
    DrawFrame(painter, image.size());
    painter.end();
    if (!WriteBmp24(image, outPath)) {
        error = "cannot write " + outPath;
        return false;
    }
    return true;
}

bool RenderSummary(const std::string& gmtDir, const std::string& outPath, std::string& error) {
    QImage image(kSummary.widthPixels, kSummary.heightPixels, QImage::Format_RGB32);
    image.fill(kParchment);
    const ChartView view{kSummary.west, kSummary.east, kSummary.south, kSummary.north,
                         QRectF(11, 11, kSummary.widthPixels - 22, kSummary.heightPixels - 22)};
    if (!DrawChart(image, view, gmtDir, error)) return false;

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(view.target);
    DrawPlace(painter, view, "Dover", 51.126, 1.313, 13);
    DrawPlace(painter, view, "Calais", 50.951, 1.858, 13);
    DrawPlace(painter, view, "Boulogne", 50.726, 1.614, 13, false);
    DrawPlace(painter, view, "Saint-Omer", 50.750, 2.252, 12, false);
    DrawPlace(painter, view, "Ashford", 51.146, 0.875, 12);
    DrawPlace(painter, view, "Canterbury", 51.280, 1.079, 12);
    DrawPlace(painter, view, "Deal", 51.223, 1.402, 12);
    DrawCentredText(painter, view.ToPixel(51.27, 1.85), "STRAIT OF DOVER",
                    ChartFont(13, false, true, 3), kSeaName);

    // A briefed route across the strait, drawn as the editor draws a path.
    const double route[][2] = {{51.112, 1.156}, {51.00, 1.40}, {50.86, 1.95},  {50.64, 2.05},
                               {50.60, 1.45},   {50.90, 0.98}, {51.112, 1.156}};
    const int count = static_cast<int>(std::size(route));
    painter.setPen(QPen(QColor(20, 20, 20), 1.6));
    for (int i = 1; i < count; ++i)
        painter.drawLine(view.ToPixel(route[i - 1][0], route[i - 1][1]),
                         view.ToPixel(route[i][0], route[i][1]));
    const QFont numberFont = ChartFont(12, true);
    for (int i = 1; i + 1 < count; ++i) {
        const QPointF at = view.ToPixel(route[i][0], route[i][1]);
        painter.setPen(QPen(QColor(20, 20, 20), 1.4));
        painter.setBrush(Qt::white);
        painter.drawEllipse(at, 6.4, 6.4);
        DrawHaloText(painter, at + QPointF(8, -6), QString::number(i), numberFont,
                     QColor(20, 20, 20));
    }
    painter.setPen(QPen(QColor(20, 20, 20), 1.4));
    painter.setBrush(QColor(255, 0, 0));
    painter.drawEllipse(view.ToPixel(route[0][0], route[0][1]), 6.4, 6.4);
    DrawCompassRose(painter, view.ToPixel(50.5, 1.1), 40);
    painter.setClipping(false);
    DrawFrame(painter, image.size());
    painter.end();
    if (!WriteBmp24(image, outPath)) {
        error = "cannot write " + outPath;
        return false;
    }
    return true;
}

// The skyline of the river front: St Paul's, Tower Bridge and the clock tower at Westminster
// among roofs, as one silhouette path standing on the bank at y = base.
QPainterPath Skyline(double width, double base, QRandomGenerator& random) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    // Roofs and chimneys.
    for (double x = -4; x < width + 4;) {
        const double w = 10 + random.bounded(22);
        const double h = 14 + random.bounded(34);
        path.addRect(QRectF(x, base - h, w + 1, h + 1));
        if (random.bounded(3) == 0) path.addRect(QRectF(x + w * 0.3, base - h - 6, 3, 7));
        x += w;
    }
    // Clock tower.
    const double cx = 64;
    path.addRect(QRectF(cx - 9, base - 132, 18, 133));
    path.addRect(QRectF(cx - 11, base - 148, 22, 18));
    QPolygonF spire(
        {QPointF(cx - 11, base - 148), QPointF(cx, base - 186), QPointF(cx + 11, base - 148)});
    path.addPolygon(spire);
    // St Paul's: body, drum, dome, lantern and cross, with the west towers.
    const double sx = 236;
    path.addRect(QRectF(sx - 46, base - 56, 92, 57));
    path.addRect(QRectF(sx - 30, base - 98, 60, 40));
    path.addEllipse(QRectF(sx - 30, base - 132, 60, 68));
    path.addRect(QRectF(sx - 5, base - 150, 10, 22));
    path.addRect(QRectF(sx - 1.2, base - 164, 2.4, 16));
    path.addRect(QRectF(sx - 5, base - 159, 10, 2.4));
    for (double tx : {sx - 58, sx + 46}) {
        path.addRect(QRectF(tx, base - 94, 12, 95));
        path.addPolygon(QPolygonF({QPointF(tx - 1, base - 94), QPointF(tx + 6, base - 110),
                                   QPointF(tx + 13, base - 94)}));
    }
    // Tower Bridge: two towers with turrets, the high walkways and the road.
    for (double tx : {410.0, 486.0}) {
        path.addRect(QRectF(tx - 12, base - 112, 24, 113));
        for (double turret : {tx - 12, tx + 7})
            path.addPolygon(
                QPolygonF({QPointF(turret, base - 112), QPointF(turret + 2.5, base - 128),
                           QPointF(turret + 5, base - 112)}));
        path.addPolygon(QPolygonF(
            {QPointF(tx - 9, base - 112), QPointF(tx, base - 138), QPointF(tx + 9, base - 112)}));
    }
    path.addRect(QRectF(398, base - 98, 100, 6));
    path.addRect(QRectF(350, base - 36, 196, 6));
    return path;
}

void DrawBalloon(QPainter& painter, QPointF at, double size, const QColor& colour) {
    painter.save();
    painter.translate(at);
    painter.setPen(QPen(QColor(colour.red(), colour.green(), colour.blue(), 120), 0.7));
    painter.drawLine(QPointF(0, size * 0.3), QPointF(size * 0.2, size * 9));
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(QPointF(0, 0), size, size * 0.42);
    painter.drawPolygon(QPolygonF(
        {QPointF(size * 0.6, 0), QPointF(size * 1.45, -size * 0.45), QPointF(size * 1.35, 0)}));
    painter.drawPolygon(QPolygonF(
        {QPointF(size * 0.6, 0), QPointF(size * 1.45, size * 0.45), QPointF(size * 1.35, 0)}));
    painter.restore();
}

bool RenderLondon(const std::string& outPath, std::string& error) {
    QImage image(kLondonWidth, kLondonHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QRandomGenerator random(1940);
    const double w = kLondonWidth;
    const double h = kLondonHeight;
    const double bank = 300;

    QLinearGradient sky(0, 0, 0, bank);
    sky.setColorAt(0, QColor(22, 28, 54));
    sky.setColorAt(0.55, QColor(58, 58, 94));
    sky.setColorAt(0.85, QColor(150, 104, 104));
    sky.setColorAt(1, QColor(214, 146, 96));
    painter.fillRect(QRectF(0, 0, w, bank), sky);
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 60; ++i) {
        const QPointF star(random.bounded(kLondonWidth), random.bounded(150));
        painter.setBrush(QColor(235, 232, 215, 60 + random.bounded(120)));
        painter.drawEllipse(star, 0.7, 0.7);
    }
    // Searchlights sweeping up from the bank.
    const double beams[][3] = {{120, bank, -24}, {300, bank, 14}, {350, bank, -9}, {520, bank, 30}};
    for (const auto& beam : beams) {
        const QPointF foot(beam[0], beam[1]);
        const double a = Radians(beam[2]);
        const QPointF dir(std::sin(a), -std::cos(a));
        const QPointF across(std::cos(a), std::sin(a));
        const QPointF far = foot + dir * 420;
        QLinearGradient light(foot, far);
        light.setColorAt(0, QColor(236, 238, 222, 80));
        light.setColorAt(1, QColor(236, 238, 222, 0));
        painter.setBrush(light);
        painter.drawPolygon(QPolygonF(
            {foot - across * 1.5, foot + across * 1.5, far + across * 16, far - across * 16}));
    }
    const QColor balloon(30, 30, 40);
    DrawBalloon(painter, QPointF(150, 118), 13, balloon);
    DrawBalloon(painter, QPointF(332, 76), 10, balloon);
    DrawBalloon(painter, QPointF(468, 140), 12, balloon);
    DrawBalloon(painter, QPointF(548, 60), 8, balloon);

    const QPainterPath skyline = Skyline(w, bank, random);
    painter.setBrush(QColor(18, 18, 28));
    painter.drawPath(skyline);
    // The river, with the skyline's reflection broken by the ripples.
    QLinearGradient river(0, bank, 0, h);
    river.setColorAt(0, QColor(92, 76, 84));
    river.setColorAt(1, QColor(20, 24, 40));
    painter.fillRect(QRectF(0, bank, w, h - bank), river);
    painter.save();
    painter.setClipRect(QRectF(0, bank, w, h - bank));
    painter.translate(0, 2 * bank);
    painter.scale(1, -1);
    painter.setBrush(QColor(18, 18, 28, 120));
    painter.drawPath(skyline);
    painter.restore();
    for (int i = 0; i < 90; ++i) {
        const double y = bank + 4 + random.bounded(static_cast<int>(h - bank - 8));
        const double x = random.bounded(kLondonWidth);
        const double length = 10 + random.bounded(40);
        painter.setPen(QPen(QColor(226, 170, 120, 30 + random.bounded(60)), 1));
        painter.drawLine(QPointF(x, y), QPointF(x + length, y));
    }
    DrawAircraft(painter, QPointF(250, 40), 22, 100, QColor(16, 16, 24));
    DrawAircraft(painter, QPointF(282, 52), 22, 100, QColor(16, 16, 24));
    const QFont caption = ChartFont(14, false, true, 1.5);
    painter.setFont(caption);
    painter.setPen(QColor(230, 214, 180));
    painter.drawText(QPointF(w - 130, h - 22), "London, 1940");
    painter.end();
    if (!WriteBmp24(image, outPath)) {
        error = "cannot write " + outPath;
        return false;
    }
    return true;
}

}  // namespace

bool PictureGmtRequest(const std::string& name, GmtRequest& request) {
    const ChartPicture* picture = name == "Splash"    ? &kSplash
                                  : name == "Summary" ? &kSummary
                                                      : nullptr;
    if (!picture) return false;
    request.west = std::floor((picture->west - 0.2) * 10) / 10;
    request.east = std::ceil((picture->east + 0.2) * 10) / 10;
    request.south = std::floor((picture->south - 0.2) * 10) / 10;
    request.north = std::ceil((picture->north + 0.2) * 10) / 10;
    request.maskSpacing = 0.1 / 150;
    request.resolution = 'f';
    request.largeScale = true;
    return true;
}

bool RenderPicture(const std::string& name, const std::string& gmtDir, const std::string& outPath,
                   std::string& error) {
    if (name == "Splash") return RenderSplash(gmtDir, outPath, error);
    if (name == "Summary") return RenderSummary(gmtDir, outPath, error);
    if (name == "London1") return RenderLondon(outPath, error);
    error = "no picture called " + name;
    return false;
}

}  // namespace tarvex::mapgen
