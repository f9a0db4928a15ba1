#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>

#include "common/error.h"
#include "shell/controls/bmp_header.h"
#include "shell/controls/picture_surface.h"

namespace tarvex {
namespace {

void Put32(std::string& b, std::size_t at, std::int32_t v) {
    for (int i = 0; i < 4; ++i)
        b[at + i] = static_cast<char>((v >> (8 * i)) & 0xFF);
}

// The two headers of a BITMAPINFOHEADER bitmap, without pixels.
std::string BmpHeader(std::int32_t width, std::int32_t height, std::int32_t ppm) {
    std::string b(54, '\0');
    b[0] = 'B';
    b[1] = 'M';
    Put32(b, 14, 40);
    Put32(b, 18, width);
    Put32(b, 22, height);
    Put32(b, 38, ppm);
    Put32(b, 42, ppm);
    return b;
}

TEST(BmpHeaderTest, SizeInMapUnitsFromPixelsAndResolution) {
    struct Case {
        std::int32_t width, height, ppm;
        double twipsWide, twipsHigh;
    };
    const Case cases[] = {
        {800, 600, 0, 12000, 9000},          // no resolution: 96 dpi, 15 twips a pixel
        {800, -600, 3780, 11998.5, 8998.9},  // top-down, 96.01 dpi
        {720, 360, 2835, 14398.2, 7199.1},   // 72.01 dpi
    };
    for (const auto& c : cases) {
        const auto info = ParseBmpHeader(BmpHeader(c.width, c.height, c.ppm));
        ASSERT_TRUE(info) << c.width;
        EXPECT_NEAR(info->WidthTwips(), c.twipsWide, 1.0) << c.width;
        EXPECT_NEAR(info->HeightTwips(), c.twipsHigh, 1.0) << c.width;
    }
}

TEST(BmpHeaderTest, RejectsWhatIsNoBitmap) {
    const std::string bad[] = {
        "",
        "BM",
        std::string(54, 'x'),
        BmpHeader(0, 10, 0),
        BmpHeader(-5, 10, 0),
        BmpHeader(10, 10, 0).substr(0, 30),
    };
    for (const auto& bytes : bad)
        EXPECT_FALSE(ParseBmpHeader(bytes)) << bytes.size();
}

TEST(PictureSurfaceTest, LoadTakesTheBitmapSizeAndAFailureKeepsTheOldOne) {
    const auto dir = std::filesystem::temp_directory_path();
    const auto good = (dir / "tarvex_surface_test.bmp").string();
    std::ofstream(good, std::ios::binary) << BmpHeader(640, 480, 0);

    PictureSurface map("mapWayPoints");
    ASSERT_TRUE(map.LoadPicture(good));
    EXPECT_FLOAT_EQ(map.ScaleWidth(), 9600);
    EXPECT_FLOAT_EQ(map.ScaleHeight(), 7200);

    map.Circle(10, 10, 48);
    EXPECT_FALSE(map.LoadPicture((dir / "tarvex_no_such_map.bmp").string()));
    EXPECT_EQ(map.Picture(), good);
    EXPECT_FLOAT_EQ(map.ScaleWidth(), 9600);
    EXPECT_EQ(map.Operations().size(), 1u);
    ASSERT_TRUE(map.LoadPicture(good));
    EXPECT_TRUE(map.Operations().empty());
    std::filesystem::remove(good);
}

TEST(PictureSurfaceTest, RecordsEachOperationWithThePenAndFillInForce) {
    PictureSurface map("mapWayPoints");
    map.SetForeColor(0);
    map.SetFillColor(Rgb(255, 0, 0));
    map.SetFillStyle(kFillSolid);
    map.Circle(100, 200, 48);
    map.Print("Start");
    map.SetFillStyle(kFillTransparent);
    map.SetDrawWidth(2);
    map.Line(100, 200, 300, 400, Rgb(255, 255, 0));
    map.Print("1", false);

    const auto& ops = map.Operations();
    ASSERT_EQ(ops.size(), 4u);
    EXPECT_EQ(ops[0].kind, DrawKind::Circle);
    EXPECT_EQ(ops[0].fillColor, 255);
    EXPECT_EQ(ops[0].fillStyle, kFillSolid);
    // Text goes where the last figure left the pen: a circle's centre, a line's end.
    EXPECT_EQ(ops[1].kind, DrawKind::Text);
    EXPECT_FLOAT_EQ(ops[1].x1, 100);
    EXPECT_FLOAT_EQ(ops[1].y1, 200);
    EXPECT_EQ(ops[2].pen, Rgb(255, 255, 0));
    EXPECT_EQ(ops[2].drawWidth, 2);
    EXPECT_EQ(ops[2].fillStyle, kFillTransparent);
    EXPECT_FLOAT_EQ(ops[3].x1, 300);
    EXPECT_FLOAT_EQ(ops[3].y1, 400);
    EXPECT_FLOAT_EQ(map.CurrentX(), 300 + map.TextWidth("1"));

    map.Cls();
    EXPECT_TRUE(map.Operations().empty());
    EXPECT_FLOAT_EQ(map.CurrentX(), 0);
}

TEST(PictureSurfaceTest, PrintWithNewLineReturnsToTheLeftEdgeOneLineDown) {
    PictureSurface status("Picture1");
    status.measureHeight = [](const std::string&) { return 200.0f; };
    status.SetCurrent(500, 10);
    status.Print("Ready");
    EXPECT_FLOAT_EQ(status.CurrentX(), 0);
    EXPECT_FLOAT_EQ(status.CurrentY(), 210);
}

TEST(PaletteTest, ClassicColoursByIndex) {
    EXPECT_EQ(QBColor(0), 0);
    EXPECT_EQ(QBColor(1), Rgb(0, 0, 128));
    EXPECT_EQ(QBColor(12), 255);
    EXPECT_EQ(QBColor(15), Rgb(255, 255, 255));
    EXPECT_THROW(QBColor(16), AppError);
}

}  // namespace
}  // namespace tarvex
