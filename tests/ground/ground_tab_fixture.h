#pragma once
// The Ground units tab on a fresh reference database, with the default map bitmaps, driven
// through its controls as a designer drives it.
#include <gtest/gtest.h>

#include <string>

#include "document/mission_reset.h"
#include "ground/layout_lists.h"
#include "maps/tab_selection.h"
#include "shell/forms/frm_mission.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

namespace tarvex::testing {

class GroundTab : public ::testing::Test {
  protected:
    void SetUp() override {
        ed.options.MapPath = std::string(TARVEX_SOURCE_DIR) + "/data/maps";
        ed.projection.SetDistanceUnits(true);
        LoadFrmMission(ed);
        ResetMission(ed);
        ed.options.ShowDataWin = false;
        SelectTab(ed, kGroundUnitsTab);
    }

    // A left click on the map: press and release.
    void Click(float x, float y, int button = kLeftButton) {
        map.RaiseMouseMove(0, 0, x, y);
        map.RaiseMouseDown(button, 0, x, y);
        map.RaiseMouseUp(button, 0, x, y);
    }

    // Places the landscape layout of that name where the map is clicked.
    void Place(const std::string& name, float x, float y) {
        const int row = frm.lstGrnUnits.FindRow(name);
        ASSERT_GE(row, 0) << name;
        frm.lstGrnUnits.SetListIndex(row);
        Click(x, y);
    }

    // Places an airfield layout on airfield row `airfield` through the two combos.
    void PlaceOnAirfield(const std::string& layout, int airfield) {
        frm.cmbGrndAirfield.SetListIndex(airfield);
        frm.cmbAirfieldLayout.SetListIndex(-1);
        const int row = frm.cmbAirfieldLayout.FindRow(layout);
        ASSERT_GE(row, 0) << layout;
        frm.cmbAirfieldLayout.SetListIndex(row);
    }

    // A layout of the designer's own (not a default one), listed in the tab's lists; `units`
    // are "(UnitType,XOffset,YOffset)" rows, possibly none.
    void AddLayout(int id, const std::string& name, int guType = 1, const std::string& units = "") {
        ed.db.theDB.Execute(
            "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES (" +
            std::to_string(id) + ",'" + name + "',0," + "0," + std::to_string(guType) + ");");
        if (!units.empty())
            ed.db.theDB.Execute("INSERT INTO GrndTypes (ID,UnitType,XOffset,YOffset) SELECT " +
                                std::to_string(id) + ",column1,column2,column3 FROM (VALUES " +
                                units + ");");
        FillLayoutLists(ed);
    }

    // Types the text into txtGULatLon key by key, as the skin reports typing.
    void Type(TextBox& box, const std::string& text) {
        int key = 'A';
        box.RaiseKeyDown(key, 0);
        box.SetText(text);
    }

    TestEditor t;
    Editor& ed = t.OpenDatabase();
    FrmMission& frm = ed.FrmMission;
    PictureSurface& map = frm.mapGroundUnits;
    Mission& doc = ed.doc;
};

}  // namespace tarvex::testing
