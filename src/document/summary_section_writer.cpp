#include "common/number_text.h"
#include "common/numbers.h"
#include "document/mission_writers.h"
#include "maps/tab_selection.h"
#include "refdata/reference_lookups.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void WriteSummarySection(Editor& ed, FileText& out) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;

    // Brings lblAirfield (written in [strings]) and the weather rows up to date.
    ShowSummaryTab(ed);

    const std::string time = frm.txtTime.Text().empty() ? "10:00" : frm.txtTime.Text();
    const std::int16_t required =
        frm.txtPctReqd.Text().empty() ? std::int16_t{50} : ValInt(frm.txtPctReqd.Text());

    ShowAircraftAttributes(ed, doc.PilotAC(doc.PlayerGroup, doc.PlayerPilot));

    ed.StepDetail = ": Accessing MDB.Maps ";
    std::string name, top, left, bottom, right;
    {
        SharedLookup q(ed.db, "SELECT Recnum,Name,Top,Left,Bottom,Right FROM Maps Where Recnum=" +
                                  IntText(frm.cmbSelectMap.ListIndex() + 1));
        q.rs.MoveFirst();
        name = q.rs.Fields(1).Text();
        top = q.rs.Fields(2).Text();
        left = q.rs.Fields(3).Text();
        bottom = q.rs.Fields(4).Text();
        right = q.rs.Fields(5).Text();
    }

    out.Line("[mission]");
    out.Line("version=0.1");
    out.Line("title=%title_string%");
    out.Line("situation=");
    out.Line("summary=%summary_string%");
    out.Line("objective=%objective_string%");
    out.Line("type=%type_string%");
    out.Line("tip=%tip_string%");
    out.Line("allegiance=" + IntText(doc.AcAllegiance));
    out.Line("player_aircraft=" + IntText(doc.AcID));
    out.Line("allowed_aircraft=" + IntText(doc.AcID));
    out.Line("airfield=%airfield_string%");
    out.Line("date=%date_string%");
    out.Line("time=" + time);
    out.Line("map=" + name);
    out.Line("map_1=" + top);
    out.Line("map_left=" + left);
    out.Line("map_bottom=" + bottom);
    out.Line("map_right=" + right);
    out.Line("cloud=" + IntText(frm.cmbClouds.ListIndex()));
    out.Line("visibility=" + IntText(frm.cmbVisibility.ListIndex()));
    out.Line("wind=" + IntText(frm.cmbWinds.ListIndex()));
    out.Line("pre_video=");
    out.Line("post_video=");
    out.Line("required_success=" + IntText(required));
    out.Line();
}

}  // namespace tarvex
