#include "document/coord_text.h"

#include <cmath>

#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"

namespace tarvex {

double CoordTextToDegrees(const std::string& text) {
    if (text.empty()) return 0.0;
    const auto blank = static_cast<long long>(InStr(text, " "));
    // Without a blank (or with one in front) the degrees' length is negative: error 5.
    const double degrees = Val(Mid(text, 2, blank - 2));
    const double minutes = Val(Mid(text, blank + 1));
    const double value = degrees + minutes / 60.0;
    return (text[0] == 'W' || text[0] == 'S') ? -value : value;
}

std::string DegreesToCoordText(double& degrees, bool isLatitude, std::string_view minuteMask) {
    const bool negative = degrees < 0;
    const char letter = isLatitude ? (negative ? 'S' : 'N') : (negative ? 'W' : 'E');
    const double value = std::fabs(degrees);
    const double whole = std::trunc(value);
    degrees = (value - whole) * 60.0;
    std::string text(1, letter);
    text += DoubleText(whole);
    text += ' ';
    text += Format(degrees, minuteMask);
    return text;
}

std::string& NormalizeCoordText(std::string& text, std::string_view minuteMask) {
    text = LTrim(text);
    const auto blank = static_cast<long long>(InStr(text, " "));
    const float minutes = CSng(Val(Mid(text, blank + 1)));
    const double degrees = Val(Mid(text, 2, 2));
    std::string result = Left(text, 1);
    result += Format(degrees, "00");
    result += ' ';
    result += Format(minutes, minuteMask);
    text = std::move(result);
    return text;
}

unsigned char ReadClampedByte(std::string_view text, int low, int high) {
    double value = RoundHalfEven(Val(text));
    return static_cast<unsigned char>(ClampByte(value, low, high));
}

float NormalizeHeading(float& heading) {
    if (heading > 360.0f) {
        heading -= 360.0f;
    } else if (heading <= 0.0f) {
        heading += 360.0f;
    }
    return heading;
}

float NormalizeHeading(float&& heading) {
    return NormalizeHeading(heading);
}

}  // namespace tarvex
