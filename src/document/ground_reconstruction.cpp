#include "document/ground_reconstruction.h"

#include <vector>

#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "document/coord_text.h"
#include "ground/layout_markers.h"
#include "ground/mission_layouts.h"
#include "maps/map_loading.h"
#include "refdata/shared_lookup.h"
#include "refdata/sql_translation.h"
#include "refdata/transaction.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

// Kilometres to minutes of arc, as the stored layouts measure their offsets.
constexpr double kKmPerMinute = 1.8236;
// Statute miles to kilometres, as the distance unit switch counts them.
constexpr double kKmPerMile = 1.6093636;

// The units filed under the pending record go to the database only when the record becomes
// a layout of its own: a layout the database knows already deletes the record with them,
// and most layouts of a mission are known, so their units would be written only to go again.
void WritePendingUnits(Editor& ed) {
    MissionLoaderState& st = ed.loader;
    const MapProjection& proj = ed.projection;
    for (const PendingUnit& unit : st.PendingUnits) {
        // Offsets from the first unit of the layout, north-south and east-west.
        const float unitLat = CSng(CoordTextToDegrees(unit.lat));
        const float unitLon = CSng(CoordTextToDegrees(unit.lon));
        const float northSouth =
            proj.GreatCircleDistance(unitLat, unitLon, st.FirstUnitLat, unitLon);
        const float eastWest = proj.GreatCircleDistance(unitLat, unitLon, unitLat, st.FirstUnitLon);
        float xOffset = CSng(Val(Format(northSouth, "0.0000")) / kKmPerMinute);
        float yOffset = CSng(Val(Format(eastWest, "0.0000")) / kKmPerMinute);
        if (unitLat < st.FirstUnitLat) xOffset = -xOffset;
        if (unitLon < st.FirstUnitLon) yOffset = -yOffset;
        ed.db.theDB.Execute(" INSERT INTO GrndTypes (ID,UnitType,Points,XOffset,YOffset) VALUES (" +
                            IntText(st.PendingLayoutID) + "," + IntText(unit.type) + "," +
                            IntText(unit.points) + "," + FloatText(xOffset) + "," +
                            FloatText(yOffset) + ");");
    }
    st.PendingUnits.clear();
}

void WindUp(Editor& ed, std::int32_t& unitSum) {
    ed.loader.LayoutKnown = false;
    unitSum = 0;
    ed.placement.UnitLat.clear();
    ed.placement.UnitLon.clear();
    ed.StepDetail.clear();
    ed.placement.LayoutHeading = -1;
}

