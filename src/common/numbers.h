#pragma once
// Numbers read from text and whole-number conversions. Every part of the program reads and
// converts numbers through these, so a file, a control and a query agree to the last digit.
#include <cstdint>
#include <string_view>

namespace tarvex {

// The leading number of a text: blanks and tabs skipped, then an optional sign, digits, at
// most one decimal point and digits. No exponent ("1e5" reads 1), no hex ("&H10" reads 0),
// no blanks inside ("1 2" reads 1). A text without a number reads 0.
double Val(std::string_view text);

// The leading number converted to a whole number, half to even; out of range is error 6.
int16_t ValInt(std::string_view text);
int32_t ValLng(std::string_view text);

// Rounds to a whole number, ties to the even one (2.5 -> 2, 3.5 -> 4), whatever the
// floating-point environment's rounding mode is.
double RoundHalfEven(double value);

// Checked conversions, rounding half to even first. A result outside the type's range (or a
// NaN) raises error 6 "Overflow".
uint8_t CByte(double value);
int16_t CInt(double value);
int32_t CLng(double value);

// The nearest 32-bit float; a finite value beyond the float range raises error 6.
float CSng(double value);

}  // namespace tarvex
