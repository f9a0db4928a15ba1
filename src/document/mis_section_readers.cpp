#include "document/mis_section_readers.h"

#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "document/coord_text.h"
#include "document/ground_reconstruction.h"
#include "ground/layout_markers.h"
#include "refdata/reference_lookups.h"
#include "refdata/shared_lookup.h"
#include "refdata/sql_translation.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

// Runs f(line, value) for each line of a section with a value; f answers false to end the
// section at once. A section ends at a short line, [strings] only at the end of the file.
template <typename F>
void ForEachSectionLine(MisLines& lines, std::string& line, bool toEndOfFile, F&& f) {
    while (!lines.AtEnd()) {
        line = lines.Read();
        if (!toEndOfFile && MisSectionEnds(line)) return;
        const std::string value = MisValue(line);
        if (value.empty()) continue;
        if (!f(static_cast<const std::string&>(line), value)) return;
    }
}

// The airfield of a runway id: its row in the airfield combos and its two-decimal position.
void LookupRunway(Editor& ed, std::int32_t rwyId, int& row, std::string& lat, std::string& lon) {
    SharedLookup rs(
        ed.db, "SELECT Recnum,RwyID,RwyLat,RwyLon FROM Airfields Where RwyID=" + IntText(rwyId));
    rs->MoveFirst();
    row = rs->Fields(0).Integer() - 1;
    double latDeg = rs->Fields(2).Double();
    double lonDeg = rs->Fields(3).Double();
    lat = DegreesToCoordText(latDeg, true, "00.0000");
    lon = DegreesToCoordText(lonDeg, false, "00.0000");
    NormalizeCoordText(lat, "00.00");
    NormalizeCoordText(lon, "00.00");
}

// The path numbers written behind each comma of a group's path list, four digits each.
template <typename F>
void ForEachFurtherPath(const std::string& paths, F&& f) {
    for (std::size_t comma = InStr(paths, ","); comma > 0; comma = InStr(paths, ",", comma + 1))
        f(CInt(Val(Mid(paths, static_cast<long long>(comma) + 1, 4))) - 5000);
}

// One waypoint.i line: both flags one digit wide at the head, the cap flag last, then the
// fields by their commas from character 5.
void ReadWaypoint(Editor& ed, int path, int point, const std::string& value) {
    Mission& doc = ed.doc;
    std::size_t pos = 5;
    auto nextField = [&]() {
        const std::size_t comma = InStr(value, ",", pos);
        if (comma == 0) Raise(kErrInvalidCall);
        std::string text =
            Mid(value, static_cast<long long>(pos), static_cast<long long>(comma - pos));
        pos = comma + 1;
        return text;
    };
    doc.WPAction(path, point) = ReadClampedByte(Left(value, 1), 0, 1);
    doc.WPOnMap(path, point) = ReadClampedByte(Mid(value, 3, 1), 0, 1);
    doc.WPCap(path, point) = ReadClampedByte(Right(value, 1), 0, 1);
    std::string lat = nextField();
    std::string lon = nextField();
    const std::string alt = nextField();
    for (int skipped = 0; skipped < 3; ++skipped)
        nextField();
    const std::string speed = nextField();
    doc.WPLat(path, point) = NormalizeCoordText(lat, "00.00");
    doc.WPLon(path, point) = NormalizeCoordText(lon, "00.00");
    doc.WPAlt(path, point) = ValLng(alt);
    doc.WPSpeed(path, point) = ValInt(speed);
}

