#pragma once
// A new mission on the default database with a map of known scale, and the designer's
// gestures on the Waypoints tab.
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "document/mission_reset.h"
#include "maps/point_slots.h"
#include "maps/tab_selection.h"
#include "refdata/reference_lookups.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "shell/status_strip.h"
#include "support/test_editor.h"

namespace tarvex::testing {

class WaypointTest : public ::testing::Test {
  protected:
    TestEditor t;
    Editor& ed = t.OpenDatabase();
    FrmMission& frm = ed.FrmMission;
    Mission& doc = ed.doc;

    void SetUp() override {
        LoadFrmMission(ed);
        ResetMission(ed);
        ed.projection.SetDistanceUnits(false);
        // Map 1 on a surface of 8000 by 6000 map units, without its bitmap.
        ed.projection.SetMap(0, 8000, 6000);
        frm.SSTab1.SetTab(kWaypointsTab);
        ed.shell.sndCheckbox = 1;
        ed.shell.sndClick = 2;
        ed.shell.sndFlak = 3;
        t.dialogs.ClearRecord();
        t.sound.plays.clear();
    }

    // The pointer comes to (x, y) and the left button goes down and up there.
    void Click(float x, float y) {
        frm.mapWayPoints.RaiseMouseMove(0, 0, x, y);
        frm.mapWayPoints.RaiseMouseDown(kLeftButton, 0, x, y);
        frm.mapWayPoints.RaiseMouseUp(kLeftButton, 0, x, y);
    }
    // A press at `from`, a move to `to` with the button down, the release there.
    void Drag(std::pair<float, float> from, std::pair<float, float> to) {
        PictureSurface& map = frm.mapWayPoints;
        map.RaiseMouseMove(0, 0, from.first, from.second);
        map.RaiseMouseDown(kLeftButton, 0, from.first, from.second);
        map.RaiseMouseMove(kLeftButton, 0, to.first, to.second);
        map.RaiseMouseUp(kLeftButton, 0, to.first, to.second);
    }
    // `count` waypoints on the current path, 600 map units apart along a diagonal.
    void ClickPoints(int count) {
        for (int i = 0; i < count; ++i)
            Click(600.0f + 400 * i, 500.0f + 300 * i);
    }

    // Latitude and longitude text of a slot of the current path, as one text.
    std::string Position(int slot, int path = -1) const {
        const int p = path < 0 ? doc.CurrentPath : path;
        return doc.WPLat(p, slot) + " " + doc.WPLon(p, slot);
    }
    // The coordinate text of airfield `row`, as the airfield combos give it.
    std::string Airfield(int row) {
        std::string lat, lon;
        std::int16_t type = 0, elevation = 0, rwy = 0;
        double rot = 0;
        LoadAirfieldPoint(ed, lat, lon, row, type, elevation, rot, rwy);
        return lat + " " + lon;
    }
    std::string StatusText() const {
        const auto& ops = ed.MDIMissionED.Picture1.Operations();
        return ops.empty() ? std::string() : ops.back().text;
    }
};

}  // namespace tarvex::testing
