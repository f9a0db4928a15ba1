#include "theatre_map.h"

#include <sqlite3.h>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>
#include <vector>

#include "bmp_writer.h"
#include "chart_style.h"
#include "geo_data.h"
#include "maps/map_catalogue.h"
#include "maps/map_projection.h"
#include "places.h"

namespace tarvex::mapgen {
namespace {

// The map area of the Waypoints tab in map units, and map units per pixel at 192 dpi.
constexpr double kAreaWidthTwips = 5016;
constexpr double kAreaHeightTwips = 4860;
constexpr double kTwipsPerPixel = 1440.0 / 192.0;

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}

// The editor's projection of one map at the size its bitmap header will announce.
class Projector {
  public:
    Projector(int mapIndex, MapSize size) : size_(size) {
        projection_.SetMap(mapIndex, PixelsToTwips(size.widthPixels),
                           PixelsToTwips(size.heightPixels));
    }

    QPointF ToPixel(double lat, double lon) {
        float x = 0, y = 0;
        projection_.DegreesToMap(static_cast<float>(lat), static_cast<float>(lon), x, y);
        return {x / kTwipsPerPixel, y / kTwipsPerPixel};
    }

    GeoPoint FromPixel(double px, double py) {
        float lat = 0, lon = 0;
        projection_.MapToDegrees(static_cast<float>(px * kTwipsPerPixel),
                                 static_cast<float>(py * kTwipsPerPixel), lat, lon);
        return {lat, lon};
    }

    // Unit vectors of north and east at a place, in pixels: the leaning maps turn them.
    void LocalAxes(double lat, double lon, QPointF& north, QPointF& east) {
        const QPointF at = ToPixel(lat, lon);
        north = Unit(ToPixel(lat + 0.05, lon) - at);
        east = Unit(ToPixel(lat, lon + 0.05 / std::cos(Radians(lat))) - at);
    }

    const MapSize& Size() const { return size_; }
    const MapProjection& Projection() const { return projection_; }

  private:
    static QPointF Unit(QPointF v) {
        const double length = std::hypot(v.x(), v.y());
        return length > 0 ? v / length : QPointF(0, -1);
    }

    MapSize size_;
    MapProjection projection_;
};

struct Airfield {
    QString name;
    double lat = 0;
    double lon = 0;
    double heading = 0;
};

std::optional<std::vector<Airfield>> ReadAirfields(const std::string& dbPath, std::string& error) {
    std::vector<Airfield> airfields;
    if (dbPath.empty()) return airfields;
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(dbPath.c_str(), &db, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
        error = "cannot open " + dbPath;
        sqlite3_close(db);
        return std::nullopt;
    }
    sqlite3_stmt* query = nullptr;
    if (sqlite3_prepare_v2(db, "SELECT Name, RwyLat, RwyLon, ROT FROM Airfields ORDER BY Name", -1,
                           &query, nullptr) != SQLITE_OK) {
        error = sqlite3_errmsg(db);
        sqlite3_close(db);
        return std::nullopt;
    }
    while (sqlite3_step(query) == SQLITE_ROW) {
        Airfield airfield;
        airfield.name =
            QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(query, 0)));
        airfield.lat = sqlite3_column_double(query, 1);
        airfield.lon = sqlite3_column_double(query, 2);
        airfield.heading = sqlite3_column_double(query, 3);
        airfields.push_back(airfield);
    }
    sqlite3_finalize(query);
    sqlite3_close(db);
    return airfields;
}

// A polyline in pixels, with points closer than a fraction of a pixel dropped: the full
// shoreline has far more points than the bitmap can show.
QPolygonF ProjectLine(Projector& projector, const GeoLine& line) {
    QPolygonF polygon;
    for (size_t i = 0; i < line.points.size(); ++i) {
        const QPointF p = projector.ToPixel(line.points[i].lat, line.points[i].lon);
        const bool last = i + 1 == line.points.size();
        if (!polygon.isEmpty() && !last) {
            const QPointF d = p - polygon.back();
            if (d.x() * d.x() + d.y() * d.y() < 0.35 * 0.35) continue;
        }
        polygon << p;
    }
    return polygon;
}

