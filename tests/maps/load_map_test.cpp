#include "document/mission_reset.h"
#include "maps/map_catalogue.h"
#include "maps/map_loading.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "shell/mission_form_load.h"
#include "support/test_editor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>

namespace tarvex {
namespace {

using testing::TestEditor;

void Put32(std::string& b, std::size_t at, std::int32_t v) {
    for (int i = 0; i < 4; ++i)
        b[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
}

// The headers of a bitmap of the given size in pixels, at 96 dots per inch: 15 map units to
// the pixel. The surface reads no further than the headers.
void WriteBitmap(const std::filesystem::path& file, int width, int height) {
    std::string b(54, '\0');
    b[0] = 'B';
    b[1] = 'M';
    Put32(b, 14, 40);
    Put32(b, 18, width);
    Put32(b, 22, height);
    std::ofstream(file, std::ios::binary) << b;
}

class LoadMapTest : public ::testing::Test {
  protected:
    void SetUp() override {
        LoadFrmMission(ed);
        ResetMission(ed);
        ed.options.MapPath = t.folder.string();
        ed.doc.WPLat(0, 0) = "N51 00.00";
        ed.doc.WPLon(0, 0) = "E00 30.00";
    }

    TestEditor t;
    Editor& ed = t.OpenDatabase();
    PictureSurface& map = ed.FrmMission.mapWayPoints;
};

TEST_F(LoadMapTest, TakesTheBitmapSizeAndTheMapConstantsAndPlotsTheStart) {
    WriteBitmap(t.folder / "Map3.bmp", 400, 300);
    map.Circle(1, 1, 48);
    LoadMap(ed, map, 2);
    EXPECT_EQ(map.Picture(), (t.folder / "Map3.bmp").string());
    EXPECT_EQ(ed.projection.MapWidth, 6000);
    EXPECT_EQ(ed.projection.MapHeight, 4500);
    EXPECT_EQ(ed.projection.MapTopLat, kMapCatalogue[2].MapTopLat);
    EXPECT_FLOAT_EQ(ed.projection.LatPerUnit, (51.7667f - 50.5f) / 4500);
    // The old drawing went with the old bitmap; the Start point's plot is the one circle.
    ASSERT_EQ(map.Operations().size(), 1u);
    EXPECT_FLOAT_EQ(map.Operations()[0].x1, ed.doc.WPMapX(0, 0));
    EXPECT_FLOAT_EQ(ed.doc.WPMapX(0, 0), std::trunc((0.6f + 0.5f) / ed.projection.LonPerUnit));
}

TEST_F(LoadMapTest, UnusableBitmapLeavesAPlainMapWithAWarning) {
    WriteBitmap(t.folder / "Map1.bmp", 400, 300);
    WriteBitmap(t.folder / "Map2.bmp", 3000, 300);  // 45000 map units: beyond 16 bits
    for (int index : {5, 1}) {
        LoadMap(ed, map, 0);
        ed.MDIMissionED.Picture1.Cls();
        LoadMap(ed, map, index);
        EXPECT_EQ(map.Picture(), "") << index;
        EXPECT_EQ(map.Width(), kDefaultMapWidth);
        EXPECT_EQ(map.Height(), kDefaultMapHeight);
        EXPECT_EQ(ed.projection.MapWidth, 5016);
        EXPECT_EQ(ed.projection.MapTopLat, kMapCatalogue[index].MapTopLat);
        const auto& status = ed.MDIMissionED.Picture1.Operations();
        ASSERT_EQ(status.size(), 1u) << index;
        EXPECT_EQ(status[0].pen, 255);
        // The plain map still takes points.
        EXPECT_GT(ed.doc.WPMapY(0, 0), 0);
    }
}

TEST_F(LoadMapTest, NoRowKeepsPictureAndConstantsButTakesTheSizeAgain) {
    WriteBitmap(t.folder / "Map4.bmp", 400, 300);
    LoadMap(ed, map, 3);
    map.Move(0, 0, 3000, 2000);
    LoadMap(ed, map, -1);
    EXPECT_EQ(map.Picture(), (t.folder / "Map4.bmp").string());
    EXPECT_EQ(ed.projection.MapTopLat, kMapCatalogue[3].MapTopLat);
    EXPECT_EQ(ed.projection.MapHeight, 2000);

    // A surface that never had a map gets the plain size rather than no scale at all.
    PictureSurface fresh("fresh");
    LoadMap(ed, fresh, -1);
    EXPECT_EQ(fresh.Width(), kDefaultMapWidth);
}

TEST_F(LoadMapTest, MapComboLoadsOnlyOutsideAnOpenAndRedrawsOutsideAReset) {
    WriteBitmap(t.folder / "Map2.bmp", 400, 300);
    auto& combo = ed.FrmMission.cmbSelectMap;
    ed.doc.NotLoading = false;
    combo.SetListIndex(1);
    EXPECT_EQ(map.Picture(), "");
    ed.doc.NotLoading = true;
    ed.doc.NotResetting = false;
    combo.SetListIndex(0);
    combo.SetListIndex(1);
    EXPECT_EQ(map.Picture(), (t.folder / "Map2.bmp").string());
    EXPECT_EQ(map.Operations().size(), 1u);  // the Start plot, no redraw
    ed.doc.NotResetting = true;
    combo.SetListIndex(0);
    combo.SetListIndex(1);
    EXPECT_GT(map.Operations().size(), 1u);
}

}  // namespace
}  // namespace tarvex
