#include "shell/controls/bmp_header.h"

#include <fstream>
#include <iterator>

namespace tarvex {

namespace {

constexpr double kInchesPerMetre = 39.37007874015748;
constexpr double kDefaultDpi = 96.0;

std::uint32_t U32(const std::string& b, std::size_t at) {
    return static_cast<std::uint32_t>(static_cast<unsigned char>(b[at])) |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[at + 1])) << 8 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[at + 2])) << 16 |
           static_cast<std::uint32_t>(static_cast<unsigned char>(b[at + 3])) << 24;
}

std::uint16_t U16(const std::string& b, std::size_t at) {
    return static_cast<std::uint16_t>(static_cast<unsigned char>(b[at]) |
                                      static_cast<unsigned char>(b[at + 1]) << 8);
}

double Dpi(std::int32_t pixelsPerMetre) {
    return pixelsPerMetre > 0 ? pixelsPerMetre / kInchesPerMetre : kDefaultDpi;
}

}  // namespace

double BmpInfo::DpiX() const {
    return Dpi(xPixelsPerMetre);
}
double BmpInfo::DpiY() const {
    return Dpi(yPixelsPerMetre);
}

std::optional<BmpInfo> ParseBmpHeader(const std::string& bytes) {
    constexpr std::size_t kFileHeader = 14;
    if (bytes.size() < kFileHeader + 12 || bytes[0] != 'B' || bytes[1] != 'M') return std::nullopt;
    const std::uint32_t infoSize = U32(bytes, kFileHeader);
    BmpInfo info;
    if (infoSize == 12) {  // the old core header: 16-bit sizes, no resolution
        info.widthPixels = U16(bytes, kFileHeader + 4);
        info.heightPixels = U16(bytes, kFileHeader + 6);
    } else if (infoSize >= 40 && bytes.size() >= kFileHeader + 40) {
        const auto width = static_cast<std::int32_t>(U32(bytes, kFileHeader + 4));
        const auto height = static_cast<std::int32_t>(U32(bytes, kFileHeader + 8));
        // A negative height marks a top-down bitmap; a negative width is no bitmap at all.
        if (width <= 0 || height == 0 || height == INT32_MIN) return std::nullopt;
        info.widthPixels = width;
        info.heightPixels = height < 0 ? -height : height;
        info.xPixelsPerMetre = static_cast<std::int32_t>(U32(bytes, kFileHeader + 24));
        info.yPixelsPerMetre = static_cast<std::int32_t>(U32(bytes, kFileHeader + 28));
    } else {
        return std::nullopt;
    }
    if (info.widthPixels <= 0 || info.heightPixels <= 0) return std::nullopt;
    return info;
}

std::optional<BmpInfo> ReadBmpHeader(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::string head(54, '\0');
    in.read(head.data(), static_cast<std::streamsize>(head.size()));
    head.resize(static_cast<std::size_t>(in.gcount()));
    return ParseBmpHeader(head);
}

}  // namespace tarvex