void DrawLines(QPainter& painter, Projector& projector, const std::vector<GeoLine>& lines,
               const QRectF& view) {
    for (const GeoLine& line : lines) {
        const QPolygonF polygon = ProjectLine(projector, line);
        if (polygon.size() >= 2 && polygon.boundingRect().intersects(view))
            painter.drawPolyline(polygon);
    }
}

void FillLandAndSea(QImage& image, Projector& projector, const LandMask& mask) {
    // Nine samples a pixel give the coast a smooth edge between the two fills.
    constexpr int kSub = 3;
    for (int y = 0; y < image.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            int landSamples = 0;
            for (int sy = 0; sy < kSub; ++sy) {
                for (int sx = 0; sx < kSub; ++sx) {
                    const GeoPoint g =
                        projector.FromPixel(x + (sx + 0.5) / kSub, y + (sy + 0.5) / kSub);
                    if (mask.LandShare(g.lat, g.lon) >= 0.5) ++landSamples;
                }
            }
            const double t = landSamples / double(kSub * kSub);
            row[x] = qRgb(
                static_cast<int>(std::lround(kSea.red() + (kLand.red() - kSea.red()) * t)),
                static_cast<int>(std::lround(kSea.green() + (kLand.green() - kSea.green()) * t)),
                static_cast<int>(std::lround(kSea.blue() + (kLand.blue() - kSea.blue()) * t)));
        }
    }
}

QString DegreesText(double value, char positive, char negative) {
    const double magnitude = std::fabs(value);
    int degrees = static_cast<int>(std::floor(magnitude + 1e-9));
    int minutes = static_cast<int>(std::lround((magnitude - degrees) * 60));
    if (minutes == 60) {
        ++degrees;
        minutes = 0;
    }
    QString text = QString::number(degrees) + QChar(0xB0);
    if (minutes != 0) text += QString::number(minutes) + "'";
    if (magnitude > 1e-9) text += value > 0 ? positive : negative;
    return text;
}

struct Extent {
    double minLat = 90, maxLat = -90, minLon = 180, maxLon = -180;
};

// The geographic box of the bitmap, from positions along its border.
Extent MapExtent(Projector& projector) {
    Extent e;
    const double w = projector.Size().widthPixels;
    const double h = projector.Size().heightPixels;
    for (int i = 0; i <= 40; ++i) {
        const double t = i / 40.0;
        for (const QPointF& p :
             {QPointF(t * w, 0), QPointF(t * w, h), QPointF(0, t * h), QPointF(w, t * h)}) {
            const GeoPoint g = projector.FromPixel(p.x(), p.y());
            e.minLat = std::min(e.minLat, g.lat);
            e.maxLat = std::max(e.maxLat, g.lat);
            e.minLon = std::min(e.minLon, g.lon);
            e.maxLon = std::max(e.maxLon, g.lon);
        }
    }
    return e;
}

void DrawGraticule(QPainter& painter, Projector& projector, const Extent& extent, double step,
                   LabelPlacer& placer) {
    const double w = projector.Size().widthPixels;
    const double h = projector.Size().heightPixels;
    painter.setPen(QPen(kGraticule, 0.8));
    painter.setBrush(Qt::NoBrush);
    std::vector<double> lats, lons;
    for (double lat = std::ceil(extent.minLat / step - 1e-6) * step; lat <= extent.maxLat;
         lat += step)
        lats.push_back(lat);
    for (double lon = std::ceil(extent.minLon / step - 1e-6) * step; lon <= extent.maxLon;
         lon += step)
        lons.push_back(lon);

    for (double lat : lats) {
        const double y = projector.ToPixel(lat, 0).y();
        painter.drawLine(QPointF(0, y), QPointF(w, y));
    }
    for (double lon : lons) {
        QPolygonF line;
        for (double lat = extent.minLat - 0.2; lat <= extent.maxLat + 0.2; lat += 0.05)
            line << projector.ToPixel(lat, lon);
        painter.drawPolyline(line);
    }

    const QFont font = ChartFont(11);
    const QFontMetricsF metrics(font);
    const QColor ink(70, 66, 58);
    auto label = [&](const QString& text, QPointF topLeft, double gap) {
        const QRectF rect(topLeft, QSizeF(metrics.horizontalAdvance(text), metrics.height()));
        // Neighbouring labels keep a gap, or a row of them reads as one word.
        if (!placer.IsFree(rect.adjusted(-gap, 0, gap, 0))) return;
        placer.Take(rect.adjusted(-gap, 0, gap, 0));
        DrawHaloText(painter, QPointF(rect.left(), rect.top() + metrics.ascent()), text, font, ink,
                     170);
    };
    for (double lat : lats) {
        const double y = projector.ToPixel(lat, 0).y();
        const QString text = DegreesText(lat, 'N', 'S');
        label(text, QPointF(3, y - metrics.height() - 1), 0);
        label(text, QPointF(w - 3 - metrics.horizontalAdvance(text), y - metrics.height() - 1), 0);
    }
    const GeoPoint topLeft = projector.FromPixel(0, 0);
    const GeoPoint bottomLeft = projector.FromPixel(0, h);
    for (double lon : lons) {
        const QString text = DegreesText(lon, 'E', 'W');
        const double advance = metrics.horizontalAdvance(text);
        const double xTop = projector.ToPixel(topLeft.lat, lon).x();
        const double xBottom = projector.ToPixel(bottomLeft.lat, lon).x();
        label(text, QPointF(xTop - advance / 2, 2), 4);
        label(text, QPointF(xBottom - advance / 2, h - metrics.height() - 2), 4);
    }
}

