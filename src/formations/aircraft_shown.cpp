#include "formations/aircraft_shown.h"

#include <algorithm>
#include <string>

#include "common/error.h"
#include "formations/formation_lists.h"
#include "formations/pilot_attributes.h"
#include "formations/set_color_timer.h"
#include "refdata/reference_lookups.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/status_strip.h"

namespace tarvex {

namespace {

constexpr Colour kMarkedOption = Rgb(255, 245, 220);
constexpr int kEnemyFighters = 1;
constexpr int kEnemyBuildings = 4;

std::string AircraftDescription(int allegiance, int family) {
    static const char* const allegiances[] = {"RAF", "Luftwaffe", "USAAF"};
    static const char* const families[] = {" Fighter", " Bomber", " Land Unit"};
    std::string text;
    if (allegiance >= 1 && allegiance <= 3) text += allegiances[allegiance - 1];
    if (family >= 1 && family <= 3) text += families[family - 1];
    return text;
}

// Auto Update: a fighter attacks enemy fighters, a bomber enemy buildings.
void FollowDirective(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    if (!ed.options.AutoUpdate || (doc.AcFamily != 1 && doc.AcFamily != 2)) return;
    const int wanted = doc.AcFamily == 1 ? kEnemyFighters : kEnemyBuildings;
    if (frm.cmbDirective.ListIndex() != wanted) StartDirectiveBlink(ed);
    frm.cmbDirective.SetListIndex(wanted);
    // The group's directive follows too, also while a selection fills the controls quietly.
    if (frm.lstGroupName.ListIndex() >= 0) doc.GrpDirective(doc.CurrentGroup) = wanted;
}

}  // namespace

void cmbMovingType_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    const int row = frm.cmbMovingType.ListIndex();
    if (row < 0) return;
    try {
        ShowAircraftAttributes(ed, frm.cmbMovingType.ItemData(row));
    } catch (const AppError& e) {
        ReportLookupFailure(ed, e);
        return;
    }
    if (!doc.NotResetting) return;

    for (int k = 0; k < 3; ++k) {
        frm.optAllegiance(k).SetBackColor(k + 1 == doc.AcAllegiance ? kMarkedOption
                                                                    : kSystemButtonFace);
        frm.OptFamily(k).SetBackColor(k + 1 == doc.AcFamily ? kMarkedOption : kSystemButtonFace);
    }
    const std::string description = AircraftDescription(doc.AcAllegiance, doc.AcFamily);
    FollowDirective(ed);
    ShowStatus(ed, description);
}

void cmbMovingType_UserPick(Editor& ed) {
    UpdateSelectedPilotsAC(ed);
}

void cmbMovingType_DropDown(Editor& ed) {
    ed.FrmMission.cmbMovingType.SetDropDownScale(std::max(0.0f, ed.options.ACListSize));
}

void UpdateSelectedPilotsAC(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    const int row = frm.cmbMovingType.ListIndex();
    if (row < 0) return;
    const auto id = static_cast<std::int16_t>(frm.cmbMovingType.ItemData(row));
    for (int p : frm.lstPilotName.SelectedRows())
        if (p <= Mission::kPilotUpper) doc.PilotAC(doc.CurrentGroup, p) = id;
    if (doc.GrpPilotIsAC(doc.CurrentGroup) == 1) NamePilotsAfterAC(ed);
}

}  // namespace tarvex