void Match(Editor& ed, std::int16_t unitId, std::int32_t& unitSum, bool deletePending, int depth) {
    MissionLoaderState& st = ed.loader;
    st.CommentLayoutID = -1;  // the records may change from here
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;

    ed.StepDetail = ": Accessing MDB.GrndNames Table";
    const std::string select = "SELECT UnitTotal,ID,LayoutName,IsDefault,GUType FROM GrndNames ";
    std::int32_t layoutId = 0;
    std::string layoutName;
    bool found = false;
    const int number = frm.lstGUAdded.ListCount() + 1;
    {
        SharedLookup rs(ed.db, st.LayoutKnown ? select + "Where ID=" + IntText(st.FileLayoutID)
                                              : select + "Where UnitTotal=" + IntText(unitSum));
        found = !rs->Eof();
        if (found) {
            rs->MoveFirst();
            layoutId = rs->Fields("ID").Long();
            layoutName = rs->Fields("LayoutName").Text();
            // A default airfield layout is stored a quarter turn from its runway.
            if (rs[3].Bool() && rs[4].Long() > 1) doc.GURotation(number - 1) = 90;
        }
    }
    if (!found) {
        // The pending record becomes the layout: with its sum it is found on the next try.
        // When even that finds nothing the record is gone, and trying again would never end.
        if (depth > 0) Raise(kErrOutOfStack);
        WritePendingUnits(ed);
        ed.db.theDB.Execute("UPDATE GrndNames Set UnitTotal = " + IntText(unitSum) +
                            " where ID = " + IntText(st.PendingLayoutID));
        st.PendingLayoutOpen = false;
        st.LayoutKept = true;
        std::int32_t sum = unitSum;
        Match(ed, unitId, sum, false, depth + 1);
        WindUp(ed, unitSum);
        return;
    }

    if (deletePending) {
        st.PendingUnits.clear();
        ed.db.theDB.Execute("DELETE * FROM GrndNames where ID = " + IntText(st.PendingLayoutID));
        --st.UnnamedCount;
        st.PendingLayoutOpen = false;
    }

    // From the first unit, its own offset turned half a circle leads back to the origin.
    ed.placement.LayoutHeading =
        NormalizeHeading(static_cast<float>(ed.placement.LayoutHeading - 180));
    ed.placement.SetLayoutFrame(ed.placement.UnitLat, ed.placement.UnitLon);
    ed.StepDetail = ": Searching MDB.GrndTypes Table for Unit ID " + IntText(layoutId);
    double heading = 0;
    float xOffset = 0;
    float yOffset = 0;
    {
        SharedLookup units(
            ed.db, "SELECT ID,UnitType,Points,Heading,XOffset,YOffset FROM GrndTypes Where ID=" +
                       IntText(layoutId));
        units->MoveFirst();
        heading = units[3].Double();
        xOffset = CSng(units[4].Double());
        yOffset = CSng(units[5].Double());
    }
    ed.placement.PlaceUnit(heading, xOffset, yOffset);

    MapProjection& proj = ed.projection;
    proj.CursorLatText = ed.placement.UnitLat;
    proj.CursorLonText = ed.placement.UnitLon;
    NormalizeCoordText(proj.CursorLatText, "00.00");
    NormalizeCoordText(proj.CursorLonText, "00.00");
    // The mission's map isn't loaded yet: the marker is placed again when cmbGUMap is set.
    float x = 0;
    float y = 0;
    PlotPoint(ed, proj.CursorLatText, proj.CursorLonText, x, y);

    AddLayoutToMission(ed, Format(number, "##00") + ". " + layoutName, x, y, number,
                       kLandscapeMarkerFill, layoutId);
    doc.GUPoints(number - 1) = st.LayoutHasPoints ? 1 : 0;
    st.LayoutHasPoints = false;
    if (depth > 0 && layoutId == st.PendingLayoutID)
        st.LayoutNotes.push_back({number - 1, layoutName, {}, 0});
    WindUp(ed, unitSum);
}

}  // namespace

std::int16_t NewUnnamedLayout(Editor& ed) {
    MissionLoaderState& st = ed.loader;
    st.CommentLayoutID = -1;
    ++st.UnnamedCount;
    const std::string& file = ed.doc.MissionFile;
    const std::string name = "Unnamed Layout" + IntText(st.UnnamedCount) + " in file [" +
                             Left(file, static_cast<long long>(file.size()) - 4) + "]";
    std::int16_t id = 0;
    {
        SharedLookup rs(ed.db, "qryNextGuID");
        rs->MoveFirst();
        id = rs->Fields("NextID").Integer();
    }
    ed.db.theDB.Execute(
        " INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES (" + IntText(id) +
        ",'" + QuotesDoubled(name, '\'') + "', 0,0,1);");
    st.PendingLayoutOpen = true;
    return id;
}

void EndLoadWrites(Editor& ed, Transaction& transaction) noexcept {
    MissionLoaderState& st = ed.loader;
    ed.db.theRS.Close();
    // Records made in advance and deleted again leave nothing when undone whole, and the
    // file isn't written at all.
    if (!st.LayoutKept && transaction.Rollback()) {
        st.PendingLayoutOpen = false;
        return;
    }
    try {
        DropPendingLayout(ed);
    } catch (...) {
        // The load report says what failed; a record that can't go stays as before.
        st.PendingLayoutOpen = false;
    }
    transaction.Commit();
}

void DropPendingLayout(Editor& ed) {
    MissionLoaderState& st = ed.loader;
    if (!st.PendingLayoutOpen) return;
    // The delete takes the units filed under the record with it.
    st.PendingUnits.clear();
    ed.db.theDB.Execute("DELETE * FROM GrndNames where ID = " + IntText(st.PendingLayoutID));
    --st.UnnamedCount;
    st.PendingLayoutOpen = false;
}

void MatchGroundLayout(Editor& ed, std::int16_t unitId, std::int32_t& unitSum, bool deletePending) {
    Match(ed, unitId, unitSum, deletePending, 0);
}

