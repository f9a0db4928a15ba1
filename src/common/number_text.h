#pragma once
// Numbers written as text: the format masks of the program and the plain conversion that
// files and SQL use. The decimal mark is always ".", whatever the user's locale.
#include <cstdint>
#include <string>
#include <string_view>

namespace tarvex {

// Writes a number with a mask of "#" (optional digit), "0" (forced digit) and one "."
// (decimal point), such as "00.00", "##00.0000", "###0.0" or "000". The exact binary value
// is rounded, ties to even ("0.00" gives "0.12" for 0.125); nothing is ever carried beyond
// the mask (59.996 with "00.00" is "60.00"); a result that rounds to zero has no sign. More
// digits than the mask holds are all written. "#" behind the point drops trailing zeros,
// and the point with them when no decimal remains. Other characters in a mask are ignored.
std::string Format(double value, std::string_view mask);

// The shortest text of a 32-bit float: at most 7 significant digits, in positional notation
// (1E-05 is "0.00001"), no trailing zeros or point; zero and -0 are "0".
std::string FloatText(float value);

// The same for a 64-bit float, with at most 15 significant digits.
std::string DoubleText(double value);

// A whole number: no sign for positives, no padding.
std::string IntText(int64_t value);

}  // namespace tarvex
