// Writes the sample simulator folder of the default installation: one aircraft folder per
// aircraft of the reference database, and a mission per theatre map saved by the editor's
// own saver, so that the samples always read back as the editor writes them.
//
// Usage: tarvex-samplegen <reference database> <sim folder>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

#include "app/make_editor.h"
#include "document/ground_reconstruction.h"
#include "document/mission_loader.h"
#include "document/mission_reset.h"
#include "document/mission_saver.h"
#include "document/mission_validation.h"
#include "platform/scripted_platform.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"
#include "shell/mission_form_load.h"

namespace fs = std::filesystem;

namespace tarvex {
namespace {

// The coordinate text of the file: hemisphere, whole degrees, minutes with `decimals`.
std::string Coord(double value, bool latitude, int decimals) {
    const char hemi = latitude ? (value < 0 ? 'S' : 'N') : (value < 0 ? 'W' : 'E');
    double a = std::fabs(value);
    int deg = static_cast<int>(a);
    double minutes = (a - deg) * 60.0;
    const double scale = std::pow(10.0, decimals);
    minutes = std::round(minutes * scale) / scale;
    if (minutes >= 60.0) {
        minutes -= 60.0;
        ++deg;
    }
    char buf[32];
    std::snprintf(buf, sizeof buf, "%c%02d %0*.*f", hemi, deg, decimals + 3, decimals, minutes);
    return buf;
}

struct Waypoint {
    double lat, lon;
    const char* name;
    const char* tip;
    int alt, kmh, action, cap;
};

struct Pilot {
    const char* name;
    int ac, skill, level;
};

struct Group {
    const char* name;
    int pattern, directive, flag;
    int takeoffRecnum, landingRecnum;  // airfields by Recnum
    std::vector<Pilot> pilots;
    std::vector<Waypoint> path;
    bool player;
};

struct Layout {
    int id;
    const char* name;
    int airfieldRecnum;  // 0 for a landscape layout
    double lat, lon;
    int rotation;
};

struct Sample {
    const char* file;
    int map;
    const char *title, *summary, *objective, *time, *date;
    int clouds, visibility, winds;
    std::vector<Group> groups;
    std::vector<Layout> layouts;
};

std::vector<Sample> Samples() {
    return {
        {"Channel_Convoy_Attack.mis",
         0,
         "Convoy Bread",
         "July 1940. A coastal convoy of colliers is rounding the South Foreland. Stukas "
         "from the Pas de Calais are going for it, with Messerschmitts above.",
         "Lead the Stukas onto the convoy off Dover and bring them home to Guines.",
         "14:10",
         "07/10/1940",
         1,
         0,
         1,
         {{"Stukagruppe",
           5,
           2,
           3,
           28,
           28,
           {{"Hptm. Keil", 64, 3, 2}, {"Oblt. Brandt", 64, 2, 1}, {"Lt. Vogel", 64, 1, 1}},
           {{50.96, 1.70, "Cap Gris-Nez", "Form up over the cape", 3000, 300, 0, 1},
            {51.10, 1.45, "Convoy", "Dive on the colliers", 1500, 350, 1, 0},
            {50.92, 1.80, "", "", 800, 0, 0, 0}},
           true},
          {"Jagdschwarm",
           0,
           1,
           3,
           5,
           5,
           {{"Oblt. Mayer", 41, 3, 2}, {"Fw. Kraus", 41, 2, 1}},
           {{50.98, 1.65, "Top cover", "Stay above the Stukas", 4500, 420, 0, 1},
            {51.12, 1.40, "Convoy", "", 4500, 400, 0, 0},
            {50.86, 1.70, "", "", 1000, 0, 0, 0}},
           false},
          {"Convoy Bread",
           11,
           0,
           0,
           29,
           29,
           {{"HMS Vanessa", 105, 2, 1}, {"SS Kenton", 104, 0, 0}, {"SS Polgarth", 104, 0, 0}},
           {{51.20, 1.50, "South Foreland", "Round the Foreland", 0, 15, 0, 1},
            {51.08, 1.30, "Dover Strait", "", 0, 15, 0, 0},
            {50.95, 1.00, "", "", 0, 15, 0, 0}},
           false},
          {"Red Section",
           1,
           2,
           3,
           29,
           29,
           {{"F/Lt. Deere", 1, 3, 2}, {"P/O Gray", 1, 2, 1}, {"Sgt. Lock", 1, 1, 1}},
           {{51.15, 1.30, "Dover", "Patrol over the convoy", 3500, 400, 0, 1},
            {51.11, 1.16, "", "", 500, 0, 0, 0}},
           false}},
         {{2, "Light AA Site Bofors", 0, 51.1300, 1.3200, 0},
          {18, "Luftwaffe Fighter Field", 28, 50.8500, 1.8700, 0}}},
        {"Tangmere_Stuka_Raid.mis",
         1,
         "Stukas over Ford",
         "18 August 1940. Ju 87s from the Cotentin are crossing the Channel to bomb the naval "
         "air station at Ford. Tangmere's Hurricanes are scrambled to meet them.",
         "Break up the Stuka formation before it reaches Ford.",
         "13:45",
         "08/18/1940",
         1,
         1,
         0,
         {{"Blue Section",
           1,
           2,
           3,
           52,
           52,
           {{"S/Ldr. Worrall", 4, 4, 2}, {"F/O Carey", 4, 3, 1}, {"Sgt. Cooper", 4, 2, 1}},
           {{50.78, -0.75, "Selsey Bill", "Climb south of the Bill", 3500, 420, 0, 1},
            {50.70, -0.55, "Intercept", "The Stukas come in from the south", 3000, 450, 0, 0},
            {50.84, -0.70, "", "", 500, 0, 0, 0}},
           true},
          {"Stukastaffel",
           5,
           4,
           3,
           13,
           13,
           {{"Hptm. Meisel", 64, 2, 1}, {"Lt. Hartmann", 64, 1, 1}, {"Uffz. Roth", 64, 1, 0}},
           {{50.10, -1.00, "Mid Channel", "Keep together", 3500, 300, 0, 1},
            {50.81, -0.59, "Ford", "Bomb the hangars", 1200, 350, 1, 0},
            {49.68, -1.45, "", "", 800, 0, 0, 0}},
           false}},
         {{17, "RAF Satellite Field", 25, 50.8156, -0.5906, 0},
          {2, "Light AA Site Bofors", 0, 50.8200, -0.5700, 45}}},
        {"Hornchurch_Scramble.mis",
         2,
         "Hornchurch Scramble",
         "7 September 1940. A big raid of Dorniers is heading up the Thames for the oil tanks "
         "at Thameshaven. Hornchurch's Spitfires are scrambled.",
         "Intercept the Dorniers over the estuary before they reach Thameshaven.",
         "16:30",
         "09/07/1940",
         2,
         1,
         1,
         {{"Red Section",
           1,
           2,
           3,
           30,
           30,
           {{"S/Ldr. Malan", 1, 4, 2}, {"F/O Stapleton", 1, 3, 1}, {"P/O Lawson", 1, 2, 1}},
           {{51.55, 0.55, "Estuary", "Climb east over the river", 5000, 420, 0, 1},
            {51.45, 0.90, "Intercept", "Bombers from the east", 5000, 450, 0, 0},
            {51.53, 0.21, "", "", 500, 0, 0, 0}},
           true},
          {"Kampfstaffel",
           4,
           4,
           2,
           46,
           46,
           {{"Hptm. Lange", 62, 2, 1}, {"Oblt. Schulz", 62, 2, 1}, {"Fw. Weber", 62, 1, 0}},
           {{51.45, 1.40, "North Foreland", "Turn up the estuary", 4500, 320, 0, 1},
            {51.50, 0.49, "Thameshaven", "Bomb the tanks", 4500, 320, 1, 0},
            {51.45, 1.30, "", "", 4000, 0, 0, 0}},
           false}},
         {{8, "Oil Depot Thameshaven", 0, 51.5050, 0.4900, 0},
          {16, "RAF Sector Station", 42, 51.7217, 0.1542, 0}}},
        {"Warmwell_Portland_Defence.mis",
         3,
         "Defence of Portland",
         "11 August 1940. Ju 88s are bombing Portland harbour. Spitfires from Warmwell and "
         "Hurricanes from Middle Wallop go up to meet them.",
         "Protect Portland harbour and shoot down the Ju 88s.",
         "10:15",
         "08/11/1940",
         1,
         0,
         1,
         {{"Yellow Section",
           1,
           2,
           3,
           55,
           55,
           {{"F/Lt. Darley", 1, 3, 2}, {"P/O Crook", 1, 2, 1}, {"Sgt. Feary", 1, 2, 1}},
           {{50.58, -2.43, "Portland", "Patrol over the harbour", 4000, 420, 0, 1},
            {50.45, -2.30, "Intercept", "", 4000, 450, 0, 0},
            {50.69, -2.34, "", "", 500, 0, 0, 0}},
           true},
          {"Green Section",
           1,
           2,
           3,
           41,
           41,
           {{"F/Lt. Kellett", 4, 3, 1}, {"P/O Gleed", 4, 2, 1}},
           {{50.90, -1.90, "Ringwood", "Join over the forest", 4500, 420, 0, 1},
            {50.58, -2.43, "Portland", "", 4500, 420, 0, 0},
            {51.13, -1.57, "", "", 500, 0, 0, 0}},
           false},
          {"Kampfgruppe",
           4,
           4,
           3,
           13,
           13,
           {{"Hptm. Hoffmann", 63, 2, 1}, {"Oblt. Busch", 63, 2, 1}, {"Lt. Koenig", 63, 1, 0}},
           {{50.20, -2.20, "Mid Channel", "", 5000, 380, 0, 1},
            {50.57, -2.44, "Portland", "Bomb the harbour", 4000, 380, 1, 0},
            {49.70, -1.50, "", "", 1000, 0, 0, 0}},
           false}},
         {{6, "Harbour Docks", 0, 50.5650, -2.4300, 90},
          {17, "RAF Satellite Field", 55, 50.6942, -2.3444, 0}}},
        {"Ruhr_Night_Raid.mis",
         4,
         "Night Raid on Duisburg",
         "Autumn 1941. Wellingtons leave the coast at Orfordness for the marshalling yards at "
         "Duisburg. Expect flak over the Dutch coast and night fighters.",
         "Bomb the marshalling yards at Duisburg and bring the crew home to Martlesham.",
         "22:30",
         "10/12/1941",
         2,
         2,
         1,
         {{"A Flight",
           1,
           4,
           3,
           39,
           39,
           {{"S/Ldr. Kirby", 21, 3, 2}, {"F/O Hale", 21, 2, 1}, {"P/O Grant", 21, 2, 1}},
           {{52.08, 1.57, "Orfordness", "Leave the coast", 3000, 300, 0, 1},
            {52.45, 4.60, "Dutch coast", "Flak belt", 4500, 320, 0, 0},
            {51.43, 6.76, "Duisburg", "Bomb the yards", 4500, 320, 1, 0},
            {52.06, 1.27, "", "", 500, 0, 0, 0}},
           true},
          {"Nachtjagd",
           0,
           1,
           3,
           48,
           48,
           {{"Oblt. Streib", 44, 4, 2}, {"Fw. Meyer", 44, 2, 1}},
           {{52.20, 5.20, "Zuider Zee", "Wait for the bombers", 4000, 420, 0, 1},
            {51.70, 6.00, "", "", 4500, 450, 0, 0},
            {52.30, 4.76, "", "", 500, 0, 0, 0}},
           false}},
         {{15, "Railway Marshalling Yard France", 0, 51.4300, 6.7600, 0},
          {10, "Flak Battery 8.8cm", 0, 52.4500, 4.6000, 0},
          {19, "Luftwaffe Bomber Field", 48, 52.3081, 4.7642, 0}}},
        {"Circus_St_Omer.mis",
         5,
         "Circus over St. Omer",
         "Summer 1941. Blenheims with a strong Spitfire escort are sent against the airfield "
         "at St. Omer to draw up the Luftwaffe's fighters.",
         "Escort the Blenheims to St. Omer and back; no bomber may be lost.",
         "11:00",
         "06/17/1941",
         1,
         0,
         1,
         {{"Escort Wing",
           0,
           1,
           3,
           36,
           36,
           {{"W/Cdr. Bader", 3, 4, 2}, {"F/Lt. Johnson", 3, 3, 1}, {"P/O Dundas", 3, 2, 1}},
           {{51.20, 1.40, "Rendezvous", "Meet the Blenheims", 4000, 420, 0, 1},
            {50.73, 2.24, "St. Omer", "Stay with the bombers", 4500, 400, 0, 0},
            {51.34, 1.35, "", "", 500, 0, 0, 0}},
           true},
          {"Blenheims",
           1,
           4,
           3,
           9,
           9,
           {{"W/O Jones", 20, 2, 1}, {"Sgt. Evans", 20, 2, 1}, {"Sgt. Price", 20, 1, 0}},
           {{51.20, 1.40, "Rendezvous", "", 3500, 350, 0, 1},
            {50.73, 2.24, "St. Omer", "Bomb the field", 3500, 350, 1, 0},
            {51.73, 0.90, "", "", 500, 0, 0, 0}},
           false},
          {"JG 26",
           0,
           1,
           3,
           50,
           50,
           {{"Maj. Galland", 43, 4, 2}, {"Oblt. Schoepfel", 43, 3, 1}},
           {{50.80, 2.00, "Interception", "Attack out of the sun", 6000, 450, 0, 1},
            {50.73, 2.24, "", "", 500, 0, 0, 0}},
           false}},
         {{11, "Light Flak Site 2cm", 0, 50.8000, 2.3500, 0},
          {18, "Luftwaffe Fighter Field", 50, 50.7289, 2.2358, 0}}},
        {"Caen_Fighter_Sweep.mis",
         6,
         "Rhubarb to Carpiquet",
         "Spring 1942. Two Typhoons go in low over the Normandy coast to shoot up the airfield "
         "at Caen-Carpiquet and whatever moves on the roads.",
         "Strafe Carpiquet and the supply lorries, then get out low over the sea.",
         "07:20",
         "04/22/1942",
         1,
         1,
         2,
         {{"Black Section",
           2,
           3,
           3,
           13,
           13,
           {{"F/Lt. Beamont", 12, 4, 2}, {"P/O Wells", 12, 2, 1}},
           {{49.40, -0.80, "Coast", "Cross low at Port-en-Bessin", 100, 500, 0, 1},
            {49.17, -0.45, "Carpiquet", "Strafe the dispersals", 100, 500, 1, 0},
            {49.65, -1.47, "", "", 300, 0, 0, 0}},
           true},
          {"Alarmrotte",
           0,
           1,
           3,
           11,
           11,
           {{"Lt. Schmid", 46, 3, 1}, {"Uffz. Fischer", 46, 2, 1}},
           {{49.30, -0.60, "Patrol", "", 1500, 450, 0, 1}, {49.17, -0.45, "", "", 300, 0, 0, 0}},
           false},
          {"Supply Column",
           9,
           0,
           0,
           11,
           11,
           {{"Fahrer Braun", 120, 0, 0}, {"Fahrer Jung", 120, 0, 0}, {"Fahrer Otto", 121, 0, 0}},
           {{49.28, -0.70, "Bayeux road", "Lorries bound for Caen", 0, 40, 0, 1},
            {49.18, -0.37, "Caen", "", 0, 40, 0, 0}},
           false}},
         {{18, "Luftwaffe Fighter Field", 11, 49.1733, -0.4500, 0},
          {5, "Army Camp", 0, 49.1900, -0.3700, 30}}},
        {"Amsterdam_Escort.mis",
         7,
         "Fortresses to Amsterdam",
         "1943. American heavies cross the Dutch coast to hit the Fokker works near Schiphol, "
         "with P-47s as close escort. The Fw 190s are waiting.",
         "Keep the B-17s safe to the target and back over the sea.",
         "09:30",
         "07/26/1943",
         1,
         0,
         1,
         {{"Thunderbolts",
           0,
           1,
           0,
           48,
           48,
           {{"Maj. Zemke", 81, 4, 2}, {"Capt. Gabreski", 81, 3, 2}, {"Lt. Johnson", 81, 2, 1}},
           {{52.60, 4.20, "Landfall", "Meet the bombers", 7000, 480, 0, 1},
            {52.37, 4.89, "Amsterdam", "Stay close", 7000, 450, 0, 0},
            {52.60, 4.20, "", "", 7000, 0, 0, 0}},
           true},
          {"Fortresses",
           3,
           4,
           0,
           48,
           48,
           {{"Col. Armstrong", 90, 3, 2}, {"Lt. Bennett", 90, 2, 1}, {"Lt. Morgan", 90, 2, 1}},
           {{52.60, 4.20, "Landfall", "", 6500, 350, 0, 1},
            {52.31, 4.77, "Schiphol", "Bomb the works", 6500, 350, 1, 0},
            {52.70, 4.00, "", "", 6500, 0, 0, 0}},
           false},
          {"JG 1",
           0,
           1,
           3,
           48,
           48,
           {{"Hptm. Oesau", 46, 4, 2}, {"Lt. Wenzel", 46, 3, 1}},
           {{52.45, 4.55, "Coast", "Attack head-on", 7500, 450, 0, 1},
            {52.31, 4.76, "", "", 500, 0, 0, 0}},
           false}},
         {{4, "Aircraft Factory", 0, 52.3900, 4.9000, 0},
          {19, "Luftwaffe Bomber Field", 48, 52.3081, 4.7642, 0},
          {10, "Flak Battery 8.8cm", 0, 52.3600, 4.9000, 0}}},
    };
}

void Build(Editor& ed, const Sample& s) {
    LoadFrmMission(ed);
    ResetMission(ed);
    ed.options.Measurement = true;
    ed.projection.SetDistanceUnits(true);
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    frm.txtTitle.SetText(s.title);
    frm.txtSummary.SetText(s.summary);
    frm.txtObjective.SetText(s.objective);
    frm.txtType.SetText("Sortak");
    frm.txtPctReqd.SetText("75");
    frm.txtTime.SetText(s.time);
    frm.txtDate.SetText(s.date);
    frm.cmbSelectMap.SetListIndex(s.map);
    frm.cmbClouds.SetListIndex(s.clouds);
    frm.cmbVisibility.SetListIndex(s.visibility);
    frm.cmbWinds.SetListIndex(s.winds);

    int g = 0;
    for (const Group& group : s.groups) {
        frm.lstGroupName.AddItem(group.name);
        doc.GrpPattern(g) = static_cast<std::uint8_t>(group.pattern);
        doc.GrpDirective(g) = static_cast<std::uint8_t>(group.directive);
        doc.GrpTakeoffFlag(g) = static_cast<std::uint8_t>(group.flag);
        doc.GrpTakeoffRwy(g) = static_cast<std::uint8_t>(group.takeoffRecnum - 1);
        doc.GrpLandingRwy(g) = static_cast<std::uint8_t>(group.landingRecnum - 1);
        doc.GrpPaths(g) = std::to_string(5000 + g);
        int p = 0;
        for (const Pilot& pilot : group.pilots) {
            doc.PilotName(g, p) = pilot.name;
            doc.PilotAC(g, p) = static_cast<std::int16_t>(pilot.ac);
            doc.PilotSkill(g, p) = static_cast<std::uint8_t>(pilot.skill);
            doc.PilotLevel(g, p) = static_cast<std::uint8_t>(pilot.level);
            doc.PilotPoints(g, p) = 1;
            doc.PilotDamage(g, p) = 0;
            ++p;
        }
        if (group.player) {
            doc.PilotIsPlayer(g, 0) = 1;
            doc.PlayerGroup = static_cast<std::int16_t>(g);
            doc.PlayerPilot = 0;
            doc.PlayerAssigned = true;
        }
        const int count = static_cast<int>(group.path.size());
        doc.PathPointCount(g) = static_cast<std::uint8_t>(count + 1);
        for (int i = 0; i < count; ++i) {
            const Waypoint& wp = group.path[i];
            doc.WPLat(g, i + 1) = Coord(wp.lat, true, 2);
            doc.WPLon(g, i + 1) = Coord(wp.lon, false, 2);
            doc.WPName(g, i + 1) = wp.name;
            doc.WPTip(g, i + 1) = wp.tip;
            doc.WPAlt(g, i + 1) = wp.alt;
            doc.WPSpeed(g, i + 1) = static_cast<std::int16_t>(wp.kmh);
            doc.WPAction(g, i + 1) = static_cast<std::uint8_t>(wp.action);
            doc.WPOnMap(g, i + 1) = 1;
            doc.WPCap(g, i + 1) = static_cast<std::uint8_t>(wp.cap);
        }
        ++g;
    }
    doc.HighestPath = static_cast<std::int16_t>(g - 1);
    doc.PilotsAssigned = true;

    int u = 0;
    for (const Layout& layout : s.layouts) {
        char label[96];
        std::snprintf(label, sizeof label, "%02d. %s", u + 1, layout.name);
        frm.lstGUAdded.AddItem(label);
        frm.lstGUAdded.SetItemData(
            u, layout.airfieldRecnum == 0 ? layout.id : layout.airfieldRecnum * 10000 + layout.id);
        doc.GULat(u) = Coord(layout.lat, true, 4);
        doc.GULon(u) = Coord(layout.lon, false, 4);
        doc.GURotation(u) = static_cast<float>(layout.rotation);
        doc.GUPoints(u) = 1;
        ++u;
    }
    doc.GUCount = static_cast<std::uint8_t>(u);
}

// The boxes shown since the last call, as one text; empty when none.
std::string Boxes(ScriptedServices& services) {
    std::string text;
    for (const MessageBoxRequest& box : services.dialogs.messages)
        text += (text.empty() ? "" : "\n") + box.title + ": " + box.text;
    services.dialogs.ClearRecord();
    return text;
}

std::string ReadBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Opens the file as File Open does and saves it again, until a save writes the bytes it
// read. A landscape layout that a runway of the mission takes for its airfield is an
// accident of the sample's positions, and is reported rather than shipped.
std::string ResaveToFixedPoint(Editor& ed, ScriptedServices& services, const fs::path& file) {
    for (int round = 0; round < 5; ++round) {
        const std::string before = ReadBytes(file);
        ed.doc.MissionPath = file.string();
        ed.doc.MissionFile = file.filename().string();
        ed.doc.NotLoading = false;
        ResetMission(ed);
        LoadMission(ed);
        ed.doc.NotLoading = true;
        if (std::string boxes = Boxes(services); !boxes.empty()) return boxes;
        for (const LayoutLoadNote& note : ed.loader.LayoutNotes) {
            if (note.airfield.empty()) {
                return "the load made a new layout '" + note.layoutName + "'";
            }
            const int id = LayoutIdFromItemData(ed.FrmMission.lstGUAdded.ItemData(note.row));
            Recordset rs = ed.db.theDB.OpenRecordset(
                "SELECT GUType FROM GrndNames WHERE ID=" + std::to_string(id), kSnapshot);
            if (!rs.Eof() && rs.Fields(0).Long() == 1) {
                return "the landscape layout '" + note.layoutName + "' lies " +
                       std::to_string(NoteKilometres(note)) + " km from " + note.airfield +
                       ": a runway of the mission takes it; place it farther away";
            }
        }
        SaveMission(ed);
        if (std::string boxes = Boxes(services); !boxes.empty()) return boxes;
        if (ReadBytes(file) == before) return {};
    }
    return "a resave still changes the file after five rounds";
}

// A small cfg of the simulator's kind: the editor only reads its title= line.
void WriteAircraft(const fs::path& folder, const std::string& shortName,
                   const std::string& longName, int family) {
    const fs::path dir = folder / "Aircraft" / shortName;
    fs::create_directories(dir);
    std::ofstream cfg(dir / "aircraft.cfg", std::ios::binary);
    cfg << "[fltsim.0]\r\ntitle=" << longName << "\r\nsim=" << shortName
        << "\r\nmodel=\r\npanel=\r\nsound=\r\ntexture=\r\n\r\n[General]\r\natc_type="
        << (family == 2   ? "BOMBER"
            : family == 3 ? "VEHICLE"
                          : "FIGHTER")
        << "\r\n";
    std::ofstream air(dir / (shortName + ".air"), std::ios::binary);
    air << "; Flight model of " << longName << "\r\n[airframe]\r\nname=" << shortName
        << "\r\nfamily=" << family << "\r\n";
}

int Run(const std::string& database, const fs::path& simFolder) {
    ScriptedServices services;
    auto editor = MakeEditor(services.Bind());
    Editor& ed = *editor;
    ed.db.DBPath = database;
    ed.db.theDB.Open(database);

    Recordset rs = ed.db.theDB.OpenRecordset(
        "SELECT ShortName,LongName,Family FROM Aircraft ORDER BY AcID", kSnapshot);
    while (!rs.Eof()) {
        WriteAircraft(simFolder, rs.Fields(0).Text(), rs.Fields(1).Text(), rs.Fields(2).Long());
        rs.MoveNext();
    }
    rs.Close();

    const fs::path missions = simFolder / "missions";
    fs::create_directories(missions);
    int failures = 0;
    for (const Sample& sample : Samples()) {
        Build(ed, sample);
        services.dialogs.ClearRecord();
        if (!ValidateMission(ed)) {
            std::cerr << sample.file << ": " << services.dialogs.LastMessage() << "\n";
            ++failures;
            continue;
        }
        ed.doc.MissionPath = (missions / sample.file).string();
        ed.doc.MissionFile = sample.file;
        SaveMission(ed);
        std::string problem = Boxes(services);
        // A sample is shipped as the editor would resave it, so that opening and saving it
        // changes nothing: saved, opened and saved again until the bytes stay.
        if (problem.empty()) problem = ResaveToFixedPoint(ed, services, missions / sample.file);
        if (!problem.empty()) {
            std::cerr << sample.file << ": " << problem << "\n";
            ++failures;
            continue;
        }
        std::cout << "Wrote " << sample.file << "\n";
    }
    ed.db.CloseReferenceDatabase();
    return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace tarvex

int main(int argc, char** argv) {
    if (argc != 3) {
        std::cerr << "usage: tarvex-samplegen <reference database> <sim folder>\n";
        return 2;
    }
    return tarvex::Run(argv[1], argv[2]);
}
