#include "cli/mission_info.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>

#include "common/paths.h"
#include "document/coord_text.h"
#include "refdata/reference_database.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex::cli {

namespace {

std::string AircraftName(Editor& ed, int aircraftId) {
    try {
        Recordset rs = ed.db.theDB.OpenRecordset(
            "SELECT ShortName FROM Aircraft Where ACID=" + std::to_string(aircraftId), kSnapshot);
        return rs.Eof() ? std::string() : rs.Fields(0).Text();
    } catch (const std::exception&) {
        return {};
    }
}

// The length of a path along its saved waypoints; a point whose text can't be read ends
// the sum there rather than the command.
double PathLength(Editor& ed, int path) {
    const Mission& doc = ed.doc;
    double length = 0;
    try {
        for (int i = 2; i < doc.PathPointCount(path); ++i) {
            const float lat1 = static_cast<float>(CoordTextToDegrees(doc.WPLat(path, i - 1)));
            const float lon1 = static_cast<float>(CoordTextToDegrees(doc.WPLon(path, i - 1)));
            const float lat2 = static_cast<float>(CoordTextToDegrees(doc.WPLat(path, i)));
            const float lon2 = static_cast<float>(CoordTextToDegrees(doc.WPLon(path, i)));
            length += ed.projection.GreatCircleDistance(lat1, lon1, lat2, lon2);
        }
    } catch (const std::exception&) {
    }
    return length;
}

std::string Fixed(double value) {
    char buffer[32];
    std::snprintf(buffer, sizeof buffer, "%.1f", value);
    return buffer;
}

}  // namespace

std::string JsonText(const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
        const auto u = static_cast<unsigned char>(c);
        switch (c) {
            case '"':
                out += "\\\"";
                break;
            case '\\':
                out += "\\\\";
                break;
            case '\n':
                out += "\\n";
                break;
            case '\r':
                out += "\\r";
                break;
            case '\t':
                out += "\\t";
                break;
            default:
                if (u < 0x20) {
                    char buffer[8];
                    std::snprintf(buffer, sizeof buffer, "\\u%04x", u);
                    out += buffer;
                } else {
                    out += c;
                }
        }
    }
    return out + "\"";
}

MissionInfo CollectMissionInfo(Editor& ed) {
    const Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    MissionInfo info;
    info.file = doc.MissionPath;
    info.title = frm.txtTitle.Text();
    const int map = frm.cmbSelectMap.ListIndex();
    info.map = map >= 0 ? frm.cmbSelectMap.List(map) : frm.lblMap.Caption();
    info.date = frm.txtDate.Text();
    info.time = frm.txtTime.Text();
    info.distanceUnit = ed.options.Measurement ? "km" : "mi";

    const int groups = std::min(frm.lstGroupName.ListCount(), Mission::kMaxGroups);
    for (int g = 0; g < groups; ++g) {
        GroupInfo group;
        group.id = 6000 + g;
        group.name = frm.lstGroupName.List(g);
        const int pattern = doc.GrpPattern(g);
        if (pattern < frm.cmbFormPattern.ListCount())
            group.pattern = frm.cmbFormPattern.List(pattern);
        group.paths = doc.GrpPaths(g);
        for (int p = 0; p <= Mission::kPilotUpper && !doc.PilotName(g, p).empty(); ++p) {
            PilotInfo pilot;
            pilot.name = doc.PilotName(g, p);
            pilot.aircraftId = doc.PilotAC(g, p);
            pilot.aircraft = AircraftName(ed, pilot.aircraftId);
            pilot.player = doc.PilotIsPlayer(g, p) != 0;
            group.pilots.push_back(pilot);
        }
        info.groups.push_back(group);
    }

    for (int path = 0; path <= doc.HighestPath && path < Mission::kMaxPaths; ++path) {
        if (doc.PathPointCount(path) <= 1) continue;
        info.paths.push_back({5000 + path, doc.PathPointCount(path) - 1, PathLength(ed, path)});
    }

    const int layouts = std::min(frm.lstGUAdded.ListCount(), Mission::kMaxLayouts);
    for (int k = 0; k < layouts; ++k) {
        LayoutInfo layout;
        layout.name = frm.lstGUAdded.List(k);
        const std::int32_t data = frm.lstGUAdded.ItemData(k);
        layout.layoutId = LayoutIdFromItemData(data);
        layout.airfield = data > 10000;
        layout.lat = doc.GULat(k);
        layout.lon = doc.GULon(k);
        info.layouts.push_back(layout);
    }
    return info;
}