// A runway near a layout makes it that airfield's layout; the nearest pair of the load wins.
void TakeLayoutsNearRunway(Editor& ed, std::int32_t rwyId, float rwyLat, float rwyLon) {
    Mission& doc = ed.doc;
    MissionLoaderState& st = ed.loader;
    auto& frm = ed.FrmMission;
    for (int k = 0; k < doc.GUCount; ++k) {
        const float layoutLat = CSng(CoordTextToDegrees(doc.GULat(k)));
        const float layoutLon = CSng(CoordTextToDegrees(doc.GULon(k)));
        // Miles whatever the setting.
        const float dist = CSng(static_cast<double>(ed.projection.GreatCircleDistance(
                                    rwyLat, rwyLon, layoutLat, layoutLon)) /
                                ed.projection.DistanceFactor);
        if (!(dist < 5.0f && dist <= st.NearestLayoutDist)) continue;
        int row = 0;
        std::string lat;
        std::string lon;
        LookupRunway(ed, rwyId, row, lat, lon);
        NoteLayoutTakenByAirfield(ed, k, frm.cmbGrndAirfield.List(row), dist);
        doc.GULat(k) = NormalizeCoordText(lat, "00.0000");
        doc.GULon(k) = NormalizeCoordText(lon, "00.0000");
        const std::string old = frm.lstGUAdded.List(k);
        const std::size_t dot = old.find('.');
        const std::string rest = dot == std::string::npos ? std::string() : old.substr(dot + 1);
        frm.lstGUAdded.SetList(k,
                               Format(k + 1, "##00") + ". " + frm.cmbGrndAirfield.List(row) + rest);
        frm.lstGUAdded.SetItemData(
            k, (row + 1) * 10000 + LayoutIdFromItemData(frm.lstGUAdded.ItemData(k)));
        frm.txtGULatLon.SetText(doc.GULat(k) + " " + doc.GULon(k));
        DrawLayoutMarkers(ed);
        st.NearestLayoutDist = dist;
    }
}

}  // namespace

void ReadSummarySection(Editor& ed, MisLines& lines, std::string& line) {
    auto& frm = ed.FrmMission;
    static const MisKeys kKeys{"Time",       "map=", "player_aircraft", "cloud",
                               "visibility", "wind", "required_success"};
    enum : std::uint32_t {
        kTime = 1,
        kMap = 2,
        kPlayer = 4,
        kCloud = 8,
        kVisibility = 16,
        kWind = 32,
        kRequired = 64
    };
    ForEachSectionLine(lines, line, false, [&](const std::string& l, const std::string& v) {
        const std::uint32_t keys = kKeys.In(l);
        if (keys & kTime) {
            frm.txtTime.SetText(v);
        } else if (keys & kMap) {
            ed.StepDetail = ": Accessing MDB.Maps Table";
            int recnum = 0;
            std::string name;
            {
                SharedLookup rs(ed.db, "SELECT Recnum,Name FROM Maps Where Name=\"" +
                                           QuotesDoubled(v, '"') + "\"");
                rs->MoveFirst();
                recnum = rs->Fields(0).Integer();
                name = rs->Fields(1).Text();
            }
            frm.lblMap.SetCaption(name);
            frm.cmbSelectMap.SetListIndex(recnum - 1);
            ed.StepDetail.clear();
        } else if (keys & kPlayer) {
            ed.StepDetail = ": Setting Combobox to Player Aircraft";
            const int row = FindAircraftRow(ed, ValLng(v));
            if (row >= 0) frm.lblAC.SetCaption(frm.cmbMovingType.List(row));
        } else if (keys & kCloud) {
            frm.cmbClouds.SetListIndex(ReadClampedByte(v, 0, 3));
        } else if (keys & kVisibility) {
            frm.cmbVisibility.SetListIndex(ReadClampedByte(v, 0, 4));
        } else if (keys & kWind) {
            frm.cmbWinds.SetListIndex(ReadClampedByte(v, 0, 3));
        } else if (keys & kRequired) {
            frm.txtPctReqd.SetText(v);
        }
        return true;
    });
}

