#pragma once
// Coordinate text: a hemisphere letter, the degrees, one blank and decimal minutes, such as
// "N51 23.45". Positions live as this text in the document and the file; these convert it to
// and from signed decimal degrees (north and east positive) and bring it to its fixed form.
#include <string>
#include <string_view>
#include <type_traits>

namespace tarvex {

// The signed degrees of a text. "" gives 0. Degrees are the leading number of the characters
// between the letter and the first blank, minutes that of everything behind the blank; a
// first character "W" or "S" (capitals only) negates. A text without a blank, or one that
// starts with a blank, has no room for the degrees and raises error 5.
double CoordTextToDegrees(const std::string& text);

// The raw text of a position: "N"/"S" or "E"/"W" by sign (zero counts as positive), the whole
// degrees as plain digits, a blank, and the minutes with minuteMask ("E1 05.0000").
// Contract: the caller's variable is changed; on return `degrees` holds the minutes that
// were written. Pass a copy when the degrees are still needed.
std::string DegreesToCoordText(double& degrees, bool isLatitude, std::string_view minuteMask);

// Brings a text to the two-digit form in place and returns it: leading blanks go, the
// degrees are characters 2 and 3 with the mask "00", the minutes (read as a 32-bit float) get
// minuteMask. Minutes are never carried into the degrees (59.999 -> "60.00"). A text without
// a blank is read whole as minutes; an empty text becomes "00 00.00" (no letter), so callers
// that keep "no position" as "" test for it first.
std::string& NormalizeCoordText(std::string& text, std::string_view minuteMask);

// Keeps a value within bounds: below low it becomes low, above high it becomes high, in the
// variable as well as in the result.
template <typename T>
T& ClampByte(T& value, std::type_identity_t<T> low, std::type_identity_t<T> high) {
    if (value < low) {
        value = low;
    } else if (value > high) {
        value = high;
    }
    return value;
}

// A byte field read from text: the leading number, rounded half to even, kept within low and
// high. Never an overflow, whatever the text holds.
unsigned char ReadClampedByte(std::string_view text, int low, int high);

// Brings a heading back into range with one correction: above 360 it loses 360, at 0 or
// below it gains 360 (0 -> 360, 360 stays, 721 -> 361). In place, and returned; an
// expression (such as a 64-bit sum) is taken through a 32-bit temporary.
float NormalizeHeading(float& heading);
float NormalizeHeading(float&& heading);

}  // namespace tarvex
