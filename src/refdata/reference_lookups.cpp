#include "refdata/reference_lookups.h"

#include "common/number_text.h"
#include "document/coord_text.h"
#include "refdata/shared_lookup.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

void LoadAirfieldPoint(Editor& ed, std::string& latText, std::string& lonText, int row,
                       std::int16_t& typeID, std::int16_t& elevation, double& rot,
                       std::int16_t& rwyID) {
    SharedLookup rs(
        ed.db,
        "SELECT Recnum,RwyID,RwyLat,RwyLon,TypeID,Elevation,ROT FROM Airfields Where Recnum=" +
            IntText(row + 1));
    rs->MoveFirst();
    // Four decimals first, then cut to the nine characters of a waypoint.
    double lat = rs[2].Double();
    double lon = rs[3].Double();
    latText = DegreesToCoordText(lat, true, "00.0000");
    lonText = DegreesToCoordText(lon, false, "00.0000");
    NormalizeCoordText(latText, "00.00");
    NormalizeCoordText(lonText, "00.00");
    rwyID = rs[1].Integer();
    typeID = rs[4].Integer();
    elevation = rs[5].Integer();
    rot = rs[6].Double();
}

void ShowAircraftAttributes(Editor& ed, std::int32_t id) {
    SharedLookup rs(
        ed.db, "SELECT AcID,Family,Allegiance,Gun,Cannon,Rockets,Bombs FROM Aircraft Where ACID=" +
                   IntText(id));
    rs->MoveFirst();
    const std::int32_t acId = rs[0].Long();
    const std::int16_t family = rs[1].Integer();
    const std::int16_t allegiance = rs[2].Integer();
    auto& frm = ed.FrmMission;
    frm.lblGun.SetCaption(rs[3].Text());
    frm.lblCannon.SetCaption(rs[4].Text());
    frm.lblRockets.SetCaption(rs[5].Text());
    frm.lblBombs.SetCaption(rs[6].Text());
    ed.doc.AcID = acId;
    ed.doc.AcFamily = family;
    ed.doc.AcAllegiance = allegiance;
}

int FindAircraftRow(Editor& ed, std::int32_t id) {
    auto& frm = ed.FrmMission;
    const int row = frm.cmbMovingType.FindItemData(id);
    if (row < 0 && frm.lstPilotName.ListCount() > 0)
        ShowStatus(ed, "The AC for this pilot has been filtered from the Aircraft ComboBox. ",
                   kStatusWarning);
    return row;
}

}  // namespace tarvex
