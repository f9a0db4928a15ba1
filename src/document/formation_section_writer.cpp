#include "common/number_text.h"
#include "document/mission_writers.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void WriteFormationSections(Editor& ed, FileText& out) {
    const Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    const int groups = frm.lstGroupName.ListCount();

    for (int g = 0; g < groups; ++g) {
        out.Line("[formation." + IntText(g) + "]");
        out.Line(";Name=" + frm.lstGroupName.List(g));
        out.Line(";Formation Pattern=" + IntText(doc.GrpPattern(g)));
        out.Line("id=" + IntText(6000 + g));
        out.Line("type=air");
        // The reader applies the runway lines to these paths, so they come first.
        out.Line("waypoint_path_id=" + doc.GrpPaths(g));
        out.Line("suspended=" + IntText(doc.GrpSuspended(g)));
        out.Line("directive=" + IntText(doc.GrpDirective(g)));

        const std::int32_t flag = frm.cmbTakeoffFlag.ItemData(doc.GrpTakeoffFlag(g));
        if (TakesOff(flag))
            out.Line("takeoff_runway_id=" + IntText(RunwayIdOfRow(ed, doc.GrpTakeoffRwy(g))));
        if (Lands(flag))
            out.Line("landing_runway_id=" + IntText(RunwayIdOfRow(ed, doc.GrpLandingRwy(g))));
        out.Line("takeoff_land_flag=" + IntText(flag));
        if (g == ed.saver.PlayerFormation) out.Line("players_formation=1");

        // One station of the pattern per pilot, as far as the pattern has stations.
        const std::int32_t pattern = frm.cmbFormPattern.ItemData(doc.GrpPattern(g));
        ed.StepDetail = ": Searching MDB.frmPatterns Table for Formation ID " + IntText(pattern);
        SharedLookup q(
            ed.db, "SELECT frmID, frmX,frmY,frmZ FROM frmPatterns Where frmID=" + IntText(pattern));
        q.rs.MoveFirst();
        for (int i = 0; !q.rs.Eof() && i <= Mission::kPilotUpper && !doc.PilotName(g, i).empty();
             ++i) {
            out.Line("unit_id_position." + IntText(i) + "=" + IntText(1000 + 20 * g + i) + "," +
                     IntText(doc.PilotLevel(g, i)) + "," + q.rs.Fields(1).Text() + ".0," +
                     q.rs.Fields(2).Text() + ".0," + q.rs.Fields(3).Text() + ".0");
            q.rs.MoveNext();
        }
        out.Line();
    }

    const int layouts = frm.lstGUAdded.ListCount();
    if (layouts == 0) return;
    out.Line("[formation." + IntText(groups) + "]");
    out.Line("id=6999");
    out.Line("type=ground");
    out.Line("waypoint_path_id=-1");
    // Each layout is named by the id of its first unit.
    for (int k = 0; k < layouts; ++k)
        out.Line("unit_id_position." + IntText(k) + "=" + IntText(2000 + 60 * k));
    out.Line();
}

}  // namespace tarvex
