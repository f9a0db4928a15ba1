#include "document/ground_reconstruction.h"

#include <vector>

#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"
#include "document/coord_text.h"
#include "ground/layout_markers.h"
#include "ground/mission_layouts.h"
#include "maps/map_loading.h"
#include "shell/editor.h"
#include "shell/forms/frm_mission.h"

namespace tarvex {

namespace {

// Kilometres to minutes of arc, as the stored layouts measure their offsets.
constexpr double kKmPerMinute = 1.8236;

// Opens a snapshot into theRS; the caller closes it.
Recordset& OpenLookup(Editor& ed, const std::string& sql) {
    ed.db.theRS = ed.db.theDB.OpenRecordset(sql, kSnapshot);
    return ed.db.theRS;
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
    Mission& doc = ed.doc;
    auto& frm = ed.FrmMission;

    ed.StepDetail = ": Accessing MDB.GrndNames Table";
    const std::string select = "SELECT UnitTotal,ID,LayoutName,IsDefault,GUType FROM GrndNames ";
    Recordset& rs = OpenLookup(ed, st.LayoutKnown ? select + "Where ID=" + IntText(st.FileLayoutID)
                                                  : select + "Where UnitTotal=" + IntText(unitSum));
    if (rs.Eof()) {
        rs.Close();
        // The pending record becomes the layout: with its sum it is found on the next try.
        // When even that finds nothing the record is gone, and trying again would never end.
        if (depth > 0) Raise(kErrOutOfStack);
        ed.db.theDB.Execute("UPDATE GrndNames Set UnitTotal = " + IntText(unitSum) +
                            " where ID = " + IntText(st.PendingLayoutID));
        std::int32_t sum = unitSum;
        Match(ed, unitId, sum, false, depth + 1);
        WindUp(ed, unitSum);
        return;
    }

    rs.MoveFirst();
    const std::int32_t layoutId = rs.Fields("ID").Long();
    const std::string layoutName = rs.Fields("LayoutName").Text();
    const int number = frm.lstGUAdded.ListCount() + 1;
    // A default airfield layout is stored a quarter turn from its runway.
    if (rs.Fields(3).Bool() && rs.Fields(4).Long() > 1) doc.GURotation(number - 1) = 90;
    rs.Close();
    if (deletePending) {
        ed.db.theDB.Execute("DELETE * FROM GrndNames where ID = " + IntText(st.PendingLayoutID));
        --st.UnnamedCount;
    }

    // From the first unit, its own offset turned half a circle leads back to the origin.
    ed.placement.LayoutHeading =
        NormalizeHeading(static_cast<float>(ed.placement.LayoutHeading - 180));
    ed.placement.SetLayoutFrame(ed.placement.UnitLat, ed.placement.UnitLon);
    ed.StepDetail = ": Searching MDB.GrndTypes Table for Unit ID " + IntText(layoutId);
    Recordset& units = OpenLookup(
        ed, "SELECT ID,UnitType,Points,Heading,XOffset,YOffset FROM GrndTypes Where ID=" +
                IntText(layoutId));
    units.MoveFirst();
    const double heading = units.Fields(3).Double();
    const float xOffset = CSng(units.Fields(4).Double());
    const float yOffset = CSng(units.Fields(5).Double());
    units.Close();
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
    WindUp(ed, unitSum);
}

}  // namespace

std::int16_t NewUnnamedLayout(Editor& ed) {
    MissionLoaderState& st = ed.loader;
    ++st.UnnamedCount;
    const std::string& file = ed.doc.MissionFile;
    const std::string name = "Unnamed Layout" + IntText(st.UnnamedCount) + " in file [" +
                             Left(file, static_cast<long long>(file.size()) - 4) + "]";
    Recordset& rs = OpenLookup(ed, "qryNextGuID");
    std::int16_t id = 0;
    try {
        rs.MoveFirst();
        id = rs.Fields("NextID").Integer();
    } catch (...) {
        rs.Close();
        throw;
    }
    rs.Close();
    ed.db.theDB.Execute(
        " INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES (" + IntText(id) +
        ",'" + name + "', 0,0,1);");
    return id;
}

void MatchGroundLayout(Editor& ed, std::int16_t unitId, std::int32_t& unitSum, bool deletePending) {
    try {
        Match(ed, unitId, unitSum, deletePending, 0);
    } catch (...) {
        ed.db.theRS.Close();
        throw;
    }
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
    Recordset& rs =
        OpenLookup(ed, "SELECT UnitTotal FROM GrndNames Where ID=" + IntText(st.FileLayoutID));
    try {
        if (!rs.Eof()) {
            rs.MoveFirst();
            const std::int32_t total = rs.Fields("UnitTotal").Long();
            if (total > 0) {
                st.LayoutKnown = true;
                st.UnitSum = total;
            }
        }
    } catch (...) {
        rs.Close();
        throw;
    }
    rs.Close();
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
    MissionLoaderState& st = ed.loader;
    const float unitLat = CSng(CoordTextToDegrees(lat));
    const float unitLon = CSng(CoordTextToDegrees(lon));
    const MapProjection& proj = ed.projection;
    const float northSouth = proj.GreatCircleDistance(unitLat, unitLon, st.FirstUnitLat, unitLon);
    const float eastWest = proj.GreatCircleDistance(unitLat, unitLon, unitLat, st.FirstUnitLon);
    float xOffset = CSng(Val(Format(northSouth, "0.0000")) / kKmPerMinute);
    float yOffset = CSng(Val(Format(eastWest, "0.0000")) / kKmPerMinute);
    if (unitLat < st.FirstUnitLat) xOffset = -xOffset;
    if (unitLon < st.FirstUnitLon) yOffset = -yOffset;
    ed.db.theDB.Execute(" INSERT INTO GrndTypes (ID,UnitType,Points,XOffset,YOffset) VALUES (" +
                        IntText(st.PendingLayoutID) + "," + IntText(type) + "," + IntText(points) +
                        "," + FloatText(xOffset) + "," + FloatText(yOffset) + ");");
}

}  // namespace tarvex