void ReadUnitSection(Editor& ed, MisLines& lines, std::string& line, std::int16_t& unitId,
                     std::int16_t& typeId) {
    Mission& doc = ed.doc;
    MissionLoaderState& st = ed.loader;
    const int n = MisSectionNumber(line);
    if (n == 0) st.FileUnitCount = 0;

    // The section's own values. Whether it is a pilot goes by its id line; a section without
    // one goes by the row it would fill.
    std::int32_t sectionId = -1;
    std::int32_t type = 0;
    std::uint8_t points = 0;
    std::string lat;
    std::string lon;

    static const MisKeys kKeys{
        "id",    " Ground Layout", "type_id", "position_lat", "position_lon", "is_player_aircraft",
        "skill", "level",          "points",  "damage"};
    enum : std::uint32_t {
        kId = 1,
        kLayout = 2,
        kTypeId = 4,
        kLat = 8,
        kLon = 16,
        kPlayer = 32,
        kSkill = 64,
        kLevel = 128,
        kPoints = 256,
        kDamage = 512
    };
    ForEachSectionLine(lines, line, false, [&](const std::string& l, const std::string& v) {
        const int row = st.FileUnitCount;
        const std::uint32_t keys = kKeys.In(l);
        if ((keys & kId) && MisIdGuard(l)) {
            sectionId = ValLng(v);
            if (sectionId < 2000) {
                st.FileUnitID(row) = CInt(sectionId);
            } else {
                ReadGroundUnitId(ed, CInt(sectionId), unitId);
            }
        } else if (keys & kLayout) {
            ReadGroundLayoutComment(ed, v);
        } else if (keys & kTypeId) {
            const std::int32_t t = ValLng(v);
            if (t < 4000) {
                ed.StepDetail = IntText(st.FileUnitID(row)) +
                                ": Searching MDB.Aircraft Table for Aircraft ID " + IntText(t);
                SharedLookup rs(ed.db, "SELECT AcID FROM Aircraft Where ACID=" + IntText(t));
                rs->MoveLast();
                rs->MoveFirst();
                st.FileUnitType(row) = rs->Fields(0).Integer();
                ed.StepDetail.clear();
            } else {
                typeId = CInt(t);
                type = t;
                ReadGroundUnitType(ed, t);
            }
        } else if (keys & kLat) {
            lat = v;
            ReadGroundUnitLat(ed, v);
        } else if (keys & kLon) {
            lon = v;
            ReadGroundUnitLon(ed, v);
        } else if (keys & kPlayer) {
            st.PlayerUnit = CInt(n);
            doc.PlayerPilot = CInt(n);
            doc.PlayerAssigned = true;
        } else if (keys & kSkill) {
            st.FileUnitSkill(row) = ReadClampedByte(v, 0, 255);
        } else if (keys & kLevel) {
            st.FileUnitLevel(row) = ReadClampedByte(v, 0, 255);
        } else if (keys & kPoints) {
            points = ReadClampedByte(v, 0, 255);
            st.FileUnitPoints(row) = points;
            if (points == 1 && type >= 4000) st.LayoutHasPoints = true;
        } else if (keys & kDamage) {
            st.FileUnitDamage(row) = ReadClampedByte(v, 0, 255);
            const std::int32_t id = sectionId >= 0 ? sectionId : st.FileUnitID(row);
            if (id > 0 && id < 2000) {
                // A pilot beyond the table is dropped; it is never taken for a ground unit.
                if (st.FileUnitCount < MissionLoaderState::kFileUnitUpper) ++st.FileUnitCount;
            } else {
                StoreGroundUnit(ed, type, points, lat, lon);
            }
        }
        return true;
    });
}

void ReadWaypointPathSection(Editor& ed, MisLines& lines, std::string& line) {
    Mission& doc = ed.doc;
    const int path = MisSectionNumber(line);
    int point = 1;
    static const MisKeys kKeys{"Id", "waypoint."};
    enum : std::uint32_t { kId = 1, kWaypoint = 2 };
    ForEachSectionLine(lines, line, false, [&](const std::string& l, const std::string& v) {
        const std::uint32_t keys = kKeys.In(l);
        if (keys & kId) {
            ed.StepDetail = v;
        } else if (keys & kWaypoint) {
            ReadWaypoint(ed, path, point, v);
            doc.PathPointCount(path) = CByte(point + 1);
            ++point;
        }
        return true;
    });
    // The Start and End references stand for the first and last waypoint until the
    // formations give them their runways.
    doc.WPLat(path, 0) = doc.WPLat(path, 1);
    doc.WPLon(path, 0) = doc.WPLon(path, 1);
    const int end = doc.PathPointCount(path);
    doc.WPLat(path, end) = doc.WPLat(path, end - 1);
    doc.WPLon(path, end) = doc.WPLon(path, end - 1);
    doc.HighestPath = CInt(path);
}