std::string FormatInfoText(const MissionInfo& info) {
    std::string out;
    out += "File:    " + info.file + "\n";
    out += "Title:   " + info.title + "\n";
    out += "Map:     " + info.map + "\n";
    out += "Date:    " + info.date + "\n";
    out += "Time:    " + info.time + "\n";
    out += "Groups:  " + std::to_string(info.groups.size()) + "\n";
    for (const GroupInfo& g : info.groups) {
        out += "  " + std::to_string(g.id) + " " + g.name + " (" + g.pattern + "), paths " +
               g.paths + "\n";
        for (const PilotInfo& p : g.pilots)
            out += "    " + p.name + ": " + (p.aircraft.empty() ? "?" : p.aircraft) + " (" +
                   std::to_string(p.aircraftId) + ")" + (p.player ? " [player]" : "") + "\n";
    }
    out += "Paths:   " + std::to_string(info.paths.size()) + "\n";
    for (const PathInfo& p : info.paths)
        out += "  " + std::to_string(p.id) + ": " + std::to_string(p.waypoints) + " waypoints, " +
               Fixed(p.length) + " " + info.distanceUnit + "\n";
    out += "Layouts: " + std::to_string(info.layouts.size()) + "\n";
    for (const LayoutInfo& l : info.layouts)
        out += "  " + l.name + " (layout " + std::to_string(l.layoutId) +
               (l.airfield ? ", airfield" : "") + ") at " + l.lat + " " + l.lon + "\n";
    return out;
}

std::string FormatInfoJson(const MissionInfo& info) {
    std::string out = "{\n";
    out += "  \"file\": " + JsonText(info.file) + ",\n";
    out += "  \"title\": " + JsonText(info.title) + ",\n";
    out += "  \"map\": " + JsonText(info.map) + ",\n";
    out += "  \"date\": " + JsonText(info.date) + ",\n";
    out += "  \"time\": " + JsonText(info.time) + ",\n";
    out += "  \"distanceUnit\": " + JsonText(info.distanceUnit) + ",\n";
    out += "  \"groups\": [";
    for (size_t i = 0; i < info.groups.size(); ++i) {
        const GroupInfo& g = info.groups[i];
        out += std::string(i ? "," : "") + "\n    {\"id\": " + std::to_string(g.id) +
               ", \"name\": " + JsonText(g.name) + ", \"pattern\": " + JsonText(g.pattern) +
               ", \"paths\": " + JsonText(g.paths) + ", \"pilots\": [";
        for (size_t k = 0; k < g.pilots.size(); ++k) {
            const PilotInfo& p = g.pilots[k];
            out += std::string(k ? ", " : "") + "{\"name\": " + JsonText(p.name) +
                   ", \"aircraftId\": " + std::to_string(p.aircraftId) +
                   ", \"aircraft\": " + JsonText(p.aircraft) +
                   ", \"player\": " + (p.player ? "true" : "false") + "}";
        }
        out += "]}";
    }
    out += info.groups.empty() ? "],\n" : "\n  ],\n";
    out += "  \"paths\": [";
    for (size_t i = 0; i < info.paths.size(); ++i) {
        const PathInfo& p = info.paths[i];
        out += std::string(i ? "," : "") + "\n    {\"id\": " + std::to_string(p.id) +
               ", \"waypoints\": " + std::to_string(p.waypoints) +
               ", \"length\": " + Fixed(p.length) + "}";
    }
    out += info.paths.empty() ? "],\n" : "\n  ],\n";
    out += "  \"layouts\": [";
    for (size_t i = 0; i < info.layouts.size(); ++i) {
        const LayoutInfo& l = info.layouts[i];
        out += std::string(i ? "," : "") + "\n    {\"name\": " + JsonText(l.name) +
               ", \"layoutId\": " + std::to_string(l.layoutId) + ", \"lat\": " + JsonText(l.lat) +
               ", \"lon\": " + JsonText(l.lon) +
               ", \"airfield\": " + (l.airfield ? "true" : "false") + "}";
    }
    out += info.layouts.empty() ? "]\n" : "\n  ]\n";
    return out + "}\n";
}

}  // namespace tarvex::cli
