#include "formations/formation_patterns.h"

#include "common/error.h"
#include "common/number_text.h"
#include "formations/formation_lists.h"
#include "formations/set_color_timer.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

void ReadPatternLimit(Editor& ed, int row) {
    const ComboBox& patterns = ed.FrmMission.cmbFormPattern;
    if (row < 0 || row >= patterns.ListCount()) return;
    Recordset& rs = ed.db.theRS;
    try {
        rs = ed.db.theDB.OpenRecordset(
            "SELECT frmID,TotalUnits FROM frmNames Where frmID=" + IntText(patterns.ItemData(row)),
            kSnapshot);
        rs.MoveFirst();
        const std::int16_t limit = rs.Fields(1).Integer();
        rs.Close();
        ed.doc.PatternMaxPilots = limit;
    } catch (const AppError& e) {
        rs.Close();
        ReportLookupFailure(ed, e);
    }
}

void ShowPatternCapacity(Editor& ed) {
    ShowTimedWarning(ed, "Formation Pattern [" + ed.FrmMission.cmbFormPattern.Text() +
                             "] can contain a maximum of [" + IntText(ed.doc.PatternMaxPilots) +
                             "] Pilots.");
}

void cmbFormPattern_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    Mission& doc = ed.doc;
    FormationsState& st = ed.formations;
    const int row = frm.cmbFormPattern.ListIndex();
    if (!doc.EventsOn || row < 0 || frm.lstGroupName.ListIndex() < 0) return;

    doc.GrpPattern(doc.CurrentGroup) = static_cast<std::uint8_t>(row);
    ReadPatternLimit(ed, row);
    const int pilots = frm.lstPilotName.ListCount();
    const int limit = doc.PatternMaxPilots;
    if (pilots > limit && !st.ReturningToPreviousPattern) {
        ed.svc.dialogs.MsgBox({"WARNING: Only " + IntText(limit) + " Pilots may be assigned to [" +
                                   frm.cmbFormPattern.Text() + "] Pattern.\n" +
                                   "The Formation Pattern Setting will be reset to [" +
                                   frm.cmbFormPattern.List(st.PreviousPattern) + "]. Delete " +
                                   IntText(pilots - limit) + " Pilots and try again.",
                               "*** Maximum Exceeded ***", MsgButtons::OK, MsgIcon::Exclamation});
        // The return runs this again for the previous row, which may be over its limit too
        // (a loaded group): that run asks nothing more.
        st.ReturningToPreviousPattern = true;
        try {
            frm.cmbFormPattern.SetListIndex(st.PreviousPattern);
        } catch (...) {
            st.ReturningToPreviousPattern = false;
            throw;
        }
        st.ReturningToPreviousPattern = false;
        return;
    }
    if (pilots < limit) ShowPatternCapacity(ed);
    st.PreviousPattern = static_cast<std::int16_t>(row);
}

}  // namespace tarvex
