#include "qt/form_layout.h"

#include <algorithm>

#include "shell/controls/data_grid.h"
#include "shell/forms/frm_mission.h"

namespace tarvex::qt {

const Placement* FormLayout::Find(const std::string& name, int index) const {
    for (const Placement& place : places)
        if (place.name == name && place.index == index) return &place;
    return nullptr;
}

void ApplyLayout(Form& form, const FormLayout& layout) {
    for (const Placement& place : layout.places) {
        Control* control = form.FindControl(place.name, place.index);
        if (!control) continue;
        const bool sized = control->Width() > 0 || control->Height() > 0;
        const bool placed = control->Left() != 0 || control->Top() != 0;
        control->Move(placed ? control->Left() : place.left, placed ? control->Top() : place.top,
                      sized ? control->Width() : place.width,
                      sized ? control->Height() : place.height);
    }
}

namespace {

// Heights of one line of each kind, in map units.
constexpr float kText = 300;
constexpr float kCombo = 330;
constexpr float kLabel = 225;
constexpr float kCheck = 255;
constexpr float kButton = 345;

}  // namespace

FormLayout MissionFormLayout(const FrmMission&) {
    FormLayout l;
    auto at = [&l](const char* name, const char* container, float x, float y, float w, float h,
                   int index = -1) {
        l.places.push_back({name, index, container, x, y, w, h});
    };
    auto text = [&l](const char* container, const char* caption, float x, float y, float w) {
        l.texts.push_back({container, caption, x, y, w});
    };

    at("SSTab1", "", 0, 0, 9396, 6312);

    // ---- Summary: the boxes on the left, the read-outs and the picture on the right -----
    const char* s = "page:0";
    text(s, "Title", 120, 420, 1100);
    at("txtTitle", s, 1320, 400, 3900, kText);
    text(s, "Summary", 120, 780, 1100);
    at("txtSummary", s, 1320, 760, 3900, 1200);
    text(s, "Objective", 120, 2040, 1100);
    at("txtObjective", s, 1320, 2020, 3900, 1200);
    text(s, "Type", 120, 3300, 1100);
    at("txtType", s, 1320, 3280, 1800, kText);
    text(s, "Tip", 3300, 3300, 380);
    at("txtTip", s, 3720, 3280, 1500, kText);
    text(s, "Date", 120, 3660, 1100);
    at("txtDate", s, 1320, 3640, 1200, kText);
    text(s, "Time", 2640, 3660, 500);
    at("txtTime", s, 3120, 3640, 900, kText);
    text(s, "% Reqd", 4200, 3660, 640);
    at("txtPctReqd", s, 4860, 3640, 360, kText);
    text(s, "Clouds", 120, 4040, 1100);
    at("cmbClouds", s, 1320, 4000, 2100, kCombo);
    text(s, "Visibility", 120, 4420, 1100);
    at("cmbVisibility", s, 1320, 4380, 2100, kCombo);
    text(s, "Winds", 120, 4800, 1100);
    at("cmbWinds", s, 1320, 4760, 2100, kCombo);
    text(s, "Map", 120, 5180, 1100);
    at("cmbSelectMap", s, 1320, 5140, 3900, kCombo);
    text(s, "Player airfield:", 5520, 420, 1500);
    at("lblAirfield", s, 7080, 420, 2160, kLabel);
    text(s, "Player aircraft:", 5520, 720, 1500);
    at("lblAC", s, 7080, 720, 2160, kLabel);
    text(s, "Briefing map:", 5520, 1020, 1500);
    at("lblMap", s, 7080, 1020, 2160, kLabel);
    at("picSummaryTab", s, 5520, 1380, 3720, 4620);
    l.places.back().scrolled = true;

    // ---- Formations: groups above, pilots below, airfields and filters on the right -----
    const char* f = "page:1";
    at("fraGroupInfo", f, 120, 360, 5700, 2820);
    const char* g = "fraGroupInfo";
    at("lstGroupName", g, 120, 240, 2400, 2040);
    at("btnSetWaypoints", g, 120, 2360, 1140, kButton);
    at("btnGrpView", g, 1380, 2360, 1140, kButton);
    at("btnGroupName", g, 2580, 240, 360, kButton);
    at("btnDeleteGroup", g, 2580, 640, 420, kButton);
    at("lblGrpID", g, 3060, 260, 900, kLabel);
    at("lblGroupID", g, 3960, 260, 1620, kLabel);
    at("lblWPStrData", g, 3060, 520, 2520, kLabel);
    at("lblPattern", g, 3060, 820, 2520, kLabel);
    at("cmbFormPattern", g, 3060, 1040, 2520, kCombo);
    at("lblDirective", g, 3060, 1420, 2520, kLabel);
    at("cmbDirective", g, 3060, 1640, 2520, kCombo);
    at("lblTOandLand", g, 3060, 2020, 2520, kLabel);
    at("cmbTakeoffFlag", g, 3060, 2240, 2520, kCombo);

    at("fraPilotInfo", f, 120, 3240, 5700, 2580);
    const char* p = "fraPilotInfo";
    at("lstPilotName", p, 120, 240, 2400, 1560);
    at("btnPilotName", p, 120, 1860, 480, kButton);
    at("btnDeletePilot", p, 660, 1860, 900, kButton);
    at("chkPilotIsAC", p, 120, 2250, 2400, kCheck);
    at("chkPlayer", p, 3060, 240, 1200, kCheck);
    at("chkPoints", p, 4320, 240, 1260, kCheck);
    const char* pilotLabels[] = {"lblSkill", "lblLevel", "lblDamage", "lblACType"};
    const char* pilotCombos[] = {"cmbSkill", "cmbLevel", "cmbDamage", "cmbMovingType"};
    for (int k = 0; k < 4; ++k) {
        at(pilotLabels[k], p, 3060, 600 + k * 370.0f, 760, kLabel);
        at(pilotCombos[k], p, 3840, 560 + k * 370.0f, 1740, kCombo);
    }
    at("lblGunTitle", p, 3060, 2080, 760, kLabel);
    at("lblGun", p, 3840, 2080, 600, kLabel);
    at("lblCannonTitle", p, 4500, 2080, 660, kLabel);
    at("lblCannon", p, 5160, 2080, 420, kLabel);
    at("lblRocketTitle", p, 3060, 2320, 760, kLabel);
    at("lblRockets", p, 3840, 2320, 600, kLabel);
    at("lblBombTitle", p, 4500, 2320, 660, kLabel);
    at("lblBombs", p, 5160, 2320, 420, kLabel);
    at("chkSuspend", f, 120, 5880, 9000, kCheck);

    at("fraAllegianceType", f, 5940, 2520, 1560, 1380);
    at("fraFamilyType", f, 7620, 2520, 1560, 1380);
    for (int k = 0; k <= 3; ++k) {
        at("optAllegiance", "fraAllegianceType", 120, 260 + k * 270.0f, 1320, kCheck, k);
        at("OptFamily", "fraFamilyType", 120, 260 + k * 270.0f, 1320, kCheck, k);
    }

    // The paths of a group: two columns of eight, opened over the filters.
    at("fraWPSelect", f, 5940, 2520, 3240, 2880);
    for (int k = 0; k <= 15; ++k) {
        const float x = 120 + (k / 8) * 1560.0f;
        const float y = 260 + (k % 8) * 270.0f;
        at("chkWP", "fraWPSelect", x, y, 900, kCheck, k);
        at("txtWPPct", "fraWPSelect", x + 920, y - 10, 480, 270, k);
    }
    at("btnPathClear", "fraWPSelect", 120, 2440, 1300, kButton);
    at("btnWPClose", "fraWPSelect", 1680, 2440, 1300, kButton);

    // The group view shares its place with the airfields.
    at("fraGrpView", f, 5940, 960, 3240, 1440);
    at("cmbGroups", "fraGrpView", 120, 260, 2520, kCombo);
    at("updwnGroupView", "fraGrpView", 2700, 260, 300, kCombo);
    at("lblGrpWP", "fraGrpView", 120, 700, 3000, kLabel);

    // ---- Airfields: on Formations and on Waypoints, moved by the tabs ---------------------
    at("fraAirfields", "pages:1,3", 5940, 960, 3240, 1440);
    const char* a = "fraAirfields";
    at("lblStartRwy", a, 120, 300, 560, kLabel);
    at("cmbStartAtRwy", a, 720, 260, 2400, kCombo);
    at("lblEndRwy", a, 120, 680, 560, kLabel);
    at("cmbEndAtRwy", a, 720, 640, 2400, kCombo);
    at("lblFlyBy", a, 120, 1060, 560, kLabel);
    at("cmbRunways", a, 720, 1020, 2400, kCombo);

    // ---- Waypoints: the map on the left, the point editor on the right --------------------
    const char* w = "page:3";
    at("mapWayPoints", w, 72, 384, 5016, 4860);
    l.places.back().scrolled = true;
    at("fraWaypoints", w, 5292, 1900, 3900, 3360);
    const char* wp = "fraWaypoints";
    at("lstPoints", wp, 120, 240, 2400, 2640);
    at("lstPointsExtended", wp, 120, 240, 2400, 2640);
    at("txtPoint", wp, 120, 2960, 3660, kText);
    at("txtAlt", wp, 2640, 240, 1140, kText);
    at("txtSpeed", wp, 2640, 600, 720, kText);
    at("lblSpeed", wp, 3400, 640, 400, kLabel);
    for (int k = 0; k <= 2; ++k)
        at("chkWPOptions", wp, 2640, 980 + k * 280.0f, 1140, kCheck, k);
    at("btnClrPoint", wp, 2640, 1860, 1140, kButton);
    at("btnWPNames", wp, 2640, 2240, 1140, kButton);
    at("btnWPTips", wp, 2640, 2620, 1140, kButton);

    // The paths' colours, overlays and ids: on Ground units and on Waypoints.
    at("fraPathColor", "pages:2,3", 72, 5376, 9120, 720);
    for (int k = 0; k <= 15; ++k) {
        const float x = 120 + k * 560.0f;
        at("optColor", "fraPathColor", x, 220, 250, 250, k);
        at("chkOverlay", "fraPathColor", x + 260, 220, 250, 250, k);
        at("lblPath", "fraPathColor", x, 470, 540, 210, k);
    }

    // ---- Ground units: the map on the left, the layouts on the right ----------------------
    const char* u = "page:2";
    at("mapGroundUnits", u, 72, 384, 5016, 4860);
    l.places.back().scrolled = true;
    at("lstGrnUnits", u, 5292, 384, 2700, 1500);
    at("btnDelGUlst", u, 8052, 384, 900, kButton);
    at("cmbGrndAirfield", u, 5292, 1960, 2700, kCombo);
    at("cmbAirfieldLayout", u, 5292, 2340, 2700, kCombo);
    at("btnDelGUcmb", u, 8052, 2340, 900, kButton);
    at("lstGUAdded", u, 5292, 2760, 2700, 1200);
    at("btnDeleteGrndUnit", u, 8052, 2760, 900, kButton);
    at("txtAddedGU", u, 5292, 4040, 3660, kText);
    at("txtGULatLon", u, 5292, 4400, 3660, kText);
    for (int k = 0; k <= 2; ++k)
        at("optGndHasPoints", u, 5292 + k * 1220.0f, 4760, 1200, kCheck, k);
    at("cmbGUMap", u, 5292, 5040, 3660, kCombo);

    // The layout editor takes the map over while it is open: its controls lie on the map,
    // clear of the picture's centre and its legend.
    const char* m = "mapGroundUnits";
    at("fraGUPos", m, 60, 60, 3780, 2520);
    const char* e = "fraGUPos";
    const char* spinTexts[] = {"X Axis", nullptr, "Y Axis", "Zoom", nullptr, "Cursor"};
    const char* spins[] = {"btnXPos", "btnSpread", "btnYPos", "btnZoom", "btnRotate2", "btnCursor"};
    for (int k = 0; k < 6; ++k) {
        const float x = k % 2 == 0 ? 120 : 1980;
        const float y = 280 + (k / 2) * 360.0f;
        if (spinTexts[k]) text(e, spinTexts[k], x, y + 40, 900);
        at(spins[k], e, x + 900, y, 780, kText);
    }
    at("lblSpread", e, 1980, 320, 900, kLabel);
    at("lblRotate2", e, 120, 1040, 900, kLabel);
    at("btnRotate90", e, 120, 1380, 1740, kButton);
    at("btnGUReset", e, 1980, 1380, 1680, kButton);
    at("btnSave", e, 120, 1760, 1740, kButton);
    at("btnGUClose", e, 1980, 1760, 1680, kButton);
    at("chkStationary", e, 120, 2160, 1800, kCheck);
    at("chkDataWindow", e, 1980, 2160, 1680, kCheck);
    // Runways 2 and 3 of a three-runway airfield move by these.
    at("btnX", m, 7500, 4920, 720, kText);
    at("btnY", m, 8300, 4920, 720, kText);
    // The stationary types float over the map, wherever the designer drops them.
    at("fraStationary", m, 60, 2900, 3000, 2400);
    at("lstStationary", "fraStationary", 120, 240, 2760, 2040);
    // Marks over the map of the layout editor.
    at("XLine", m, 0, 0, 0, 0);
    at("YLine", m, 0, 0, 0, 0);
    at("picAC", m, 0, 0, 300, 300);
    return l;
}

FormLayout FlowLayout(const Form& form) {
    FormLayout l;
    const auto unplaced = [](const Control* control) {
        return control->Width() == 0 && control->Height() == 0 && control->Left() == 0 &&
               control->Top() == 0;
    };
    const float formWidth = std::max(form.Width(), 6000.0f);
    const float bottom = std::max(form.Height(), 3600.0f) - 720;
    // A grid takes the left of the window; the rest stands in columns on its right.
    float x = 120;
    for (Control* control : form.Controls()) {
        if (!unplaced(control) || !dynamic_cast<DataGrid*>(control)) continue;
        const float w = formWidth - 5400;
        l.places.push_back({control->Name(), control->Index(), "", x, 120, w, bottom - 120});
        x += w + 120;
    }
    float y = 120;
    float columnWidth = 0;
    for (Control* control : form.Controls()) {
        if (!unplaced(control) || dynamic_cast<DataGrid*>(control)) continue;
        float w = 2400;  // two such columns beside the grid
        float h = kCombo;
        if (dynamic_cast<ListBox*>(control)) {
            h = 1200;
        } else if (dynamic_cast<PictureSurface*>(control)) {
            h = 600;
        } else if (dynamic_cast<Label*>(control)) {
            h = kLabel * 2;
        }
        if (y + h > bottom && y > 120) {
            x += columnWidth + 120;
            y = 120;
            columnWidth = 0;
        }
        l.places.push_back({control->Name(), control->Index(), "", x, y, w, h});
        y += h + 60;
        columnWidth = std::max(columnWidth, w);
    }
    return l;
}

}  // namespace tarvex::qt
