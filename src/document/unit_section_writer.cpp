#include "common/number_text.h"
#include "document/coord_text.h"
#include "document/mission_writers.h"
#include "refdata/reference_lookups.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

void WritePilotUnit(Editor& ed, FileText& out, int n, int g, int p) {
    const Mission& doc = ed.doc;
    out.Line("[unit." + IntText(n) + "]");
    out.Line("id=" + IntText(1000 + 20 * g + p));
    out.Line("type_id=" + IntText(doc.PilotAC(g, p)));
    out.Line("name=%name_string." + IntText(n) + "%");
    out.Line("position_lat=");
    out.Line("position_lon=");
    out.Line("position_alt=");
    out.Line(doc.PilotIsPlayer(g, p) != 0 ? "is_player_aircraft=1" : "position_pbh=");
    out.Line("speed=0");
    out.Line("skill=" + IntText(doc.PilotSkill(g, p)));
    out.Line("level=" + IntText(doc.PilotLevel(g, p)));
    out.Line("points=" + IntText(doc.PilotPoints(g, p)));
    // The reader closes a pilot's record at this line, so it stays last.
    out.Line("damage=" + IntText(doc.PilotDamage(g, p)));
    out.Line();
}

}  // namespace

void WriteUnitSections(Editor& ed, FileText& out) {
    Mission& doc = ed.doc;
    UnitPlacement& place = ed.placement;
    int n = 0;

    ForEachPilot(ed, [&](int g, int p) {
        WritePilotUnit(ed, out, n, g, p);
        if (doc.PilotIsPlayer(g, p) != 0) ed.saver.PlayerFormation = static_cast<std::int16_t>(g);
        ++n;
    });

    // The runway of the last airfield layout stands in the comment line of every layout
    // behind it too; the reader ignores it.
    std::int16_t rwyID = 0;
    const ListBox& added = ed.FrmMission.lstGUAdded;
    for (int k = 0; k < added.ListCount(); ++k) {
        const int baseId = 2000 + 60 * k;
        place.LayoutHeading = 0;
        std::int16_t elevation = 0;
        std::int32_t id = added.ItemData(k);
        if (id > 10000) {
            std::string lat, lon;
            std::int16_t typeID = 0;
            double rot = 0;
            LoadAirfieldPoint(ed, lat, lon, id / 10000 - 1, typeID, elevation, rot, rwyID);
            place.LayoutHeading = rot;
            id %= 10000;
        }
        place.SetLayoutFrame(doc.GULat(k), doc.GULon(k));

        ed.StepDetail = ": Searching MDB.GrndTypes Table for ID " + IntText(id);
        SharedLookup q(
            ed.db,
            "SELECT ID,UnitType,Points,Heading,XOffset,YOffset,DamageID FROM GrndTypes Where ID=" +
                IntText(id));
        q.rs.MoveFirst();
        const std::string layoutComment =
            "; Ground Layout=" + IntText(id) + "," + IntText(rwyID) + "," +
            FloatText(
                NormalizeHeading(static_cast<float>(doc.GURotation(k) + place.LayoutHeading)));
        const std::string altitude = "position_alt=" + Format(elevation, "###0.000");
        for (int u = 0; !q.rs.Eof(); ++u, ++n) {
            float x = static_cast<float>(q.rs.Fields(4).Double());
            float y = static_cast<float>(q.rs.Fields(5).Double());
            // The layout's rotation turns the offsets; its heading turns the frame as well as
            // each unit's own heading.
            ed.transform.SetFromRotation(doc.GURotation(k));
            ed.transform.ApplyLayoutTransform(x, y, doc.GUSpread(k), doc.GUShiftX(k),
                                              doc.GUShiftY(k));
            place.PlaceUnit(q.rs.Fields(3).Integer(), x, y);

            std::int32_t points = 0;
            if (doc.GUPoints(k) == 2) {
                points = 1;
            } else if (doc.GUPoints(k) == 1) {
                points = q.rs.Fields(2).Long();
            }
            out.Line("[unit." + IntText(n) + "]");
            out.Line("id=" + IntText(baseId + u));
            out.Line(layoutComment);
            out.Line("type_id=" + q.rs.Fields(1).Text());
            out.Line("name=%name_string." + IntText(n) + "%");
            out.Line("position_lat=" + place.UnitLat);
            out.Line("position_lon=" + place.UnitLon);
            out.Line(altitude);
            out.Line("position_pbh=0.0,0.0," + Format(place.UnitHeading, "###0.0"));
            out.Line("skill=0");
            out.Line("level=0");
            out.Line("points=" + IntText(points));
            out.Line("damage=" + q.rs.Fields(6).Text());
            out.Line();
            q.rs.MoveNext();
        }
    }
}

}  // namespace tarvex
