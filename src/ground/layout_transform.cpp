#include "ground/layout_transform.h"

#include <algorithm>
#include <cmath>

#include "common/numbers.h"
#include "document/coord_text.h"

namespace tarvex {

namespace {

constexpr double kDegreesPerRadian = 57.29577319531843;
// One degree in radians from 3.141593; stored offsets were turned with this value.
constexpr double kRadiansPerDegree = 0.017453294444444444;

}  // namespace

float OffsetBearing(int16_t dx, int16_t dy) {
    if (dy == 0) {
        if (dx >= 1) return 90.0f;
        return dx == 0 ? 0.0f : 270.0f;
    }
    const auto t = static_cast<float>(std::atan(static_cast<double>(dx) / dy) * kDegreesPerRadian);
    return dy >= 1 ? NormalizeHeading(180.0f - t) : NormalizeHeading(360.0f - t);
}

void LayoutTransform::SetFromRotation(float rotation) {
    const int16_t whole = CInt(rotation);
    QuarterTurns = static_cast<int16_t>(whole / 90);  // cut towards zero
    FineRotation = static_cast<float>(whole % 90);    // sign of the rotation
}

void LayoutTransform::TurnOffset(float& a, float& b) const {
    for (int i = 0; i < QuarterTurns; ++i) {
        const float oldA = a;
        a = -b;
        b = oldA;
    }
}

void LayoutTransform::RotateOffset(float& a, float& b) const {
    a = static_cast<float>(a * 1000.0);
    b = static_cast<float>(b * 1000.0);
    const int16_t ia = CInt(a);
    const int16_t ib = CInt(b);
    const int bearing =
        static_cast<int>(std::trunc(NormalizeHeading(FineRotation + OffsetBearing(ia, ib)) + 0.5));

    const double r = std::sqrt(static_cast<double>(a) * a + static_cast<double>(b) * b);
    const int k = bearing % 90;
    const double s = r * std::sin(k * kRadiansPerDegree);
    const double m = s == 0.0 ? r : s;
    // The other leg from the stored (rounded) one; a rounding that lands a hair above r
    // leaves that leg 0 rather than failing.
    const auto otherLeg = [r](float leg) {
        return std::sqrt(std::max(0.0, r * r - static_cast<double>(leg) * leg));
    };
    if (bearing == 0) {
        b = static_cast<float>(m);
        a = 0.0f;
    } else if (bearing <= 90 || (bearing > 180 && bearing <= 270)) {
        a = static_cast<float>(m);
        b = static_cast<float>(otherLeg(a));
    } else {
        b = static_cast<float>(m);
        a = static_cast<float>(otherLeg(b));
    }
    if (bearing > 180) a = -a;
    if (bearing > 90 && bearing < 270) b = -b;
    a = static_cast<float>(a / 1000.0);
    b = static_cast<float>(-b / 1000.0);
}

void LayoutTransform::ApplyLayoutTransform(float& a, float& b, float spread, float shiftX,
                                           float shiftY) const {
    TurnOffset(a, b);
    if (FineRotation != 0.0f) RotateOffset(a, b);
    a = static_cast<float>(static_cast<double>(spread) * a + (static_cast<double>(shiftY) + a));
    b = static_cast<float>(static_cast<double>(shiftX) + b + static_cast<double>(spread) * b);
}

}  // namespace tarvex
