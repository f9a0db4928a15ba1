#pragma once
// Writes a QImage as an uncompressed 24-bit Windows bitmap (BITMAPINFOHEADER) with a given
// resolution in its header: the editor takes a picture's size in map units from it.
#include <QImage>
#include <string>

namespace tarvex::mapgen {

// 192 dots per inch, the density of every generated picture.
inline constexpr int kPixelsPerMetre = 7559;
inline constexpr double kDotsPerInch = kPixelsPerMetre / 39.37007874015748;

// Pixels to map units (twips) the way a reader of the header computes them.
inline double PixelsToTwips(int pixels) {
    return pixels * 1440.0 / kDotsPerInch;
}

bool WriteBmp24(const QImage& image, const std::string& path, int pixelsPerMetre = kPixelsPerMetre);

}  // namespace tarvex::mapgen