void ReadGroundUnitId(Editor& ed, std::int16_t id, std::int16_t& unitId) {
    MissionLoaderState& st = ed.loader;
    unitId = id;
    // Units of a layout are numbered in a row: a gap is the only sign of a new layout.
    if (id != st.PrevUnitID + 1 && st.PrevUnitID >= 2000) {
        MatchGroundLayout(ed, unitId, st.UnitSum, true);
        st.PendingLayoutID = NewUnnamedLayout(ed);
    }
    st.PrevUnitID = id;
}

void ReadGroundLayoutComment(Editor& ed, const std::string& value) {
    MissionLoaderState& st = ed.loader;
    std::vector<std::string> fields;
    std::size_t start = 0;
    for (;;) {
        const std::size_t comma = value.find(',', start);
        fields.push_back(value.substr(start, comma == std::string::npos ? comma : comma - start));
        if (comma == std::string::npos) break;
        start = comma + 1;
    }
    if (fields.size() < 3) Raise(kErrSubscript);
    ed.placement.LayoutHeading = Val(fields[2]);
    st.FileLayoutID = ValInt(Left(value, 4));

    ed.StepDetail = ": Retrieving Ground Layout [" + IntText(st.FileLayoutID) + "] from GrndNames";
    // Every unit of a layout names the same record, and nothing the load writes between two
    // of them changes its sum: it is looked up once per layout.
    if (st.CommentLayoutID != st.FileLayoutID) {
        st.CommentLayoutTotal = 0;
        SharedLookup rs(ed.db,
                        "SELECT UnitTotal FROM GrndNames Where ID=" + IntText(st.FileLayoutID));
        if (!rs->Eof()) {
            rs->MoveFirst();
            st.CommentLayoutTotal = rs->Fields("UnitTotal").Long();
        }
        st.CommentLayoutID = st.FileLayoutID;
    }
    if (st.CommentLayoutTotal > 0) {
        st.LayoutKnown = true;
        st.UnitSum = st.CommentLayoutTotal;
    }
    ed.StepDetail.clear();
}

void ReadGroundUnitType(Editor& ed, std::int32_t type) {
    MissionLoaderState& st = ed.loader;
    if (!st.LayoutKnown) st.UnitSum = CLng(static_cast<double>(st.UnitSum) + type);
}

void ReadGroundUnitLat(Editor& ed, const std::string& text) {
    if (!ed.placement.UnitLat.empty()) return;
    ed.placement.UnitLat = text;
    ed.loader.FirstUnitLat = CSng(CoordTextToDegrees(text));
}

void ReadGroundUnitLon(Editor& ed, const std::string& text) {
    if (!ed.placement.UnitLon.empty()) return;
    ed.placement.UnitLon = text;
    ed.loader.FirstUnitLon = CSng(CoordTextToDegrees(text));
}

void StoreGroundUnit(Editor& ed, std::int32_t type, std::uint8_t points, const std::string& lat,
                     const std::string& lon) {
    ed.loader.PendingUnits.push_back({type, points, lat, lon});
}

void NoteLayoutTakenByAirfield(Editor& ed, int row, const std::string& airfield, float miles) {
    std::vector<LayoutLoadNote>& notes = ed.loader.LayoutNotes;
    for (LayoutLoadNote& note : notes) {
        // A nearer runway later in the file takes the layout from the first one.
        if (note.row != row) continue;
        note.airfield = airfield;
        note.miles = miles;
        return;
    }
    const std::string text = ed.FrmMission.lstGUAdded.List(row);
    const std::size_t dot = text.find(". ");
    notes.push_back({row, dot == std::string::npos ? text : text.substr(dot + 2), airfield, miles});
}

double NoteKilometres(const LayoutLoadNote& note) {
    return note.miles * kKmPerMile;
}

std::string LayoutNotesText(const std::vector<LayoutLoadNote>& notes) {
    std::string text;
    for (const LayoutLoadNote& note : notes) {
        if (!text.empty()) text += "; ";
        if (note.airfield.empty()) {
            text += "New layout '" + note.layoutName + "' made from the file's units";
        } else {
            text += "Layout '" + note.layoutName + "' lies " + Format(NoteKilometres(note), "0.0") +
                    " km from " + note.airfield +
                    " and is taken by its runway: its units move at the next save";
        }
    }
    return text;
}

}  // namespace tarvex
