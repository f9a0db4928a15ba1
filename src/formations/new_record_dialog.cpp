#include "formations/new_record_dialog.h"

#include <algorithm>
#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "formations/formation_lists.h"
#include "refdata/reference_lookups.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/sounds.h"

namespace tarvex {

namespace {

constexpr float kGroupsTop = 1212;
constexpr float kPilotsTop = 4092;
// Pilot ids are spaced 20 apart in a file, whatever a pattern allows.
constexpr int kMostPilots = Mission::kPilotUpper;

bool ForGroups(const ListBox& list) {
    return list.Tag() == "Groups";
}

std::string CurrentRowText(const ListBox& list) {
    return list.List(list.ListIndex());
}

// The aircraft offered as names: the filter of the Formations tab, flyable ones only.
std::string PilotNameQuery(const std::string& filter) {
    const bool filtered = filter.find(" WHERE") != std::string::npos;
    return filter + (filtered ? " AND Add2Combo=True" : " WHERE Add2Combo=True") +
           " ORDER BY ShortName;";
}

void RefuseBeyondLimit(Editor& ed, const ListBox& list, bool groups) {
    frmNewRecord& dlg = ed.frmNewRecord;
    dlg.SetVisible(false);
    const std::string text =
        groups ? "Maximum Number of Allowed " + list.Tag() + " has been Reached."
               : "Maximum Number of Allowed " + list.Tag() + " has been Reached for [" +
                     ed.FrmMission.cmbFormPattern.Text() + "] Pattern.";
    ed.svc.dialogs.MsgBox({text, "Maximum Reached", MsgButtons::OK, MsgIcon::Exclamation});
    dlg.UnloadForm();
}

}  // namespace

void OpenNewRecord(Editor& ed, ListBox& list, bool editMode) {
    auto& frm = ed.FrmMission;
    FormationsState& st = ed.formations;
    const bool groups = ForGroups(list);
    // Pilots belong to a group.
    if (!groups && frm.lstGroupName.ListIndex() < 0) return;
    // Open for the other list, or again: it starts afresh.
    if (ed.frmNewRecord.Loaded()) ed.frmNewRecord.UnloadForm();
    st.NewRecordCaption = groups ? "Enter Group Name" : "Enter Pilot Name";
    st.NewRecordList = &list;
    st.NewRecordEditMode = editMode;
    if (groups) {
        frm.btnGroupName.SetEnabled(false);
        frm.btnPilotName.SetEnabled(false);
    }
    ed.frmNewRecord.Show();
}

void btnGroupName_Click(Editor& ed) {
    OpenNewRecord(ed, ed.FrmMission.lstGroupName, false);
}

void btnPilotName_Click(Editor& ed) {
    OpenNewRecord(ed, ed.FrmMission.lstPilotName, false);
}

void lstGroupName_DblClick(Editor& ed) {
    ListBox& list = ed.FrmMission.lstGroupName;
    if (list.ListIndex() >= 0) OpenNewRecord(ed, list, true);
}

void lstPilotName_DblClick(Editor& ed) {
    ListBox& list = ed.FrmMission.lstPilotName;
    if (list.ListIndex() >= 0) OpenNewRecord(ed, list, true);
}

void AddGenericGroup(Editor& ed) {
    FormationsState& st = ed.formations;
    TextBox& box = ed.frmNewRecord.txtNewRecord;
    const ListBox& list = *st.NewRecordList;
    st.GenericGroupNumber = static_cast<std::int16_t>(list.ListCount() + 1);
    box.SetText(st.NewRecordEditMode ? CurrentRowText(list)
                                     : "Group" + IntText(st.GenericGroupNumber));
    SetTextSelect(box);
}

void AddGenericPilot(Editor& ed) {
    FormationsState& st = ed.formations;
    frmNewRecord& dlg = ed.frmNewRecord;
    const ListBox& list = *st.NewRecordList;
    if (st.NewRecordEditMode) {
        dlg.txtNewRecord.SetText(CurrentRowText(list));
    } else {
        const int number = list.ListCount() + 1;
        const std::string stem =
            dlg.cmbPilotName.ListIndex() >= 0 ? dlg.cmbPilotName.Text() : "Pilot";
        dlg.txtNewRecord.SetText(stem + "_" + IntText(number));
        st.GenericPilotNumber = static_cast<std::int16_t>(number);
    }
    SetTextSelect(dlg.txtNewRecord);
}

namespace frm_new_record {

void Form_Load(Editor& ed) {
    FormationsState& st = ed.formations;
    frmNewRecord& dlg = ed.frmNewRecord;
    st.GenericGroupNumber = 0;
    st.GenericPilotNumber = 0;
    st.LastAddedRow = -1;
    st.NewRecordOpen = true;
    if (!st.NewRecordList) return;
    const ListBox& list = *st.NewRecordList;
    const bool groups = ForGroups(list);

    const MDIMissionED& main = ed.MDIMissionED;
    dlg.Move(main.Left() + (main.Width() - dlg.Width()) / 2,
             main.Top() + (groups ? kGroupsTop : kPilotsTop));
    dlg.SetCaption(st.NewRecordCaption);
    dlg.SetTopMost(true);

    dlg.txtNewRecord.SetText(CurrentRowText(list));
    dlg.SetVisible(true);
    dlg.txtNewRecord.SetFocus();

    dlg.cmbPilotName.SetVisible(!groups);
    if (groups) {
        AddGenericGroup(ed);
        return;
    }
    try {
        ed.db.FillListFromQuery(dlg.cmbPilotName, PilotNameQuery(ed.ACQuery));
    } catch (const AppError& e) {
        dlg.cmbPilotName.Clear();
        ReportLookupFailure(ed, e);
    }
    AddGenericPilot(ed);
}

void Form_Unload(Editor& ed) {
    FormationsState& st = ed.formations;
    auto& frm = ed.FrmMission;
    if (ListBox* list = st.NewRecordList; list && list->ListCount() > 0) {
        const int last = list->ListCount() - 1;
        SelectRow(*list, st.LastAddedRow < 0 ? 0 : std::min<int>(st.LastAddedRow, last));
    }
    st.NewRecordOpen = false;
    // However the window closes, the buttons that open it work again.
    frm.btnGroupName.SetEnabled(true);
    if (frm.lstGroupName.ListIndex() >= 0) frm.btnPilotName.SetEnabled(true);
}

void txtNewRecord_Click(Editor& ed) {
    // What the designer types stays: no more generic group names.
    ed.formations.GenericGroupNumber = 0;
}

void txtNewRecord_Change(Editor& ed) {
    const ListBox* list = ed.formations.NewRecordList;
    if (!list) return;
    frmNewRecord& dlg = ed.frmNewRecord;
    dlg.btnAddRecord.SetEnabled(true);
    dlg.btnReplace.SetEnabled(list->ListCount() > 0 &&
                              dlg.txtNewRecord.Text() != CurrentRowText(*list));
}

void cmbPilotName_Click(Editor& ed) {
    FormationsState& st = ed.formations;
    frmNewRecord& dlg = ed.frmNewRecord;
    auto& frm = ed.FrmMission;
    const int row = dlg.cmbPilotName.ListIndex();
    if (row < 0) return;
    st.GenericPilotNumber = static_cast<std::int16_t>(frm.lstPilotName.ListCount() + 1);
    dlg.txtNewRecord.SetText(dlg.cmbPilotName.List(row) + "_" + IntText(st.GenericPilotNumber));
    const int acRow = frm.cmbMovingType.FindItemData(dlg.cmbPilotName.ItemData(row));
    if (acRow >= 0) frm.cmbMovingType.SetListIndex(acRow);
}

void btnAddRecord_Click(Editor& ed) {
    FormationsState& st = ed.formations;
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    frmNewRecord& dlg = ed.frmNewRecord;
    if (!st.NewRecordList) return;
    ListBox& list = *st.NewRecordList;
    const bool groups = ForGroups(list);
    if (!groups && frm.lstGroupName.ListIndex() < 0) return;

    const int limit = groups ? Mission::kMaxGroups : doc.PatternMaxPilots;
    doc.PilotsAssigned = !groups;
    if (list.ListCount() == limit ||
        list.ListCount() >= (groups ? Mission::kMaxGroups : kMostPilots)) {
        RefuseBeyondLimit(ed, list, groups);
        return;
    }

    PlaySound(ed, ed.shell.sndClick);
    list.AddItem(dlg.txtNewRecord.Text());
    const int row = list.ListCount() - 1;
    if (st.LastAddedRow < 0) st.LastAddedRow = static_cast<std::int16_t>(row);
    SelectRow(list, row);
    SetTextSelect(dlg.txtNewRecord);
    dlg.btnReplace.SetEnabled(false);

    if (groups) {
        if (st.GenericGroupNumber > 0) AddGenericGroup(ed);
        return;
    }
    if (st.GenericPilotNumber >= 1) AddGenericPilot(ed);
    // The new pilot flies the aircraft shown, or the first one listed.
    const ComboBox& types = frm.cmbMovingType;
    const int acRow = std::max(types.ListIndex(), 0);
    if (acRow < types.ListCount())
        doc.PilotAC(doc.CurrentGroup, row) = static_cast<std::int16_t>(types.ItemData(acRow));
}

void btnReplace_Click(Editor& ed) {
    FormationsState& st = ed.formations;
    frmNewRecord& dlg = ed.frmNewRecord;
    PlaySound(ed, ed.shell.sndCheckbox);
    if (!st.NewRecordList) return;
    ListBox& list = *st.NewRecordList;
    const int row = list.ListIndex();
    if (row >= 0) {
        const std::string text = dlg.txtNewRecord.Text();
        list.SetList(row, text);
        if (!ForGroups(list) && row <= Mission::kPilotUpper)
            ed.doc.PilotName(ed.doc.CurrentGroup, row) = text;
    }
    dlg.btnReplace.SetEnabled(false);
}

void btnCancel_Click(Editor& ed) {
    if (ListBox* list = ed.formations.NewRecordList; list && list->ListCount() > 0)
        SelectRow(*list, list->ListCount() - 1);
    ed.FrmMission.btnGroupName.SetEnabled(true);
    ed.frmNewRecord.UnloadForm();
}

}  // namespace frm_new_record

}  // namespace tarvex
