#pragma once
// An editor after start-up on a fresh reference database, with the Formations tab driven as a
// designer drives it: the "..." buttons, the Add and Close of frmNewRecord, row clicks.
#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "document/mission_reset.h"
#include "maps/tab_selection.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

namespace tarvex::testing {

class FormationsTest : public ::testing::Test {
  protected:
    TestEditor t;
    Editor& ed = t.OpenDatabase();
    FrmMission& frm = ed.FrmMission;
    frmNewRecord& dlg = ed.frmNewRecord;
    Mission& doc = ed.doc;

    void SetUp() override {
        LoadFrmMission(ed);
        ResetMission(ed);
        SelectTab(ed, kFormationsTab);
        t.dialogs.ClearRecord();
    }

    // Groups with the generic names, through the dialog.
    void AddGroups(int count) {
        frm.btnGroupName.UserClick();
        for (int i = 0; i < count; ++i)
            dlg.btnAddRecord.UserClick();
        dlg.btnCancel.UserClick();
    }
    // Pilots for the selected group, each named as given.
    void AddPilots(std::initializer_list<const char*> names) {
        frm.btnPilotName.UserClick();
        for (const char* name : names) {
            dlg.txtNewRecord.SetText(name);
            dlg.btnAddRecord.UserClick();
        }
        dlg.btnCancel.UserClick();
    }
    void SelectGroup(int row) { frm.lstGroupName.SetListIndex(row); }
    void SelectPilots(std::vector<int> rows) { frm.lstPilotName.SetSelection(rows, rows.back()); }
    // What the status strip shows, and in which colour.
    std::string Status() const {
        const auto& ops = ed.MDIMissionED.Picture1.Operations();
        return ops.empty() ? std::string() : ops.back().text;
    }
    Colour StatusColour() const {
        const auto& ops = ed.MDIMissionED.Picture1.Operations();
        return ops.empty() ? Colour{0} : ops.back().pen;
    }
};

}  // namespace tarvex::testing