void DrawAirfieldSymbol(QPainter& painter, Projector& projector, const Airfield& airfield,
                        double scale) {
    const QPointF at = projector.ToPixel(airfield.lat, airfield.lon);
    QPointF north, east;
    projector.LocalAxes(airfield.lat, airfield.lon, north, east);
    const double heading = Radians(airfield.heading);
    const QPointF along = east * std::sin(heading) + north * std::cos(heading);
    painter.setBrush(Qt::NoBrush);
    // At small scale the fields crowd together: the runway alone, without its ring.
    if (scale >= 1) {
        painter.setPen(QPen(kAirfield, 1.3));
        painter.drawEllipse(at, 5.0, 5.0);
    }
    painter.setPen(QPen(kAirfield, 2.4 * scale, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(at - along * 7.5 * scale, at + along * 7.5 * scale);
}

void DrawAreaNames(QPainter& painter, Projector& projector, const LandMask& mask,
                   LabelPlacer& placer) {
    for (const AreaName& area : kAreaNames) {
        const QFont font =
            area.sea ? ChartFont(14, false, true, 2.5) : ChartFont(15, true, false, 4);
        const QFontMetricsF metrics(font);
        const QString text =
            QString::fromUtf8(area.name.data(), static_cast<int>(area.name.size()));
        const QSizeF size(metrics.horizontalAdvance(text), metrics.height());
        for (size_t i = 0; i + 1 < area.positions.size(); i += 2) {
            const double lat = area.positions[i];
            const double lon = area.positions[i + 1];
            if (lat == 0 && lon == 0) break;
            const QPointF centre = projector.ToPixel(lat, lon);
            const QRectF rect(centre - QPointF(size.width() / 2, size.height() / 2), size);
            if (!placer.IsFree(rect)) continue;
            // A sea's name lies on water and a country's on land, end to end.
            bool fits = true;
            for (const QPointF& p : {rect.center(), rect.topLeft(), rect.topRight(),
                                     rect.bottomLeft(), rect.bottomRight()}) {
                const GeoPoint g = projector.FromPixel(p.x(), p.y());
                if ((mask.LandShare(g.lat, g.lon) >= 0.5) == area.sea) fits = false;
            }
            if (!fits) continue;
            placer.Take(rect);
            painter.setFont(font);
            painter.setPen(area.sea ? kSeaName : kCountryName);
            painter.drawText(QPointF(rect.left(), rect.top() + metrics.ascent()), text);
            break;
        }
    }
}

}  // namespace

MapSize TheatreMapSize(int mapIndex) {
    const MapInfo& map = kMapCatalogue[static_cast<size_t>(mapIndex)];
    const double midLat = (map.MapTopLat + map.MapBottomLat) / 2.0;
    MapProjection projection;
    projection.SetMap(mapIndex, 1000, 1000);
    projection.CurLat = static_cast<float>(midLat);
    projection.UpdateLatitudeBand();
    const double lonSpan = projection.LonPerUnit * 1000.0;
    const double aspect = lonSpan * std::cos(Radians(midLat)) / (map.MapTopLat - map.MapBottomLat);
    const int maxWidth = static_cast<int>(std::floor(kAreaWidthTwips / kTwipsPerPixel));
    const int maxHeight = static_cast<int>(std::floor(kAreaHeightTwips / kTwipsPerPixel));
    MapSize size{maxWidth, static_cast<int>(std::lround(maxWidth / aspect))};
    if (size.heightPixels > maxHeight) {
        size.heightPixels = maxHeight;
        size.widthPixels = static_cast<int>(std::lround(maxHeight * aspect));
    }
    return size;
}

GmtRequest TheatreGmtRequest(int mapIndex) {
    Projector projector(mapIndex, TheatreMapSize(mapIndex));
    const Extent e = MapExtent(projector);
    GmtRequest request;
    constexpr double kMargin = 0.3;
    request.west = std::floor((e.minLon - kMargin) * 10) / 10;
    request.east = std::ceil((e.maxLon + kMargin) * 10) / 10;
    request.south = std::floor((e.minLat - kMargin) * 10) / 10;
    request.north = std::ceil((e.maxLat + kMargin) * 10) / 10;
    // Mask nodes at about a third of a pixel, so that the coast edge is placed finely.
    const double latPerPixel = (e.maxLat - e.minLat) / projector.Size().heightPixels;
    // A whole number of nodes to the tenth of a degree, so that the region divides evenly.
    request.maskSpacing = 0.1 / std::ceil(0.1 / (latPerPixel / 3));
    request.largeScale = mapIndex < 4;
    request.resolution = request.largeScale ? 'f' : 'h';
    return request;
}

bool RenderTheatreMap(int mapIndex, const std::string& gmtDir, const std::string& dbPath,
                      const std::string& outPath, std::string& error) {
    if (mapIndex < 0 || mapIndex >= kMapCount) {
        error = "no such map";
        return false;
    }
    const std::optional<LandMask> mask =
        ReadLandMask(gmtDir + "/mask_info.txt", gmtDir + "/mask.txt");
    if (!mask) {
        error = "the land mask in " + gmtDir + " is missing or incomplete";
        return false;
    }
    const std::optional<std::vector<Airfield>> airfields = ReadAirfields(dbPath, error);
    if (!airfields) return false;

    const MapSize size = TheatreMapSize(mapIndex);
    Projector projector(mapIndex, size);
    const bool largeScale = mapIndex < 4;
    QImage image(size.widthPixels, size.heightPixels, QImage::Format_RGB32);
    FillLandAndSea(image, projector, *mask);

    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const QRectF view(-20, -20, size.widthPixels + 40, size.heightPixels + 40);
    painter.setBrush(Qt::NoBrush);

    painter.setPen(
        QPen(kRiver, largeScale ? 1.0 : 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    DrawLines(painter, projector, ReadGeoLines(gmtDir + "/rivers.txt"), view);

    QPen borderPen(kBorder, 1.4, Qt::CustomDashLine, Qt::FlatCap, Qt::RoundJoin);
    borderPen.setDashPattern({5, 2, 1.2, 2});
    painter.setPen(borderPen);
    DrawLines(painter, projector, ReadGeoLines(gmtDir + "/borders.txt"), view);

    std::vector<GeoLine> shores = ReadGeoLines(gmtDir + "/coast.txt");
    std::vector<GeoLine> lakeShores;
    std::erase_if(shores, [&](const GeoLine& line) {
        if (line.level != 2 && line.level != 4) return false;
        lakeShores.push_back(line);
        return true;
    });
    painter.setPen(QPen(kRiver, 0.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    DrawLines(painter, projector, lakeShores, view);
    painter.setPen(QPen(kCoast, 1.1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    DrawLines(painter, projector, shores, view);

    LabelPlacer placer(QRectF(2, 2, size.widthPixels - 4, size.heightPixels - 4));
    const Extent extent = MapExtent(projector);
    DrawGraticule(painter, projector, extent, largeScale ? 0.5 : 1.0, placer);

    const QRectF inside(6, 6, size.widthPixels - 12, size.heightPixels - 12);
    const double latSpan = kMapCatalogue[static_cast<size_t>(mapIndex)].MapTopLat -
                           kMapCatalogue[static_cast<size_t>(mapIndex)].MapBottomLat;
    const int maxRank = largeScale || latSpan < 8 ? 3 : 2;

    // Symbols first, so that no name covers a town or an airfield.
    std::vector<const Town*> towns;
    for (const Town& town : kTowns) {
        if (town.rank > maxRank) continue;
        if (!inside.contains(projector.ToPixel(town.lat, town.lon))) continue;
        if (mask->LandShare(town.lat, town.lon) < 0.2) continue;
        towns.push_back(&town);
    }
    std::stable_sort(towns.begin(), towns.end(),
                     [](const Town* a, const Town* b) { return a->rank < b->rank; });
    std::vector<const Airfield*> shownAirfields;
    const double symbolScale = largeScale ? 1.0 : 0.7;
    for (const Airfield& airfield : *airfields) {
        const QPointF at = projector.ToPixel(airfield.lat, airfield.lon);
        if (!inside.contains(at)) continue;
        shownAirfields.push_back(&airfield);
        const double r = 6.5 * symbolScale;
        placer.Take(QRectF(at - QPointF(r, r), QSizeF(2 * r, 2 * r)));
    }
    for (const Town* town : towns) {
        if (town->rank > 2) continue;
        const QPointF at = projector.ToPixel(town->lat, town->lon);
        placer.Take(QRectF(at - QPointF(3.5, 3.5), QSizeF(7, 7)));
    }

    auto drawTown = [&](const Town& town) {
        const QPointF at = projector.ToPixel(town.lat, town.lon);
        const QFont font = town.rank == 1   ? ChartFont(15, true)
                           : town.rank == 2 ? ChartFont(13)
                                            : ChartFont(12);
        const QFontMetricsF metrics(font);
        const QString name =
            QString::fromUtf8(town.name.data(), static_cast<int>(town.name.size()));
        if (town.rank > 2 && !placer.IsFree(QRectF(at - QPointF(3.5, 3.5), QSizeF(7, 7)))) return;
        QRectF rect;
        const QSizeF size(metrics.horizontalAdvance(name), metrics.height());
        // The big towns may stand a little off their dot rather than go unnamed.
        bool named = placer.PlaceAround(at, size, 5, rect);
        for (double gap : {10.0, 16.0})
            if (!named && town.rank <= 2) named = placer.PlaceAround(at, size, gap, rect);
        if (!named && town.rank > 2) return;
        if (town.rank > 2) placer.Take(QRectF(at - QPointF(3.5, 3.5), QSizeF(7, 7)));
        painter.setPen(QPen(QColor(255, 255, 255, 160), 1.2));
        painter.setBrush(kInk);
        const double r = town.rank == 1 ? 3.4 : 2.6;
        painter.drawEllipse(at, r, r);
        if (named)
            DrawHaloText(painter, QPointF(rect.left(), rect.top() + metrics.ascent()), name, font,
                         kInk);
    };
    for (const Town* town : towns)
        if (town->rank <= 2) drawTown(*town);

    const QFont airfieldFont = ChartFont(largeScale ? 11 : 10, false, true);
    const QFontMetricsF airfieldMetrics(airfieldFont);
    for (const Airfield* airfield : shownAirfields) {
        DrawAirfieldSymbol(painter, projector, *airfield, symbolScale);
        QRectF rect;
        const QPointF at = projector.ToPixel(airfield->lat, airfield->lon);
        if (placer.PlaceAround(
                at,
                QSizeF(airfieldMetrics.horizontalAdvance(airfield->name), airfieldMetrics.height()),
                7 * symbolScale, rect))
            DrawHaloText(painter, QPointF(rect.left(), rect.top() + airfieldMetrics.ascent()),
                         airfield->name, airfieldFont, kAirfield);
    }

    DrawAreaNames(painter, projector, *mask, placer);
    for (const Town* town : towns)
        if (town->rank > 2) drawTown(*town);

    // A neat line round the sheet.
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(QColor(64, 58, 50), 1));
    painter.drawRect(QRect(0, 0, size.widthPixels - 1, size.heightPixels - 1));
    painter.end();

    if (!WriteBmp24(image, outPath)) {
        error = "cannot write " + outPath;
        return false;
    }
    return true;
}

}  // namespace tarvex::mapgen