void ReadFormationSection(Editor& ed, MisLines& lines, std::string& line) {
    Mission& doc = ed.doc;
    MissionLoaderState& st = ed.loader;
    auto& frm = ed.FrmMission;
    const int group = MisSectionNumber(line);
    doc.GrpPattern(group) = 0;
    doc.CurrentPilot = 0;
    std::string name;
    std::string formationId;
    int firstPath = 0;

    auto applyRunway = [&](bool takeoff, const std::string& v) {
        ed.StepDetail =
            formationId + (takeoff ? ": Takeoff Runway ID " : ": Landing Runway ID ") + v;
        int row = 0;
        std::string lat;
        std::string lon;
        LookupRunway(ed, ValLng(v), row, lat, lon);
        auto setPath = [&](int path) {
            const int point = takeoff ? 0 : doc.PathPointCount(path);
            doc.WPLat(path, point) = lat;
            doc.WPLon(path, point) = lon;
            if (takeoff) {
                doc.PathAirfieldStart(path) = CInt(row);
            } else {
                doc.PathAirfieldEnd(path) = CInt(row);
            }
        };
        if (takeoff) {
            doc.GrpTakeoffRwy(group) = CByte(row);
        } else {
            doc.GrpLandingRwy(group) = CByte(row);
        }
        setPath(firstPath);
        ForEachFurtherPath(doc.GrpPaths(group), setPath);
    };

    static const MisKeys kKeys{";Name",
                               ";Formation Pattern",
                               "id",
                               "waypoint_path_id",
                               "suspended",
                               "directive",
                               "takeoff_runway_id",
                               "landing_runway_id",
                               "takeoff_land_flag",
                               "players_formation",
                               "unit_id_position"};
    enum : std::uint32_t {
        kName = 1,
        kPattern = 2,
        kId = 4,
        kPaths = 8,
        kSuspended = 16,
        kDirective = 32,
        kTakeoff = 64,
        kLanding = 128,
        kFlag = 256,
        kPlayers = 512,
        kPosition = 1024
    };
    ForEachSectionLine(lines, line, false, [&](const std::string& l, const std::string& v) {
        const std::uint32_t keys = kKeys.In(l);
        if (keys & kName) {
            name = v;
        } else if (keys & kPattern) {
            const int lastRow = frm.cmbFormPattern.ListCount() - 1;
            doc.GrpPattern(group) = ReadClampedByte(v, 0, lastRow > 0 ? lastRow : 255);
        } else if ((keys & kId) && MisIdGuard(l)) {
            const std::int32_t id = ValLng(v);
            formationId = IntText(id);
            // The row goes in the order of the file, while the arrays go by the number.
            if (id < 6999)
                frm.lstGroupName.AddItem(name.empty() ? "Group" + IntText(group + 1) : name);
        } else if (keys & kPaths) {
            // The ground formation has no paths, and its unit lines are read past.
            if (Val(v) == -1) return false;
            doc.GrpPaths(group) = v;
            ed.StepDetail = formationId + "\nImproperly formatted data. [" + l + "] was found.\n" +
                            "With a text editor, remove any spaces within this line";
            // The detail is set ahead of the walk so that a path outside the arrays names it.
            ForEachFurtherPath(v, [&](int path) { doc.PathGroup(path) = CByte(group); });
            ed.StepDetail = formationId + "\nImproperly formatted data. [" + doc.GrpPaths(group) +
                            "] was found.\nThis data must not contain any spaces";
            firstPath = CInt(Val(Left(v, 4))) - 5000;
            doc.PathGroup(firstPath) = CByte(group);
        } else if (keys & kSuspended) {
            doc.GrpSuspended(group) = ReadClampedByte(v, 0, 1);
        } else if (keys & kDirective) {
            doc.GrpDirective(group) = ReadClampedByte(v, 0, 4);
        } else if (keys & kTakeoff) {
            applyRunway(true, v);
        } else if (keys & kLanding) {
            applyRunway(false, v);
        } else if (keys & kFlag) {
            doc.GrpTakeoffFlag(group) = ReadClampedByte(v, 0, 3);
        } else if (keys & kPlayers) {
            doc.PlayerGroup = CInt(group);
        } else if (keys & kPosition) {
            const std::int32_t id = ValLng(Left(v, 4));
            for (int r = 0; r < st.FileUnitCount; ++r) {
                if (st.FileUnitID(r) != id) continue;
                const int p = doc.CurrentPilot;
                if (r == st.PlayerUnit) {
                    doc.PilotIsPlayer(group, p) = 1;
                    doc.PlayerPilot = CInt(p);
                }
                doc.PilotAC(group, p) = st.FileUnitType(r);
                doc.PilotSkill(group, p) = ClampByte(st.FileUnitSkill(r), 0, 4);
                doc.PilotLevel(group, p) = ClampByte(st.FileUnitLevel(r), 0, 2);
                doc.PilotPoints(group, p) = ClampByte(st.FileUnitPoints(r), 0, 1);
                doc.PilotDamage(group, p) = ClampByte(st.FileUnitDamage(r), 0, 2);
                // A stand-in name, which [strings] replaces.
                doc.PilotName(group, p) = "Pilot " + IntText(p + 1) + " Unit " + IntText(group + 1);
                ++doc.CurrentPilot;
                break;
            }
        }
        return true;
    });
}

