#include "common/number_text.h"

#include <charconv>
#include <cmath>
#include <string>

namespace tarvex {

namespace {

// Text of a value that is not a number; such values have no mask form.
std::string NonFiniteText(double value) {
    if (std::isnan(value)) return "NaN";
    return value < 0 ? "-Inf" : "Inf";
}

// Positional text of a value rounded to the given significant digits.
std::string SignificantText(double value, int digits) {
    if (!std::isfinite(value)) return NonFiniteText(value);
    if (value == 0.0) return "0";
    char buffer[64];
    // Scientific form gives the rounded digits and the exponent, from the exact binary value.
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                      std::chars_format::scientific, digits - 1);
    const std::string_view text(buffer, result.ptr - buffer);
    const size_t ePos = text.find('e');
    std::string mantissa;
    for (const char c : text.substr(0, ePos)) {
        if (c != '.') mantissa += c;
    }
    int exponent = 0;
    std::from_chars(text.data() + ePos + 1 + (text[ePos + 1] == '+'), text.data() + text.size(),
                    exponent);
    while (mantissa.size() > 1 && mantissa.back() == '0')
        mantissa.pop_back();

    std::string out = value < 0 ? "-" : "";
    const int digitsCount = static_cast<int>(mantissa.size());
    if (exponent < 0) {
        out += "0.";
        out.append(static_cast<size_t>(-exponent - 1), '0');
        out += mantissa;
    } else if (exponent + 1 >= digitsCount) {
        out += mantissa;
        out.append(static_cast<size_t>(exponent + 1 - digitsCount), '0');
    } else {
        out += mantissa.substr(0, static_cast<size_t>(exponent + 1));
        out += '.';
        out += mantissa.substr(static_cast<size_t>(exponent + 1));
    }
    return out;
}

}  // namespace

std::string Format(double value, std::string_view mask) {
    if (!std::isfinite(value)) return NonFiniteText(value);
    const size_t pointPos = mask.find('.');
    const std::string_view intMask = mask.substr(0, pointPos);
    const std::string_view fracMask =
        pointPos == std::string_view::npos ? std::string_view{} : mask.substr(pointPos + 1);
    int forcedInt = 0;
    for (const char c : intMask)
        forcedInt += c == '0';
    int forcedFrac = 0;
    int decimals = 0;
    for (const char c : fracMask) {
        if (c == '0' || c == '#') ++decimals;
        // Only the zeros up to the last forced one are kept when trailing zeros drop.
        if (c == '0') forcedFrac = decimals;
    }

    // Fixed notation rounds the exact binary value, ties to even, as printf does.
    std::string digits(330 + static_cast<size_t>(decimals), '\0');
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(),
                                      std::fabs(value), std::chars_format::fixed, decimals);
    digits.resize(static_cast<size_t>(result.ptr - digits.data()));
    std::string intPart = digits.substr(0, digits.find('.'));
    std::string fracPart = decimals > 0 ? digits.substr(digits.find('.') + 1) : std::string{};

    while (static_cast<int>(fracPart.size()) > forcedFrac && fracPart.back() == '0') {
        fracPart.pop_back();
    }
    // The integer part "0" is a digit only when the mask forces one.
    if (intPart == "0" && forcedInt == 0) intPart.clear();
    if (static_cast<int>(intPart.size()) < forcedInt) {
        intPart.insert(0, static_cast<size_t>(forcedInt) - intPart.size(), '0');
    }

    const bool isZero = intPart.find_first_not_of('0') == std::string::npos &&
                        fracPart.find_first_not_of('0') == std::string::npos;
    std::string out = (value < 0 && !isZero) ? "-" : "";
    out += intPart;
    if (!fracPart.empty()) {
        out += '.';
        out += fracPart;
    }
    return out;
}

std::string FloatText(float value) {
    return SignificantText(static_cast<double>(value), 7);
}

std::string DoubleText(double value) {
    return SignificantText(value, 15);
}

std::string IntText(int64_t value) {
    return std::to_string(value);
}

}  // namespace tarvex
