#include "common/number_text.h"
#include "document/coord_text.h"
#include "document/mission_writers.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void WriteRunwaySections(Editor& ed, FileText& out) {
    const Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    ComboBox& sort = frm.cmbSort;

    sort.Clear();
    for (int g = 0; g < frm.lstGroupName.ListCount(); ++g) {
        const std::int32_t flag = frm.cmbTakeoffFlag.ItemData(doc.GrpTakeoffFlag(g));
        if (TakesOff(flag)) sort.AddItem(IntText(RunwayIdOfRow(ed, doc.GrpTakeoffRwy(g))));
        if (Lands(flag)) sort.AddItem(IntText(RunwayIdOfRow(ed, doc.GrpLandingRwy(g))));
    }

    int n = 0;
    for (const std::int32_t id : DistinctSortedIds(sort)) {
        ed.StepDetail = ": Searching MDB.Airfields Table for RwyID " + IntText(id);
        SharedLookup q(ed.db,
                       "SELECT RwyID,RwyLat,RwyLon,TypeID,Elevation,ROT,Units FROM qryAirFields "
                       "Where RwyID=" +
                           IntText(id));
        q.rs.MoveFirst();
        // Four decimals first, then cut to two, as every runway position is written.
        double lat = q.rs.Fields(1).Double();
        double lon = q.rs.Fields(2).Double();
        std::string latText = DegreesToCoordText(lat, true, "00.0000");
        std::string lonText = DegreesToCoordText(lon, false, "00.0000");
        NormalizeCoordText(latText, "00.00");
        NormalizeCoordText(lonText, "00.00");

        out.Line("[runway." + IntText(n) + "]");
        out.Line("id=" + q.rs.Fields(0).Text());
        out.Line("heading=" + q.rs.Fields(5).Text());
        out.Line("units_across=" + q.rs.Fields(6).Text());
        // The reader matches the runway against the layouts at base_lon, so base_lat first.
        out.Line("base_lat=" + latText);
        out.Line("base_lon=" + lonText);
        out.Line("base_alt=" + q.rs.Fields(4).Text());
        out.Line("takeoff_start_pos=-600,0");
        out.Line("takeoff_stop_pos=1600,200");
        out.Line("landing_start_pos=5000,350");
        out.Line("landing_touchdown_pos=600,0");
        out.Line("landing_stop_pos=-250,0");
        out.Line();
        ++n;
    }
}

}  // namespace tarvex