void ReadRunwaySection(Editor& ed, MisLines& lines, std::string& line) {
    std::int32_t rwyId = 0;
    float rwyLat = 0;
    static const MisKeys kKeys{"id", "base_lat", "base_lon"};
    enum : std::uint32_t { kId = 1, kLat = 2, kLon = 4 };
    ForEachSectionLine(lines, line, false, [&](const std::string& l, const std::string& v) {
        const std::uint32_t keys = kKeys.In(l);
        if (keys & kId) {
            rwyId = ValLng(v);
            ed.StepDetail = IntText(rwyId);
        } else if (keys & kLat) {
            ed.StepDetail = IntText(rwyId) + "\nTranslating Base Lat";
            std::string text = v;
            rwyLat = CSng(CoordTextToDegrees(NormalizeCoordText(text, "00.00")));
        } else if (keys & kLon) {
            ed.StepDetail = IntText(rwyId) + "\nTranslating Base Lon";
            std::string text = v;
            const float rwyLon = CSng(CoordTextToDegrees(NormalizeCoordText(text, "00.00")));
            TakeLayoutsNearRunway(ed, rwyId, rwyLat, rwyLon);
        }
        return true;
    });
}

void ReadStringsSection(Editor& ed, MisLines& lines, std::string& line) {
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;
    // The pilot that the next name_string names.
    int group = 0;
    int pilot = 0;
    auto nameNextPilot = [&](const std::string& name) {
        while (group <= Mission::kGroupUpper) {
            if (pilot <= Mission::kPilotUpper && !doc.PilotName(group, pilot).empty()) {
                doc.PilotName(group, pilot++) = name;
                return;
            }
            ++group;
            pilot = 0;
        }
    };
    // i and N of "waypointname.i_string.N": two characters behind the first and next point.
    auto pointAndPath = [](const std::string& l, int& point, int& path) {
        const std::size_t first = InStr(l, ".");
        point = CInt(Val(Mid(l, static_cast<long long>(first) + 1, 2))) + 1;
        const std::size_t next = InStr(l, ".", first + 1);
        path = CInt(Val(Mid(l, static_cast<long long>(next) + 1, 2)));
    };

    static const MisKeys kKeys{"title_string", "summary_string",  "objective_string", "type_string",
                               "tip_string",   "airfield_string", "date_string",      "name_string",
                               "waypointname", "waypointtip"};
    enum : std::uint32_t {
        kTitle = 1,
        kSummary = 2,
        kObjective = 4,
        kType = 8,
        kTip = 16,
        kAirfield = 32,
        kDate = 64,
        kName = 128,
        kPointName = 256,
        kPointTip = 512
    };
    ForEachSectionLine(lines, line, true, [&](const std::string& l, const std::string& v) {
        const std::uint32_t keys = kKeys.In(l);
        if (keys & kTitle) {
            frm.txtTitle.SetText(v);
        } else if (keys & kSummary) {
            frm.txtSummary.SetText(v);
        } else if (keys & kObjective) {
            frm.txtObjective.SetText(v);
        } else if (keys & kType) {
            frm.txtType.SetText(v);
        } else if (keys & kTip) {
            frm.txtTip.SetText(v);
        } else if (keys & kAirfield) {
            frm.lblAirfield.SetCaption(v);
        } else if (keys & kDate) {
            frm.txtDate.SetText(v);
        } else if (keys & kName) {
            nameNextPilot(v);
        } else if (keys & kPointName) {
            int point = 0;
            int path = 0;
            pointAndPath(l, point, path);
            doc.WPName(path, point) = v;
        } else if (keys & kPointTip) {
            int point = 0;
            int path = 0;
            pointAndPath(l, point, path);
            doc.WPTip(path, point) = v;
        }
        return true;
    });
}

}  // namespace tarvex
