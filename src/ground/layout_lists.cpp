#include "ground/layout_lists.h"

#include <exception>

#include "common/number_text.h"
#include "maps/tab_selection.h"
#include "refdata/shared_lookup.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/sounds.h"

namespace tarvex {

void FillLayoutLists(Editor& ed) {
    auto& frm = ed.FrmMission;
    ed.db.FillListFromQuery(
        frm.cmbAirfieldLayout,
        "SELECT LayoutName,ID FROM GrndNames WHERE GUType > 1 ORDER BY LayoutName;");
    ed.db.FillListFromQuery(
        frm.lstGrnUnits, "SELECT LayoutName,ID FROM GrndNames WHERE GUType=1 ORDER BY LayoutName;");
}

void CheckLayoutDeletable(Editor& ed, CommandButton& button, std::int32_t itemData) {
    GroundState& g = ed.ground;
    try {
        SharedLookup lookup(ed.db, "SELECT IsDefault,GUType FROM GrndNames Where ID=" +
                                       IntText(LayoutIdFromItemData(itemData)));
        Recordset& rs = lookup.First();
        const bool isDefault = rs.Fields(0).Bool();
        const std::uint8_t type = rs.Fields(1).Byte();
        button.SetVisible(!isDefault);
        g.LayoutIsDefault = isDefault;
        g.LayoutType = type;
    } catch (const std::exception&) {
        button.SetVisible(false);
    }
}

void lstGrnUnits_MouseDown(Editor& ed, int, int, float, float) {
    auto& frm = ed.FrmMission;
    const int row = frm.lstGrnUnits.ListIndex();
    if (row >= 0) CheckLayoutDeletable(ed, frm.btnDelGUlst, frm.lstGrnUnits.ItemData(row));
    SelectTab(ed, frm.SSTab1.Tab());
    PlaySound(ed, ed.shell.sndClick);
}

}  // namespace tarvex
