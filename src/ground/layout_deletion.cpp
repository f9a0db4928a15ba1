#include "ground/layout_deletion.h"

#include "common/error.h"
#include "common/number_text.h"
#include "ground/layout_lists.h"
#include "ground/mission_layouts.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

// Deletes the record; its GrndTypes rows go with it in the same statement.
void DeleteRecord(Editor& ed, std::int32_t id) {
    Recordset& rs = ed.db.theRS;
    try {
        rs = ed.db.theDB.OpenRecordset("SELECT IsDefault FROM GrndNames Where ID=" + IntText(id),
                                       kUpdatable);
        rs.MoveFirst();
        rs.Delete();
    } catch (...) {
        rs.Close();
        throw;
    }
    rs.Close();
}

}  // namespace

void DeleteLayoutRecord(Editor& ed, ListControl& list, std::int32_t itemData) {
    auto& frm = ed.FrmMission;
    MessageBoxRequest ask;
    ask.text = "Are you sure you want to delete this Ground Layout and all related records";
    ask.title = "Delete Ground Layout";
    ask.buttons = MsgButtons::YesNo;
    ask.icon = MsgIcon::Question;
    if (ed.svc.dialogs.MsgBox(ask) != MsgAnswer::Yes) return;

    const std::int32_t id = LayoutIdFromItemData(itemData);
    try {
        DeleteRecord(ed, id);
    } catch (const AppError& e) {
        MessageBoxRequest box;
        box.text = "Error Deleting the Ground Layout.\nError # " + IntText(e.Number());
        box.title = "Delete Error";
        box.icon = MsgIcon::Critical;
        ed.svc.dialogs.MsgBox(box);
        return;
    }

    if (list.ListIndex() >= 0) list.RemoveItem(list.ListIndex());
    ListBox& added = frm.lstGUAdded;
    // A removal moves the next row up into the same place, which is looked at again.
    for (int row = 0; row < added.ListCount();) {
        if (LayoutIdFromItemData(added.ItemData(row)) == id) {
            added.SetListIndex(row);
            RemoveGroundLayout(ed);
        } else {
            ++row;
        }
    }
    frm.txtAddedGU.SetEnabled(false);
}

void btnDelGUlst_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    ListBox& list = frm.lstGrnUnits;
    // Only a layout that didn't come with the database shows the button.
    if (!frm.btnDelGUlst.Visible() || list.ListIndex() < 0) return;
    DeleteLayoutRecord(ed, list, list.ItemData(list.ListIndex()));
    if (list.ListCount() > 0) {
        list.SetListIndex(0);
        CheckLayoutDeletable(ed, frm.btnDelGUlst, list.ItemData(0));
    } else {
        frm.btnDelGUlst.SetVisible(false);
    }
}

void btnDelGUcmb_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    ComboBox& combo = frm.cmbAirfieldLayout;
    if (!frm.btnDelGUcmb.Visible() || combo.ListIndex() < 0) return;
    DeleteLayoutRecord(ed, combo, combo.ItemData(combo.ListIndex()));
    frm.btnDelGUcmb.SetVisible(false);
}

}  // namespace tarvex
