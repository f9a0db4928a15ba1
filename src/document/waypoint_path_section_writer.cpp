#include <cmath>

#include "common/number_text.h"
#include "document/mission_writers.h"

namespace tarvex {

std::int32_t FileSpeed(std::int16_t speed, bool metric) {
    if (metric || speed < 1) return speed;
    // Knots to km/h, rounded as the unit switch rounds: through a 32-bit float, then cut.
    const float kmh = static_cast<float>(speed * 1.8519873 + 0.5);
    return static_cast<std::int32_t>(std::trunc(kmh));
}

void WriteWaypointPathSections(Editor& ed, FileText& out) {
    const Mission& doc = ed.doc;
    const bool metric = ed.options.Measurement;
    for (int path = 0; path <= doc.HighestPath; ++path) {
        const int count = doc.PathPointCount(path);
        if (count <= 1) continue;
        const std::string n = IntText(path);
        out.Line("[waypoint_path." + n + "]");
        out.Line("id=" + IntText(5000 + path));
        // Point 0 and the point at the count are the Start and End references: not saved.
        for (int point = 1; point < count; ++point) {
            const std::string i = IntText(point - 1);
            out.Line("waypoint." + i + "=" + IntText(doc.WPAction(path, point)) + "," +
                     IntText(doc.WPOnMap(path, point)) + "," + doc.WPLat(path, point) + "," +
                     doc.WPLon(path, point) + "," + IntText(doc.WPAlt(path, point)) + ",,,," +
                     IntText(FileSpeed(doc.WPSpeed(path, point), metric)) + ",," +
                     IntText(doc.WPCap(path, point)));
            out.Line("waypointname." + i + "=%waypointname." + i + "_string." + n + "%");
            out.Line("waypointtip." + i + "=%waypointtip." + i + "_string." + n + "%");
        }
        out.Line();
    }
}

}  // namespace tarvex
