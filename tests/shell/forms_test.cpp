#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "shell/forms/frm_about.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_grnd_names.h"
#include "shell/forms/frm_gu_offsets.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/frm_msg_screen.h"
#include "shell/forms/frm_new_record.h"
#include "shell/forms/frm_splash.h"
#include "shell/forms/frm_tbl_missions.h"
#include "shell/forms/mdi_mission_ed.h"
#include "support/test_editor.h"

namespace tarvex {
namespace {

// The forms of a fresh editor.
struct AllForms {
    testing::TestEditor t;
    MDIMissionED& mdi = t->MDIMissionED;
    FrmMission& mission = t->FrmMission;
    frmNewRecord& newRecord = t->frmNewRecord;
    frmAircraft& aircraft = t->frmAircraft;
    frmGrndNames& grndNames = t->frmGrndNames;
    frmGUOffsets& offsets = t->frmGUOffsets;
    frmtblMissions& missions = t->frmtblMissions;
    frmMsgScreen& msgScreen = t->frmMsgScreen;
    frmSplash& splash = t->frmSplash;
    frmAbout& about = t->frmAbout;

    std::vector<Form*> All() {
        return {&mdi,     &mission,  &newRecord, &aircraft, &grndNames,
                &offsets, &missions, &msgScreen, &splash,   &about};
    }
};

// Every name of a form, "name(first..last)" for an array.
const std::vector<std::pair<const char*, const char*>> kInventory = {
    {"MDIMissionED",
     "Picture1 mnuFile mnuNew mnuOpen mnuFileSpc1 mnuSave mnuSaveAs mnudummy(0..4) mnuFileSpc3 "
     "mnuExit mnuEdit mnuCut mnuCopy mnuPaste editb1 mnuDel mnuClrPoints mnuClrMap mnuView "
     "mnuSummary mnuFormations mnuGroundUnits mnuWaypoints mnuViewSpace mnuAddAC mnuGULayout "
     "mnuVspace mnuMissions mnuStationary mnuTools mnuCompact mnuMissDetail mnuspace mnuoptions "
     "mnuACList mnuACListNorm mnuACListInc mnuACListDec mnuAutoUpdate mnuDist mnuSound mnuSndOn "
     "mnuIncVol mnuDecVol mnuTooltips mnuWindows mnuHelp mnuAbout"},
    {"FrmMission",
     "SSTab1 CommonDialog1 tmrSetColor cmbSort txtTitle txtSummary txtObjective txtType txtTip "
     "txtPctReqd txtTime txtDate cmbClouds cmbVisibility cmbWinds cmbSelectMap lblAirfield lblAC "
     "lblMap picSummaryTab fraGroupInfo lstGroupName btnGroupName btnDeleteGroup lblGrpID "
     "lblGroupID lblWPStrData lblPattern cmbFormPattern lblDirective cmbDirective lblTOandLand "
     "cmbTakeoffFlag chkSuspend btnSetWaypoints btnGrpView fraPilotInfo lstPilotName "
     "btnPilotName btnDeletePilot chkPilotIsAC chkPlayer chkPoints lblSkill cmbSkill lblLevel "
     "cmbLevel lblDamage cmbDamage lblACType cmbMovingType fraAllegianceType optAllegiance(0..3) "
     "fraFamilyType OptFamily(0..3) lblGunTitle lblGun lblCannonTitle lblCannon lblRocketTitle "
     "lblRockets lblBombTitle lblBombs fraWPSelect chkWP(0..15) txtWPPct(0..15) btnPathClear "
     "btnWPClose fraGrpView cmbGroups updwnGroupView lblGrpWP fraAirfields lblStartRwy "
     "cmbStartAtRwy lblEndRwy cmbEndAtRwy lblFlyBy cmbRunways mapWayPoints fraPathColor "
     "optColor(0..15) lblPath(0..15) chkOverlay(0..15) fraWaypoints lstPoints lstPointsExtended "
     "txtPoint txtAlt txtSpeed lblSpeed chkWPOptions(0..2) btnClrPoint btnWPNames btnWPTips "
     "mapGroundUnits lstGrnUnits btnDelGUlst cmbGrndAirfield cmbAirfieldLayout btnDelGUcmb "
     "lstGUAdded btnDeleteGrndUnit txtAddedGU txtGULatLon optGndHasPoints(0..2) cmbGUMap "
     "fraGUPos btnXPos btnYPos btnRotate2 lblRotate2 btnSpread lblSpread btnZoom btnCursor "
     "btnRotate90 btnGUReset btnSave btnGUClose chkStationary chkDataWindow btnX btnY XLine "
     "YLine picAC fraStationary lstStationary"},
    {"frmNewRecord", "txtNewRecord cmbPilotName btnAddRecord btnReplace btnCancel"},
    {"frmAircraft",
     "datPrimaryRS grdDataGrid picButtons cmdAdd cmdDelete cmdUpdate cmdClose Label2 cmbAirforce "
     "Label1 cmbUnitRole "
     "btnBrowse theFamList theAllyList"},
    {"frmGrndNames",
     "datPrimaryRS datSecondaryRS grdDataGrid fraLayoutView cmbGULayoutName Label1 lblUnitCount "
     "fraLayoutAdd txtLayoutName txtLayoutID "
     "txtLayoutTotal lstStationaryName txtStationaryName theDamageList picButtons cmdAdd "
     "cmdUpdate cmdDeleteLayout cmdDeleteUnits cmdClose"},
    {"frmGUOffsets",
     "dataGUOffsets dbgGUOffsets Picture1 btnOffsetEdit btnDelGU lblUpGU lblDownGU"},
    {"frmtblMissions",
     "datPrimaryRS grdDataGrid lblType lblSummary lblObjective lblDate lblTime lblReqd lblClouds "
     "lblWind lblVis lblAlly "
     "optAllegiance(0..3) cmdLoad btnDelete cmdClose"},
    {"frmMsgScreen", "lblMessage"},
    {"frmSplash", "picSplash Timer1 lblVersion"},
    {"frmAbout", "picAbout picOK"},
};

TEST(Forms, EveryNamedControlIsFoundUnderItsName) {
    AllForms forms;
    for (const auto& [formName, names] : kInventory) {
        Form* form = nullptr;
        for (Form* f : forms.All())
            if (f->Name() == formName) form = f;
        ASSERT_NE(form, nullptr) << formName;
        std::istringstream words(names);
        std::string word;
        while (words >> word) {
            const auto open = word.find('(');
            if (open == std::string::npos) {
                Component* c = form->FindComponent(word);
                ASSERT_NE(c, nullptr) << formName << "." << word;
                EXPECT_EQ(c->Name(), word);
                EXPECT_EQ(c->Index(), -1);
                continue;
            }
            const std::string name = word.substr(0, open);
            const int first = std::stoi(word.substr(open + 1));
            const int last = std::stoi(word.substr(word.find("..") + 2));
            EXPECT_EQ(form->FindComponent(name), nullptr) << name << " is an array";
            EXPECT_EQ(form->FindComponent(name, last + 1), nullptr) << name;
            for (int i = first; i <= last; ++i) {
                Component* c = form->FindComponent(name, i);
                ASSERT_NE(c, nullptr) << formName << "." << name << "(" << i << ")";
                EXPECT_EQ(c->Name(), name);
                EXPECT_EQ(c->Index(), i);
            }
        }
    }
}

TEST(Forms, RegisterHoldsEachControlOnceAndLooksUpWithoutRegardToCase) {
    AllForms forms;
    for (Form* form : forms.All()) {
        std::set<std::pair<std::string, int>> seen;
        for (Component* c : form->Components()) {
            EXPECT_FALSE(c->Name().empty()) << form->Name();
            EXPECT_TRUE(seen.insert({c->Name(), c->Index()}).second)
                << form->Name() << "." << c->Name() << " twice";
            EXPECT_EQ(form->FindComponent(c->Name(), c->Index()), c);
        }
    }
    EXPECT_EQ(forms.mission.FindControl("LSTPOINTS"), &forms.mission.lstPoints);
    EXPECT_EQ(forms.mission.FindControl("optcolor", 15), &forms.mission.optColor(15));
    // Menu entries and timers are components, not controls.
    EXPECT_EQ(forms.mdi.FindControl("mnuNew"), nullptr);
    EXPECT_EQ(forms.mdi.FindComponent("mnuNew"), &forms.mdi.mnuNew);
    EXPECT_EQ(forms.mission.FindControl("nothing"), nullptr);
}

struct Rows {
    const char* combo;
    std::vector<std::pair<std::string, int>> rows;
};

TEST(Forms, FixedRowsCarryTheirItemData) {
    AllForms forms;
    const std::vector<std::pair<std::string, int>> maps = {
        {"Map1Bob", 0}, {"Map2Bob", 1}, {"Map3Bob", 2}, {"Map4Bob", 3},
        {"Map1BfE", 4}, {"Map2BfE", 5}, {"Map3BfE", 6}, {"Map4BfE", 7}};
    const std::vector<Rows> table = {
        {"cmbDirective",
         {{"None", 0},
          {"Enemy Fighters", 1},
          {"Enemy Bombers", 2},
          {"Enemy Vehicles", 3},
          {"Enemy Buildings", 4}}},
        {"cmbTakeoffFlag",
         {{"Stay in the Air", 0}, {"Takeoff Only", 1}, {"Land Only", 2}, {"Takeoff and Land", 3}}},
        {"cmbSkill",
         {{"Rookie", 0}, {"Rookie +", 1}, {"Veteran", 2}, {"Veteran +", 3}, {"Ace", 4}}},
        {"cmbLevel", {{"Rookie", 0}, {"Veteran", 1}, {"Ace", 2}}},
        {"cmbDamage", {{"None", 0}, {"Smoke", 1}, {"Fire", 2}}},
        {"cmbClouds", {{"No Clouds", 0}, {"Haze", 1}, {"Light Clouds", 2}, {"Heavy Clouds", 3}}},
        {"cmbVisibility",
         {{"Unlimited", 0}, {"20 Miles", 1}, {"5 Miles", 2}, {"1 Mile", 3}, {"0.25 Mile", 4}}},
        {"cmbWinds", {{"No Wind", 0}, {"Light Wind", 1}, {"Moderate Wind", 2}, {"Heavy Wind", 3}}},
        {"cmbFormPattern",
         {{"Finger Four", 7000},
          {"English Vic", 7002},
          {"English Formation 2", 7003},
          {"B-17 Compact Formation", 7004},
          {"German Bomber V", 7005},
          {"Ketten", 7007},
          {"Line Abreast", 7009},
          {"Line Astern (Malan's Formation)", 7010},
          {"Single File", 7011},
          {"Vehicle Convoy", 7050},
          {"Tank Battalion", 7051},
          {"English ship convoy", 7052},
          {"German Train", 7053},
          {"English river convoy", 7054},
          {"German Train for TM's", 7056}}},
        {"cmbSelectMap", maps},
        {"cmbGUMap", maps},
    };
    auto check = [](Form& form, const char* name,
                    const std::vector<std::pair<std::string, int>>& rows) {
        auto* list = dynamic_cast<ListControl*>(form.FindControl(name));
        ASSERT_NE(list, nullptr) << name;
        ASSERT_EQ(list->ListCount(), static_cast<int>(rows.size())) << name;
        for (int r = 0; r < list->ListCount(); ++r) {
            EXPECT_EQ(list->List(r), rows[r].first) << name << " row " << r;
            EXPECT_EQ(list->ItemData(r), rows[r].second) << name << " row " << r;
        }
        EXPECT_EQ(list->ListIndex(), -1) << name;
    };
    for (const Rows& combo : table)
        check(forms.mission, combo.combo, combo.rows);
    check(forms.aircraft, "theFamList", {{"Fighter", 1}, {"Bomber", 2}, {"Other", 3}});
    check(forms.aircraft, "theAllyList", {{"RAF", 1}, {"Luftwaffe", 2}, {"USAAF", 3}});
    check(forms.grndNames, "theDamageList", {{"None", 0}, {"Smoke", 1}, {"Fire", 2}});
}

// Each column as "caption=field", joined by "|".
std::string ColumnsOf(const DataGrid& grid) {
    std::string text;
    for (int c = 0; c < grid.ColumnCount(); ++c) {
        if (c > 0) text += "|";
        text += grid.Columns(c).Caption() + "=" + grid.Columns(c).DataField();
    }
    return text;
}

TEST(Forms, GridsAreBoundWithTheirColumns) {
    AllForms forms;
    EXPECT_EQ(forms.aircraft.grdDataGrid.Source(), &forms.aircraft.datPrimaryRS);
    EXPECT_EQ(ColumnsOf(forms.aircraft.grdDataGrid),
              "A/C ID=AcID|A/C Filename=ShortName|Descriptive Name=LongName|Family=UnitRole|"
              "F. ID=Family|Allegiance=AirforceName|A. ID=Allegiance|Gun=Gun|Cannon=Cannon|"
              "Rockets=Rockets|Bombs=Bombs");
    EXPECT_EQ(forms.grndNames.grdDataGrid.Source(), &forms.grndNames.datSecondaryRS);
    EXPECT_EQ(ColumnsOf(forms.grndNames.grdDataGrid),
              "Descriptive Name=FullName|ID=ID|UnitType=UnitType|Points=Points|Heading=Heading|"
              "XOffset=XOffset|YOffset=YOffset|Damage=Damage|DamageID=DamageID");
    EXPECT_EQ(forms.offsets.dbgGUOffsets.Source(), &forms.offsets.dataGUOffsets);
    EXPECT_EQ(ColumnsOf(forms.offsets.dbgGUOffsets),
              "ID=ID|Unit Name=FullName|XOffset=XOffset|YOffset=YOffset|Lat Mtr.=Expr1|"
              "Lon Mtr.=Expr2|Dmg=DamageID");
    // The browser's columns are the query's fields in order; Filename is column 13.
    EXPECT_EQ(forms.missions.grdDataGrid.Source(), &forms.missions.datPrimaryRS);
    ASSERT_EQ(forms.missions.grdDataGrid.ColumnCount(), 14);
    EXPECT_EQ(forms.missions.grdDataGrid.Columns(12).DataField(), "Allegiance");
    EXPECT_EQ(forms.missions.grdDataGrid.Columns(13).DataField(), "Filename");
}

struct MenuRow {
    const char* parent;
    const char* entry;
    const char* caption;
    const char* shortcut;
    bool enabled;
    bool visible;
};

// The whole tree in menu order; an empty parent is the menu bar.
const std::vector<MenuRow> kMenuTree = {
    {"", "mnuFile", "&File", "", true, true},
    {"mnuFile", "mnuNew", "&New", "Ctrl+N", true, true},
    {"mnuFile", "mnuOpen", "&Open...", "Ctrl+O", true, true},
    {"mnuFile", "mnuFileSpc1", "-", "", true, true},
    {"mnuFile", "mnuSave", "Sa&ve...", "Ctrl+S", true, true},
    {"mnuFile", "mnuSaveAs", "Sav&e As...", "F12", true, true},
    {"mnuFile", "mnudummy(0)", "-", "", true, false},
    {"mnuFile", "mnudummy(1)", "", "", true, false},
    {"mnuFile", "mnudummy(2)", "", "", true, false},
    {"mnuFile", "mnudummy(3)", "", "", true, false},
    {"mnuFile", "mnudummy(4)", "", "", true, false},
    {"mnuFile", "mnuFileSpc3", "-", "", true, true},
    {"mnuFile", "mnuExit", "E&xit", "", true, true},
    {"", "mnuEdit", "&Edit", "", true, true},
    {"mnuEdit", "mnuCut", "Cu&t", "Ctrl+X", false, true},
    {"mnuEdit", "mnuCopy", "&Copy", "Ctrl+C", false, true},
    {"mnuEdit", "mnuPaste", "&Paste", "Ctrl+V", false, true},
    {"mnuEdit", "editb1", "-", "", true, true},
    {"mnuEdit", "mnuDel", "&Delete", "Del", false, true},
    {"mnuEdit", "mnuClrPoints", "Clear &Points", "", true, true},
    {"mnuEdit", "mnuClrMap", "Clear &Map", "", false, true},
    {"", "mnuView", "&View", "", true, true},
    {"mnuView", "mnuSummary", "&Summary", "", true, true},
    {"mnuView", "mnuFormations", "&Formations", "", true, true},
    {"mnuView", "mnuGroundUnits", "&Ground Units", "", true, true},
    {"mnuView", "mnuWaypoints", "&Waypoints", "", true, true},
    {"mnuView", "mnuViewSpace", "-", "", true, true},
    {"mnuView", "mnuAddAC", "&Aircrafts...", "F5", true, true},
    {"mnuView", "mnuGULayout", "Ground &Layouts...", "F6", true, true},
    {"mnuView", "mnuVspace", "-", "", true, true},
    {"mnuView", "mnuMissions", "Missions Summary...", "F2", false, true},
    {"mnuView", "mnuStationary", "&Stationary Types...", "F3", false, true},
    {"", "mnuTools", "&Tools", "", true, true},
    {"mnuTools", "mnuCompact", "&Compact Database", "", true, true},
    {"mnuTools", "mnuMissDetail", "&Missions Summary", "", true, true},
    {"mnuTools", "mnuspace", "-", "", true, true},
    {"mnuTools", "mnuoptions", "&Options", "", true, true},
    {"mnuoptions", "mnuACList", "AC List Size", "", true, true},
    {"mnuACList", "mnuACListNorm", "Normal", "", true, true},
    {"mnuACList", "mnuACListInc", "Increase Size", "", true, true},
    {"mnuACList", "mnuACListDec", "Decrease Size", "", false, true},
    {"mnuoptions", "mnuAutoUpdate", "Auto &Update", "", true, true},
    {"mnuoptions", "mnuDist", "Metric &Distance", "", true, true},
    {"mnuoptions", "mnuSound", "&Sound...", "", true, true},
    {"mnuSound", "mnuSndOn", "Dis&abled", "", true, true},
    {"mnuSound", "mnuIncVol", "&Increase Volume", "", true, true},
    {"mnuSound", "mnuDecVol", "&Decrease Volume", "", true, true},
    {"mnuoptions", "mnuTooltips", "&Tooltips", "", true, true},
    {"", "mnuWindows", "&Windows", "", true, true},
    {"", "mnuHelp", "&Help", "", true, true},
    {"mnuHelp", "mnuAbout", "&About...", "", true, true},
};

// The tree flattened depth first, each entry with its parent's name.
void Flatten(const std::vector<MenuItem*>& items, const std::string& parent,
             std::vector<std::pair<std::string, MenuItem*>>& out) {
    for (MenuItem* item : items) {
        out.emplace_back(parent, item);
        Flatten(item->Children(), item->Name(), out);
    }
}

TEST(Forms, MenuTreeHasItsEntriesInOrder) {
    AllForms forms;
    std::vector<std::pair<std::string, MenuItem*>> flat;
    Flatten(forms.mdi.MenuBar(), "", flat);
    ASSERT_EQ(flat.size(), kMenuTree.size());
    for (size_t i = 0; i < flat.size(); ++i) {
        const MenuRow& want = kMenuTree[i];
        const MenuItem& item = *flat[i].second;
        std::string name = item.Name();
        if (item.Index() >= 0) name += "(" + std::to_string(item.Index()) + ")";
        EXPECT_EQ(name, want.entry);
        EXPECT_EQ(flat[i].first, want.parent) << want.entry;
        EXPECT_EQ(item.Caption(), want.caption) << want.entry;
        EXPECT_EQ(item.Shortcut(), want.shortcut) << want.entry;
        EXPECT_EQ(item.Enabled(), want.enabled) << want.entry;
        EXPECT_EQ(item.Visible(), want.visible) << want.entry;
    }
    EXPECT_TRUE(forms.mdi.mnuDist.Checked());
    EXPECT_TRUE(forms.mdi.mnuACListNorm.Checked());
}

}  // namespace
}  // namespace tarvex
