#include "formations/aircraft_filter.h"

#include "common/error.h"
#include "common/number_text.h"
#include "formations/formation_lists.h"
#include "refdata/reference_lookups.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

namespace {

constexpr int kListAll = 3;

// The first set button of the row, or the last one.
int SetButton(ControlArray<OptionButton>& row) {
    int k = 0;
    while (k < kListAll && !row(k).Value())
        ++k;
    return k;
}

}  // namespace

void FilterAircraftList(Editor& ed, int allegianceIndex, int familyIndex) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    std::string query = "SELECT ShortName,ACId FROM Aircraft";
    const bool byAllegiance = allegianceIndex >= 0 && allegianceIndex < kListAll;
    const bool byFamily = familyIndex >= 0 && familyIndex < kListAll;
    if (byAllegiance) query += " WHERE Allegiance=" + IntText(allegianceIndex + 1);
    if (byAllegiance && byFamily) query += " And Family=" + IntText(familyIndex + 1);
    if (!byAllegiance && byFamily) query += " WHERE Family=" + IntText(familyIndex + 1);
    ed.ACQuery = query;

    try {
        ed.db.FillListFromQuery(frm.cmbMovingType,
                                ed.ACQuery + " ORDER BY Family ASC,ShortName Asc;");
    } catch (const AppError& e) {
        ReportLookupFailure(ed, e);
        return;
    }
    if (frm.lstPilotName.ListCount() == 0 || doc.CurrentPilot < 0 ||
        doc.CurrentPilot > Mission::kPilotUpper)
        return;
    const std::int16_t id = doc.PilotAC(doc.CurrentGroup, doc.CurrentPilot);
    if (id == Mission::kUnsetPilotValue) return;
    const int row = FindAircraftRow(ed, id);
    if (row >= 0) frm.cmbMovingType.SetListIndex(row);
}

void optAllegiance_Click(Editor& ed, int index) {
    FilterAircraftList(ed, index, SetButton(ed.FrmMission.OptFamily));
}

void OptFamily_Click(Editor& ed, int index) {
    FilterAircraftList(ed, SetButton(ed.FrmMission.optAllegiance), index);
}

void optAllegiance_MouseDown(Editor& ed, int, int, int, float, float) {
    PlaySound(ed, ed.shell.sndClick);
}

void OptFamily_MouseDown(Editor& ed, int, int, int, float, float) {
    PlaySound(ed, ed.shell.sndClick);
}

}  // namespace tarvex
