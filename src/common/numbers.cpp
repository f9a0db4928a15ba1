#include "common/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "common/error.h"

namespace tarvex {

namespace {

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

double CheckedWhole(double value, double low, double high) {
    const double whole = RoundHalfEven(value);
    if (!(whole >= low && whole <= high)) Raise(kErrOverflow);
    return whole;
}

}  // namespace

double Val(std::string_view text) {
    size_t i = 0;
    while (i < text.size() && (text[i] == ' ' || text[i] == '\t'))
        ++i;
    bool negative = false;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        negative = text[i] == '-';
        ++i;
    }
    // Gather the digits with at most one point; from_chars reads them without a locale.
    std::string number;
    bool seenPoint = false;
    bool seenDigit = false;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        if (IsDigit(c)) {
            number += c;
            seenDigit = true;
        } else if (c == '.' && !seenPoint) {
            number += c;
            seenPoint = true;
        } else {
            break;
        }
    }
    if (!seenDigit) return 0.0;
    if (number.front() == '.') number.insert(number.begin(), '0');
    double value = 0.0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // Only a text of hundreds of digits gets here; it reads as the largest magnitude.
        value = std::numeric_limits<double>::max();
    }
    return negative ? -value : value;
}

int16_t ValInt(std::string_view text) {
    return CInt(Val(text));
}

int32_t ValLng(std::string_view text) {
    return CLng(Val(text));
}

double RoundHalfEven(double value) {
    if (!std::isfinite(value)) return value;
    const double floor = std::floor(value);
    const double fraction = value - floor;  // exact for every finite double
    if (fraction > 0.5) return floor + 1.0;
    if (fraction < 0.5) return floor;
    return std::fmod(floor, 2.0) == 0.0 ? floor : floor + 1.0;
}

uint8_t CByte(double value) {
    return static_cast<uint8_t>(CheckedWhole(value, 0.0, 255.0));
}

int16_t CInt(double value) {
    return static_cast<int16_t>(CheckedWhole(value, -32768.0, 32767.0));
}

int32_t CLng(double value) {
    return static_cast<int32_t>(CheckedWhole(value, -2147483648.0, 2147483647.0));
}

float CSng(double value) {
    const float result = static_cast<float>(value);
    if (std::isfinite(value) && !std::isfinite(result)) Raise(kErrOverflow);
    return result;
}

}  // namespace tarvex
