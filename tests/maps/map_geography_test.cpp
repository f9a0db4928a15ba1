// The committed theatre maps against real geography: a place projected by the editor must land
// on land or water in the bitmap as it does on the globe, on the leaning maps too.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <numbers>
#include <optional>
#include <string>
#include <vector>

#include "maps/map_catalogue.h"
#include "maps/map_projection.h"

namespace tarvex {
namespace {

// Just enough of a 24-bit uncompressed bitmap to look at its pixels.
struct Bitmap {
    int width = 0;
    int height = 0;
    std::int32_t xPixelsPerMetre = 0;
    std::int32_t yPixelsPerMetre = 0;
    std::vector<unsigned char> bgr;  // top row first

    const unsigned char* At(int x, int y) const {
        return &bgr[(static_cast<size_t>(y) * width + x) * 3];
    }
};

std::uint32_t U32(const std::string& b, size_t at) {
    std::uint32_t v = 0;
    for (int i = 3; i >= 0; --i)
        v = v << 8 | static_cast<unsigned char>(b[at + i]);
    return v;
}

std::optional<Bitmap> ReadBitmap(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    const std::string b((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    if (b.size() < 54 || b[0] != 'B' || b[1] != 'M' || U32(b, 14) < 40) return std::nullopt;
    if ((U32(b, 28) & 0xFFFF) != 24 || U32(b, 30) != 0) return std::nullopt;
    Bitmap bmp;
    bmp.width = static_cast<std::int32_t>(U32(b, 18));
    const auto rawHeight = static_cast<std::int32_t>(U32(b, 22));
    bmp.height = std::abs(rawHeight);
    bmp.xPixelsPerMetre = static_cast<std::int32_t>(U32(b, 38));
    bmp.yPixelsPerMetre = static_cast<std::int32_t>(U32(b, 42));
    const size_t offset = U32(b, 10);
    const size_t stride = (static_cast<size_t>(bmp.width) * 3 + 3) & ~size_t{3};
    if (bmp.width <= 0 || bmp.height == 0 || offset + stride * bmp.height > b.size())
        return std::nullopt;
    for (int y = 0; y < bmp.height; ++y) {
        const int stored = rawHeight > 0 ? bmp.height - 1 - y : y;
        const char* row = b.data() + offset + stride * stored;
        bmp.bgr.insert(bmp.bgr.end(), row, row + bmp.width * 3);
    }
    return bmp;
}

// Size in map units as the editor's picture surface takes it from the header.
double Twips(int pixels, std::int32_t pixelsPerMetre) {
    return pixels * 1440.0 / (pixelsPerMetre / 39.37007874015748);
}

enum class Ground { Land, Water };

// Land is a pale buff (red over green over blue), water a pale blue-grey (blue and green over
// red). Ink of names, lines and symbols is darker or red and counts for neither, so the
// majority of a small window around the pixel decides.
std::optional<Ground> GroundAround(const Bitmap& bmp, int cx, int cy) {
    int land = 0, water = 0;
    for (int y = cy - 2; y <= cy + 2; ++y) {
        for (int x = cx - 2; x <= cx + 2; ++x) {
            const int b = bmp.At(x, y)[0], g = bmp.At(x, y)[1], r = bmp.At(x, y)[2];
            if (std::min({r, g, b}) < 150) continue;
            if (r - b >= 12 && g - b >= 8) ++land;
            if (b - r >= 6 && g >= r) ++water;
        }
    }
    if (land == water) return std::nullopt;
    return land > water ? Ground::Land : Ground::Water;
}

struct Place {
    const char* name;
    double lat;
    double lon;  // east positive
    Ground ground;
    double clearanceKm;  // distance to the nearest coast
};

constexpr Place kPlaces[] = {
    {"Thames mouth", 51.50, 1.10, Ground::Water, 5},
    {"Outer Thames estuary", 51.70, 1.40, Ground::Water, 8},
    {"Essex interior", 51.75, 0.50, Ground::Land, 8},
    {"London", 51.56, -0.12, Ground::Land, 4},
    {"Kent interior", 51.20, 0.90, Ground::Land, 10},
    {"Sussex Weald", 51.00, -0.30, Ground::Land, 15},
    {"Channel off Beachy Head", 50.60, 0.30, Ground::Water, 10},
    {"Behind Cap Gris-Nez", 50.83, 1.72, Ground::Land, 5},
    {"Strait off Cap Gris-Nez", 50.90, 1.45, Ground::Water, 8},
    {"Isle of Wight interior", 50.67, -1.30, Ground::Land, 4},
    {"Spithead in the Solent", 50.75, -1.08, Ground::Water, 2.5},
    {"Seine estuary", 49.45, 0.02, Ground::Water, 3},
    {"Mid-Channel", 50.20, -1.00, Ground::Water, 30},
    {"Cotentin interior", 49.45, -1.45, Ground::Land, 8},
    {"Jersey", 49.21, -2.13, Ground::Land, 3},
    {"Beauce", 48.25, 1.75, Ground::Land, 100},
    {"Brest hinterland", 48.46, -4.42, Ground::Land, 4},
    {"Iroise off Brest", 48.25, -4.95, Ground::Water, 10},
    {"Bay of Biscay", 46.00, -3.00, Ground::Water, 40},
    {"North Sea", 52.60, 2.80, Ground::Water, 40},
    {"Texel", 53.08, 4.79, Ground::Land, 3},
    {"Wieringermeer, west end of the Afsluitdijk", 52.84, 5.02, Ground::Land, 4},
    {"Friesland, east end of the Afsluitdijk", 53.03, 5.55, Ground::Land, 5},
    {"IJsselmeer behind the Afsluitdijk", 52.85, 5.27, Ground::Water, 4},
    {"German Bight", 54.20, 7.50, Ground::Water, 15},
    {"Hanover", 52.37, 9.73, Ground::Land, 50},
    {"Mecklenburg Bay", 54.30, 11.50, Ground::Water, 10},
    {"Bavaria", 48.50, 11.00, Ground::Land, 100},
};

class MapGeographyTest : public ::testing::TestWithParam<int> {
  protected:
    const MapInfo& Map() const { return kMapCatalogue[static_cast<size_t>(GetParam())]; }
    std::optional<Bitmap> Load() const {
        return ReadBitmap(std::string(TARVEX_SOURCE_DIR) + "/data/maps/" +
                          std::string(Map().BitmapFile));
    }
};

TEST_P(MapGeographyTest, HeaderPromisesASizeThatFitsTheMapArea) {
    const std::optional<Bitmap> bmp = Load();
    ASSERT_TRUE(bmp);
    EXPECT_EQ(bmp->xPixelsPerMetre, 7559);
    EXPECT_EQ(bmp->yPixelsPerMetre, 7559);
    const double width = std::nearbyint(Twips(bmp->width, bmp->xPixelsPerMetre));
    const double height = std::nearbyint(Twips(bmp->height, bmp->yPixelsPerMetre));
    EXPECT_LE(width, 5016);
    EXPECT_LE(height, 4860);
    // One side fills the area; the other follows the geography, not a stretched picture.
    EXPECT_TRUE(width >= 5016 - 15 || height >= 4860 - 15) << width << " x " << height;
    const double midLat = (Map().MapTopLat + Map().MapBottomLat) / 2;
    MapProjection projection;
    projection.SetMap(GetParam(), width, height);
    projection.CurLat = static_cast<float>(midLat);
    projection.UpdateLatitudeBand();
    const double ground = projection.LonPerUnit * width *
                          std::cos(midLat * std::numbers::pi / 180) /
                          (Map().MapTopLat - Map().MapBottomLat);
    EXPECT_NEAR(width / height, ground, 0.01 * ground);
}

TEST_P(MapGeographyTest, KnownPlacesLieOnLandOrWater) {
    const std::optional<Bitmap> bmp = Load();
    ASSERT_TRUE(bmp);
    MapProjection projection;
    projection.SetMap(GetParam(), Twips(bmp->width, bmp->xPixelsPerMetre),
                      Twips(bmp->height, bmp->yPixelsPerMetre));
    int checked = 0;
    for (const Place& place : kPlaces) {
        float x = 0, y = 0;
        projection.DegreesToMap(static_cast<float>(place.lat), static_cast<float>(place.lon), x, y);
        const int px = static_cast<int>(x * 192 / 1440);
        const int py = static_cast<int>(y * 192 / 1440);
        // The edges carry the graticule's labels.
        if (px < 16 || py < 16 || px >= bmp->width - 16 || py >= bmp->height - 16) continue;
        // A place closer to a coast than a few pixels can't be told apart at this scale.
        const double pixelKm =
            std::max(projection.LatPerUnit,
                     projection.LonPerUnit *
                         static_cast<float>(std::cos(place.lat * std::numbers::pi / 180))) *
            1440 / 192 * 111.2;
        if (place.clearanceKm < 3 * pixelKm) continue;
        ++checked;
        const std::optional<Ground> ground = GroundAround(*bmp, px, py);
        ASSERT_TRUE(ground) << place.name << " at pixel " << px << "," << py;
        EXPECT_EQ(*ground, place.ground) << place.name << " at pixel " << px << "," << py;
    }
    EXPECT_GE(checked, 6);
}

INSTANTIATE_TEST_SUITE_P(TheatreMaps, MapGeographyTest, ::testing::Range(0, kMapCount),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return std::string(
                                 kMapCatalogue[static_cast<size_t>(info.param)].RowText);
                         });

}  // namespace
}  // namespace tarvex
