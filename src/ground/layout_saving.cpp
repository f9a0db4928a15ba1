#include "ground/layout_saving.h"

#include <string>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "ground/layout_editor.h"
#include "ground/mission_layouts.h"
#include "refdata/shared_lookup.h"
#include "refdata/transaction.h"
#include "shell/editor.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex {

namespace {

// An airfield layout's item data carries its airfield above this.
constexpr std::int32_t kAirfieldItemBase = 10000;

// The name offered for the copy: the source's name, or "Airfield Layout", with the count of
// names made so far behind it.
std::string ProposedName(Editor& ed, int row) {
    const ListBox& added = ed.FrmMission.lstGUAdded;
    const std::string number = IntText(ed.ground.SaveCount + 1);
    if (added.ItemData(row) >= kAirfieldItemBase) return "Airfield Layout" + number;
    return Mid(added.List(row), 5) + number;
}

std::string AskForName(Editor& ed, const std::string& proposed) {
    const auto& main = ed.MDIMissionED;
    InputBoxRequest ask;
    ask.title = "Add New Ground Layout";
    ask.prompt = "Add a name for the new Ground Layout";
    ask.preset = proposed;
    ask.x = static_cast<int>(RoundHalfEven(main.Left() + main.Width() / 5));
    ask.y = static_cast<int>(RoundHalfEven(main.Top() + main.Height() / 2.9));
    return ed.svc.dialogs.InputBox(ask);
}

// The new layout and its units, in one transaction: a failure on the way leaves nothing.
// Returns the new layout's id.
std::int32_t WriteCopy(Editor& ed, const std::string& name, int row) {
    Database& db = ed.db.theDB;
    const GroundState& g = ed.ground;
    Transaction transaction(db);
    try {
        // The id is read at the moment of the insert, so that another copy of the program
        // can't take it in between.
        std::int32_t newId = 0;
        {
            SharedLookup next(ed.db, "qryNextGuID");
            newId = next.First().Fields("NextID").Long();
        }
        Recordset source = db.OpenRecordset(
            "SELECT UnitTotal,GUType FROM GrndNames Where ID=" + IntText(g.EditedLayoutID),
            kSnapshot);
        source.MoveFirst();
        Recordset names = db.OpenRecordset("GrndNames");
        names.AddNew();
        names.Fields("ID") = newId;
        names.Fields("LayoutName") = name;
        names.Fields("UnitTotal") = source.Fields("UnitTotal").Value();
        names.Fields("GUType") = source.Fields("GUType").Value();
        names.Update();
        names.Close();
        source.Close();

        Recordset units = db.OpenRecordset(
            "SELECT * FROM GrndTypes Where ID=" + IntText(g.EditedLayoutID), kSnapshot);
        Recordset copies = db.OpenRecordset("GrndTypes");
        const Mission& doc = ed.doc;
        units.MoveFirst();
        for (; !units.Eof(); units.MoveNext()) {
            float a = static_cast<float>(units.Fields(4).Double());
            float b = static_cast<float>(units.Fields(5).Double());
            ed.transform.ApplyLayoutTransform(a, b, doc.GUSpread(row), doc.GUShiftX(row),
                                              doc.GUShiftY(row));
            copies.AddNew();
            copies.Fields("ID") = newId;
            copies.Fields("UnitType") = units.Fields("UnitType").Value();
            copies.Fields("Points") = units.Fields("Points").Value();
            copies.Fields("Heading") = units.Fields("Heading").Value();
            copies.Fields("XOffset") = static_cast<double>(a);
            copies.Fields("YOffset") = static_cast<double>(b);
            copies.Update();
        }
        return newId;
    } catch (...) {
        transaction.Rollback();
        throw;
    }
}

}  // namespace

void btnSave_Click(Editor& ed) {
    auto& frm = ed.FrmMission;
    GroundState& g = ed.ground;
    if (!HasCurrentLayout(ed)) return;
    const int row = g.CurrentLayout;
    const bool dataWindow = frm.chkDataWindow.Value() == kChecked;
    if (dataWindow) ed.frmGUOffsets.UnloadForm();

    const std::string name = AskForName(ed, ProposedName(ed, row));
    if (!name.empty()) {
        g.SaveCount = static_cast<std::int16_t>(g.SaveCount + 1);
        std::int32_t newId = 0;
        try {
            newId = WriteCopy(ed, name, row);
        } catch (const AppError& error) {
            MessageBoxRequest box;
            box.text = "Error adding new Ground Layout record.\nError: " + IntText(error.Number());
            box.title = "Saving Ground Layout Error";
            box.icon = MsgIcon::Critical;
            ed.svc.dialogs.MsgBox(box);
            // The editor goes on with the layout it had.
            if (dataWindow) ed.frmGUOffsets.Show();
            return;
        }
        g.LayoutSaved = true;
        ListBox& added = frm.lstGUAdded;
        const std::int32_t oldData = added.ItemData(row);
        added.SetList(row, Left(added.List(row), 4) + name);
        // The name decides whether the row stays tied to its airfield.
        added.SetItemData(row, InStr(name, "Airfield") > 0
                                   ? oldData / kAirfieldItemBase * kAirfieldItemBase + newId
                                   : newId);
        g.EditedLayoutID = newId;
        // The copy is the designer's own: its offsets hold the turn, and its units can change.
        g.LayoutIsDefault = false;
        ApplyLayoutLock(ed, false);
        btnGUReset_Click(ed);
    }
    if (dataWindow) ed.frmGUOffsets.Show();
}

}  // namespace tarvex
