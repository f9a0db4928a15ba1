#include "common/number_text.h"
#include "document/mission_writers.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

void Entry(FileText& out, const std::string& key, const std::string& value) {
    out.Line("\"" + key + "\"=" + value);
}

}  // namespace

void WriteStringsSection(Editor& ed, FileText& out) {
    const Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;

    out.Line("[strings]");
    Entry(out, "title_string", frm.txtTitle.Text());
    Entry(out, "summary_string", frm.txtSummary.Text());
    Entry(out, "objective_string", frm.txtObjective.Text());
    Entry(out, "type_string", frm.txtType.Text());
    Entry(out, "tip_string", "God save the King!");
    Entry(out, "airfield_string", frm.lblAirfield.Caption());
    Entry(out, "date_string", frm.txtDate.Text());

    // The names in the order of the unit sections: pilots, then the units of each layout.
    int n = 0;
    ForEachPilot(ed, [&](int g, int p) {
        Entry(out, "name_string." + IntText(n), doc.PilotName(g, p));
        ++n;
    });
    const ListBox& added = frm.lstGUAdded;
    for (int k = 0; k < added.ListCount(); ++k) {
        const std::int32_t id = LayoutIdFromItemData(added.ItemData(k));
        ed.StepDetail = ": Searching MDB.GrndTypes Table for ID " + IntText(id);
        SharedLookup q(
            ed.db, "SELECT ID,Points,FullName FROM qryGroundUnitDetails Where ID=" + IntText(id));
        if (q.rs.Eof()) continue;
        for (q.rs.MoveFirst(); !q.rs.Eof(); q.rs.MoveNext(), ++n) {
            // The simulator marks the units that score.
            const bool scores = doc.GUPoints(k) > 0 && q.rs.Fields(1).Long() > 0;
            const std::string name = q.rs.Fields(2).Text();
            Entry(out, "name_string." + IntText(n), scores ? "*" + name + "*" : name);
        }
    }

    for (int path = 0; path <= doc.HighestPath; ++path) {
        const int count = doc.PathPointCount(path);
        if (count <= 1) continue;
        const std::string p = IntText(path);
        for (int point = 1; point < count; ++point) {
            const std::string i = IntText(point - 1);
            Entry(out, "waypointname." + i + "_string." + p, doc.WPName(path, point));
            Entry(out, "waypointtip." + i + "_string." + p, doc.WPTip(path, point));
        }
    }
}

}  // namespace tarvex
