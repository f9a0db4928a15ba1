#include "document/mission_export.h"

#include <string>

#include "common/encoding.h"
#include "common/number_text.h"
#include "common/text.h"
#include "common/atomic_file_writer.h"
#include "document/file_text.h"
#include "refdata/reference_lookups.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

// A number as the spreadsheet import expects it: a blank (or the sign), the digits, a blank.
std::string NumberField(std::int64_t value) {
    return (value < 0 ? "-" : " ") + IntText(value < 0 ? -value : value) + " ";
}

// The group header reaches from Group to Landing Runway; a group line leaves the pilot
// columns Unit to Heading empty.
constexpr int kPilotColumnsOfGroupLine = 13;

void WriteGroupsAndPilots(Editor& ed, FileText& out) {
    const Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    out.Line(
        "Group;Name;Formation Pattern;Path;Suspend;Directive;Unit;Name;Type;Skill;Level;Points;"
        "Damage;Player?;Ground?;Lat;Lon;Alt;Heading;Takeoff & Land Flag;Takeoff Runway;"
        "Landing Runway");
    for (int g = 0; g < frm.lstGroupName.ListCount(); ++g) {
        out.Line(NumberField(6000 + g) + ";" + frm.lstGroupName.List(g) + ";" +
                 NumberField(frm.cmbFormPattern.ItemData(doc.GrpPattern(g))) + ";" +
                 doc.GrpPaths(g) + ";" + NumberField(doc.GrpSuspended(g)) + ";" +
                 NumberField(frm.cmbDirective.ItemData(doc.GrpDirective(g))) + ";" +
                 std::string(kPilotColumnsOfGroupLine, ';') +
                 NumberField(frm.cmbTakeoffFlag.ItemData(doc.GrpTakeoffFlag(g))) + ";" +
                 NumberField(frm.cmbRunways.ItemData(doc.GrpTakeoffRwy(g))) + ";" +
                 NumberField(frm.cmbRunways.ItemData(doc.GrpLandingRwy(g))));
        for (int p = 0; p <= Mission::kPilotUpper && !doc.PilotName(g, p).empty(); ++p)
            out.Line(";;;;;;" + NumberField(1000 + 20 * g + p) + ";" + doc.PilotName(g, p) + ";" +
                     NumberField(doc.PilotAC(g, p)) + ";" +
                     NumberField(frm.cmbSkill.ItemData(doc.PilotSkill(g, p))) + ";" +
                     NumberField(frm.cmbLevel.ItemData(doc.PilotLevel(g, p))) + ";" +
                     NumberField(doc.PilotPoints(g, p)) + ";" +
                     NumberField(frm.cmbDamage.ItemData(doc.PilotDamage(g, p))) + ";" +
                     NumberField(doc.PilotIsPlayer(g, p)) + ";0");
        out.Line(" ");
    }
    out.Line(" ");
}

void WriteGroundLayouts(Editor& ed, FileText& out) {
    Mission& doc = ed.doc;
    const ListBox& added = ed.FrmMission.lstGUAdded;
    out.Line("Unit;Name;Type;Skill;Level;Points;Damage;Lat;Lon;Alt;Heading");
    for (int k = 0; k < added.ListCount(); ++k) {
        std::int32_t id = added.ItemData(k);
        std::int16_t elevation = 0;
        double rot = 0;
        if (id > 10000) {
            // The layout leaves the save at the runway's own two-decimal position, from which
            // later saves place its units.
            std::int16_t typeID = 0, rwyID = 0;
            LoadAirfieldPoint(ed, doc.GULat(k), doc.GULon(k), id / 10000 - 1, typeID, elevation,
                              rot, rwyID);
            id %= 10000;
        }
        out.Line(NumberField(2000 + 200 * k) + ";" + added.List(k) + ";" + NumberField(id) +
                 ";0;0;" + (doc.GUPoints(k) != 0 ? "1" : "0") + ";0;" + doc.GULat(k) + ";" +
                 doc.GULon(k) + ";" + NumberField(elevation) + ";0,0," + DoubleText(rot));
    }
    out.Line(" ");
}

void WritePaths(Editor& ed, FileText& out) {
    const Mission& doc = ed.doc;
    out.Line("W.P. ID;Map;Action;CAP?;Point;Lat;Lon;Alt;Speed;Name;Tip Text");
    for (int path = 0; path <= doc.HighestPath; ++path) {
        const int count = doc.PathPointCount(path);
        if (count <= 1) continue;
        out.Line(NumberField(5000 + path));
        // Speeds as the designer sees them, in the unit of the display.
        for (int point = 1; point < count; ++point)
            out.Line(";" + NumberField(doc.WPOnMap(path, point)) + ";" +
                     NumberField(doc.WPAction(path, point)) + ";" +
                     NumberField(doc.WPCap(path, point)) + ";" + IntText(point) + ";" +
                     doc.WPLat(path, point) + ";" + doc.WPLon(path, point) + ";" +
                     NumberField(doc.WPAlt(path, point)) + ";" +
                     NumberField(doc.WPSpeed(path, point)));
        out.Line(" ");
    }
}

}  // namespace

void ExportForSpreadsheet(Editor& ed) {
    const std::string& missionPath = ed.doc.MissionPath;
    AtomicFileWriter file(Left(missionPath, static_cast<long long>(missionPath.size()) - 3) +
                          "txt");
    FileText text;
    WriteGroupsAndPilots(ed, text);
    WriteGroundLayouts(ed, text);
    WritePaths(ed, text);
    file.Write(Utf8ToCp1252(text.Text()));
    file.Commit();
}

}  // namespace tarvex
