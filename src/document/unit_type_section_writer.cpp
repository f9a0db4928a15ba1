#include "common/number_text.h"
#include "document/mission_writers.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void WriteUnitTypeSections(Editor& ed, FileText& out) {
    Mission& doc = ed.doc;
    ComboBox& sort = ed.FrmMission.cmbSort;
    int n = 0;

    sort.Clear();
    ForEachPilot(ed, [&](int g, int p) { sort.AddItem(IntText(doc.PilotAC(g, p))); });
    for (const std::int32_t id : DistinctSortedIds(sort)) {
        doc.AcID = id;
        ed.StepDetail = ": Searching MDB.Aircraft Table for Aircraft ID " + IntText(id);
        SharedLookup q(ed.db,
                       "SELECT AcID,ShortName,Family,Allegiance,Gun,Cannon,Rockets,Bombs FROM "
                       "Aircraft Where ACID=" +
                           IntText(id));
        q.rs.MoveFirst();
        out.Line("[unit_type." + IntText(n) + "]");
        out.Line("type_id=" + q.rs.Fields(0).Text());
        out.Line("unit_family=" + q.rs.Fields(2).Text());
        out.Line("name=" + q.rs.Fields(1).Text());
        out.Line("allegiance=" + q.rs.Fields(3).Text());
        out.Line("gun_ammo=" + q.rs.Fields(4).Text());
        out.Line("cannon_ammo=" + q.rs.Fields(5).Text());
        out.Line("rocket_load=" + q.rs.Fields(6).Text());
        out.Line("bomb_load=" + q.rs.Fields(7).Text());
        out.Line("addons=0000000000000000000000000000000");
        out.Line();
        ++n;
    }

    sort.Clear();
    const ListBox& added = ed.FrmMission.lstGUAdded;
    for (int k = 0; k < added.ListCount(); ++k) {
        const std::int32_t id = LayoutIdFromItemData(added.ItemData(k));
        ed.StepDetail = ": Searching MDB.GrndTypes Table for Unit ID " + IntText(id);
        SharedLookup q(ed.db, "SELECT ID,UnitType FROM GrndTypes Where ID=" + IntText(id));
        for (q.rs.MoveFirst(); !q.rs.Eof(); q.rs.MoveNext())
            sort.AddItem(q.rs.Fields(1).Text());
    }
    for (const std::int32_t type : DistinctSortedIds(sort)) {
        doc.AcID = type;
        ed.StepDetail = ": Searching [qryGroundUnitDetails] for UnitType: " + IntText(type);
        SharedLookup q(ed.db,
                       "SELECT UnitType,StationaryName,Allegiance FROM qryGroundUnitDetails Where "
                       "UnitType=" +
                           IntText(type) + " ORDER BY GrndTypes.ID");
        q.rs.MoveFirst();
        out.Line("[unit_type." + IntText(n) + "]");
        out.Line("type_id=" + q.rs.Fields(0).Text());
        out.Line("unit_family=4");
        out.Line("name=" + q.rs.Fields(1).Text());
        out.Line("allegiance=" + q.rs.Fields(2).Text());
        out.Line("gun_ammo=0");
        out.Line();
        ++n;
    }
}

}  // namespace tarvex
