#include "bmp_writer.h"

#include <cstdint>
#include <fstream>
#include <vector>

namespace tarvex::mapgen {
namespace {

void Put16(std::vector<unsigned char>& out, std::uint16_t v) {
    out.push_back(static_cast<unsigned char>(v & 0xFF));
    out.push_back(static_cast<unsigned char>(v >> 8));
}

void Put32(std::vector<unsigned char>& out, std::uint32_t v) {
    for (int shift = 0; shift < 32; shift += 8)
        out.push_back(static_cast<unsigned char>(v >> shift));
}

}  // namespace

bool WriteBmp24(const QImage& source, const std::string& path, int pixelsPerMetre) {
    const QImage image = source.convertToFormat(QImage::Format_RGB888);
    const auto width = static_cast<std::uint32_t>(image.width());
    const auto height = static_cast<std::uint32_t>(image.height());
    const std::uint32_t stride = (width * 3 + 3) & ~3u;  // rows are padded to 4 bytes
    const std::uint32_t pixelBytes = stride * height;
    constexpr std::uint32_t kHeaders = 14 + 40;

    std::vector<unsigned char> out;
    out.reserve(kHeaders + pixelBytes);
    out.push_back('B');
    out.push_back('M');
    Put32(out, kHeaders + pixelBytes);
    Put32(out, 0);
    Put32(out, kHeaders);
    Put32(out, 40);
    Put32(out, width);
    Put32(out, height);  // positive: rows stored bottom-up
    Put16(out, 1);
    Put16(out, 24);
    Put32(out, 0);  // BI_RGB
    Put32(out, pixelBytes);
    Put32(out, static_cast<std::uint32_t>(pixelsPerMetre));
    Put32(out, static_cast<std::uint32_t>(pixelsPerMetre));
    Put32(out, 0);
    Put32(out, 0);
    for (int y = static_cast<int>(height) - 1; y >= 0; --y) {
        const uchar* row = image.constScanLine(y);
        for (std::uint32_t x = 0; x < width; ++x) {
            out.push_back(row[x * 3 + 2]);  // blue, green, red
            out.push_back(row[x * 3 + 1]);
            out.push_back(row[x * 3]);
        }
        for (std::uint32_t pad = width * 3; pad < stride; ++pad)
            out.push_back(0);
    }
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(out.data()), static_cast<std::streamsize>(out.size()));
    return static_cast<bool>(file);
}

}  // namespace tarvex::mapgen
