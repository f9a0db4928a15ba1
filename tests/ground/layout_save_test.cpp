// A mission saved after its layouts were placed and edited on the tab: the units stand in the
// file where the editor's values put them.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>
#include <string>

#include "document/mission_saver.h"
#include "document/unit_placement.h"
#include "document/writer_test_mission.h"
#include "ground/ground_tab_fixture.h"
#include "ground/layout_transform.h"
#include "refdata/shared_lookup.h"

namespace tarvex {
namespace {

using testing::GroundTab;

// "key=value" lines of one [unit.N] section by its id.
std::map<int, std::map<std::string, std::string>> UnitsById(const std::string& text) {
    std::map<int, std::map<std::string, std::string>> units;
    std::istringstream in(text);
    std::string line;
    std::map<std::string, std::string> section;
    const auto flush = [&] {
        if (section.count("id")) units[std::stoi(section["id"])] = section;
        section.clear();
    };
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (!line.empty() && line[0] == '[') flush();
        const size_t eq = line.find('=');
        if (eq != std::string::npos) section[line.substr(0, eq)] = line.substr(eq + 1);
    }
    flush();
    return units;
}

class LayoutSaveTest : public GroundTab {
  protected:
    void TearDown() override { std::filesystem::remove_all(folder); }
    std::filesystem::path folder = testing::MakeTestFolder("layout-save");
};

TEST_F(LayoutSaveTest, WritesTheUnitsWhereTheEditorsValuesPutThem) {
    // A mission with groups and paths, and two layouts of its own in rows 0 and 1.
    testing::BuildSampleMission(ed);
    SelectTab(ed, kGroundUnitsTab);
    Place("Light AA Site Bofors", 2000, 1500);
    Place("Army Camp", 3000, 3000);
    PlaceOnAirfield("RAF Satellite Field", testing::kHawkingeRow);

    ASSERT_EQ(doc.GUCount, 5);
    frm.lstGUAdded.SetListIndex(2);
    frm.lstGUAdded.RaiseDblClick();
    frm.btnXPos.SetValue(50);
    frm.btnYPos.SetValue(-30);
    frm.btnSpread.SetValue(4);
    frm.btnRotate2.SetValue(20);
    frm.btnRotate90.UserClick();
    frm.btnGUClose.UserClick();
    // The designer's values as the file will use them.
    EXPECT_EQ(doc.GUShiftX(2), -0.3f);
    EXPECT_EQ(doc.GUShiftY(2), -0.5f);
    EXPECT_EQ(doc.GUSpread(2), 0.5f);
    EXPECT_EQ(doc.GURotation(2), 110);

    doc.MissionPath = (folder / "layouts.mis").string();
    doc.MissionFile = "layouts.mis";
    SaveMission(ed);
    ASSERT_TRUE(t.dialogs.messages.empty()) << t.dialogs.LastMessage();
    const std::string text = testing::ReadBytes(folder / "layouts.mis");
    testing::ExpectMatchesGolden(text, "layout_edit.mis");

    // The same units placed by a second road: the stored offsets moved by those values.
    const auto units = UnitsById(text);
    SharedLookup rows(ed.db, "SELECT Heading,XOffset,YOffset FROM GrndTypes Where ID=2");
    int id = 2000 + 60 * 2;
    for (Recordset& rs = rows.rs; !rs.Eof(); rs.MoveNext(), ++id) {
        SCOPED_TRACE(id);
        LayoutTransform transform;
        transform.SetFromRotation(110);
        float a = static_cast<float>(rs.Fields(1).Double());
        float b = static_cast<float>(rs.Fields(2).Double());
        transform.ApplyLayoutTransform(a, b, 0.5f, -0.3f, -0.5f);
        UnitPlacement place;
        place.LayoutHeading = 0;
        place.SetLayoutFrame(doc.GULat(2), doc.GULon(2));
        place.PlaceUnit(rs.Fields(0).Double(), a, b);
        ASSERT_TRUE(units.count(id));
        EXPECT_EQ(units.at(id).at("position_lat"), place.UnitLat);
        EXPECT_EQ(units.at(id).at("position_lon"), place.UnitLon);
    }
    EXPECT_EQ(id, 2125);
}

}  // namespace
}  // namespace tarvex
