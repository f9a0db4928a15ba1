#include "shell/mission_form_load.h"

#include <functional>

#include "common/paths.h"
#include "ground/layout_lists.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

void IgnoringFailure(const std::function<void()>& step) {
    try {
        step();
    } catch (const std::exception&) {
        // The window comes up without what this step would have shown.
    }
}

}  // namespace

void LoadFrmMission(Editor& ed) {
    auto& frm = ed.FrmMission;
    IgnoringFailure(
        [&] { frm.picSummaryTab.LoadPicture(JoinPath(ed.options.MapPath, "Summary.bmp")); });
    for (ComboBox* combo :
         {&frm.cmbStartAtRwy, &frm.cmbRunways, &frm.cmbEndAtRwy, &frm.cmbGrndAirfield})
        IgnoringFailure([&] {
            ed.db.FillListFromQuery(*combo, "SELECT Name,RwyID FROM Airfields ORDER BY Name;");
        });
    ed.ACQuery = "SELECT ShortName,ACId FROM Aircraft";
    IgnoringFailure([&] {
        ed.db.FillListFromQuery(
            frm.cmbMovingType,
            "SELECT ShortName,ACId FROM Aircraft ORDER BY Family ASC,ShortName Asc;");
    });
    IgnoringFailure([&] { FillLayoutLists(ed); });
    // No layout of the mission is selected yet.
    frm.txtAddedGU.SetText("");
    frm.txtGULatLon.SetText("");
    frm.btnDeleteGrndUnit.SetVisible(false);
    frm.btnDelGUlst.SetVisible(false);
    frm.btnDelGUcmb.SetVisible(false);
    for (auto& option : frm.optGndHasPoints)
        option.SetEnabled(false);
    if (ed.options.ShowDataWin) frm.chkDataWindow.SetValue(1);
}

}  // namespace tarvex
