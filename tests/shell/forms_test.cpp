#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>
#include <stdexcept>
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

// The rectangle a control's declared place covers, in its container's coordinates.
struct Box {
    float left, top, right, bottom;
};

Box BoxOf(const Place& p) {
    return {p.left, p.top, p.left + p.width, p.top + p.height};
}

// The area of a container that its controls may use: a page is its tab strip below the
// headers.
Box InnerBoxOf(const Form& form, const Container& where) {
    const Control* holder = where.Holder();
    if (holder == &form) return {0, 0, form.Width(), form.Height()};
    const Place& home = holder->Home();
    // A surface seen through a scrolled view may grow over the rest of its own container.
    if (holder->Where().IsScrolled()) {
        const Box outer = InnerBoxOf(form, holder->Where());
        return {0, 0, outer.right - home.left, outer.bottom - home.top};
    }
    const auto* strip = dynamic_cast<const TabControl*>(holder);
    const float top = where.HasPages() && strip ? strip->TabHeight() : 0;
    return {0, top, home.width, home.height};
}

bool Overlap(const Box& a, const Box& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

// Where a control's declared place holds: its container, and on a tab strip the first of its
// pages (on the others the program moves it as the tab shows).
std::pair<const Control*, int> SpotOf(const Control& c) {
    const std::vector<int> pages = c.Where().PageList();
    return {c.Where().Holder(), pages.empty() ? -1 : pages.front()};
}

std::string Named(const Control& c) {
    return c.Index() < 0 ? c.Name() : c.Name() + "(" + std::to_string(c.Index()) + ")";
}

TEST(Forms, EveryControlLiesInsideAContainerOfItsForm) {
    AllForms forms;
    for (Form* form : forms.All()) {
        EXPECT_GT(form->Width(), 0) << form->Name();
        EXPECT_GT(form->Height(), 0) << form->Name();
        const std::vector<Control*> controls = form->Controls();
        for (const Control* c : controls) {
            SCOPED_TRACE(form->Name() + "." + Named(*c));
            const Control* holder = c->Where().Holder();
            ASSERT_NE(holder, nullptr) << "no container";
            ASSERT_TRUE(holder == form ||
                        std::find(controls.begin(), controls.end(), holder) != controls.end())
                << "a container of another form";
            const Box inner = InnerBoxOf(*form, c->Where());
            const Box box = BoxOf(c->Home());
            EXPECT_TRUE(box.left >= inner.left && box.top >= inner.top &&
                        box.right <= inner.right && box.bottom <= inner.bottom)
                << "outside its container: " << box.left << "," << box.top << " to " << box.right
                << "," << box.bottom;
        }
    }
}

// Two controls of one container may share ground only when one of them is an overlay: shown in
// turn with what lies under it (lstPointsExtended in place of lstPoints, fraWPSelect over the
// filters), and hidden at first.
TEST(Forms, NoTwoControlsOfAContainerLieOnTopOfEachOther) {
    AllForms forms;
    for (Form* form : forms.All()) {
        const std::vector<Control*> controls = form->Controls();
        for (size_t i = 0; i < controls.size(); ++i) {
            const Control& a = *controls[i];
            if (a.Where().IsOverlay()) {
                EXPECT_FALSE(a.Visible()) << Named(a) << " shows at first";
            }
            for (size_t j = i + 1; j < controls.size(); ++j) {
                const Control& b = *controls[j];
                if (a.Where().IsOverlay() || b.Where().IsOverlay()) continue;
                if (SpotOf(a) != SpotOf(b)) continue;
                EXPECT_FALSE(Overlap(BoxOf(a.Home()), BoxOf(b.Home())))
                    << form->Name() << ": " << Named(a) << " and " << Named(b);
            }
        }
    }
}

// A form that gives a control a container of another form is refused as it is built.
TEST(Forms, AContainerOfAnotherFormIsRefused) {
    struct Stray : Form {
        explicit Stray(const Control& elsewhere) : Form("frmStray") {
            Move(0, 0, 1000, 1000);
            Add(NAMED(lblStray), In(elsewhere), {0, 0, 100, 100});
        }
        Label lblStray;
    };
    struct Mislaid : Form {
        Mislaid() : Form("frmMislaid") {
            Move(0, 0, 1000, 1000);
            Add(NAMED(fraLate), Self());
            Add(NAMED(lblPage), Page(SSTab1, 0), {0, 0, 100, 100});
        }
        Frame fraLate;
        TabControl SSTab1;
        Label lblPage;
    };
    AllForms forms;
    EXPECT_THROW(Stray{forms.mission.fraGroupInfo}, std::logic_error);
    EXPECT_THROW(Mislaid{}, std::logic_error) << "a strip entered after its page's controls";
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
