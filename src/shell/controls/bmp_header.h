#pragma once
// Reads the size and resolution of a Windows bitmap file from its headers, without decoding
// the pixels: a picture surface takes its size in map units from them.
#include <cstdint>
#include <optional>
#include <string>

namespace tarvex {

struct BmpInfo {
    int widthPixels = 0;
    int heightPixels = 0;  // always positive; top-down bitmaps store it negated
    std::int32_t xPixelsPerMetre = 0;
    std::int32_t yPixelsPerMetre = 0;

    // Dots per inch from the pixels per metre, 96 when the header gives none.
    double DpiX() const;
    double DpiY() const;
    // Size in map units: pixels × 1440 / dots per inch.
    double WidthTwips() const { return widthPixels * 1440.0 / DpiX(); }
    double HeightTwips() const { return heightPixels * 1440.0 / DpiY(); }
};

// Nothing when the bytes are not a bitmap header this reader knows (BITMAPCOREHEADER or
// BITMAPINFOHEADER and its later forms) or the size is zero.
std::optional<BmpInfo> ParseBmpHeader(const std::string& bytes);
// Nothing when the file can't be read or isn't a bitmap.
std::optional<BmpInfo> ReadBmpHeader(const std::string& path);

}  // namespace tarvex
