#include "refdata/field_value.h"

#include <charconv>
#include <cmath>

#include "common/error.h"
#include "common/number_text.h"
#include "common/numbers.h"
#include "common/text.h"

namespace tarvex {

namespace {

// A text field read as a number must be a number as a whole, blanks around it allowed.
double NumberFromText(const std::string& text) {
    const std::string trimmed = Trim(text);
    const char* first = trimmed.data();
    const char* last = first + trimmed.size();
    if (first != last && *first == '+') ++first;
    double value = 0;
    const auto [end, error] = std::from_chars(first, last, value);
    if (trimmed.empty() || error != std::errc() || end != last) Raise(kErrTypeMismatch);
    return value;
}

}  // namespace

std::string FieldValue::Text() const {
    switch (kind_) {
        case Kind::Null:
            return {};
        case Kind::Integer:
            return IntText(integer_);
        case Kind::Real:
            return DoubleText(real_);
        case Kind::Text:
            return text_;
    }
    return {};
}

double FieldValue::Double() const {
    switch (kind_) {
        case Kind::Null:
            return 0;
        case Kind::Integer:
            return static_cast<double>(integer_);
        case Kind::Real:
            return real_;
        case Kind::Text:
            return NumberFromText(text_);
    }
    return 0;
}

std::uint8_t FieldValue::Byte() const {
    return CByte(Double());
}
std::int16_t FieldValue::Integer() const {
    return CInt(Double());
}

std::int32_t FieldValue::Long() const {
    if (kind_ == Kind::Integer) {
        if (integer_ < INT32_MIN || integer_ > INT32_MAX) Raise(kErrOverflow);
        return static_cast<std::int32_t>(integer_);
    }
    return CLng(Double());
}

std::int64_t FieldValue::Int64() const {
    if (kind_ == Kind::Integer) return integer_;
    const double rounded = RoundHalfEven(Double());
    if (!(rounded >= -9.2e18 && rounded <= 9.2e18)) Raise(kErrOverflow);
    return static_cast<std::int64_t>(rounded);
}

bool FieldValue::Bool() const {
    if (kind_ == Kind::Text && Trim(text_).empty()) return false;
    if (kind_ == Kind::Text && (SameText(Trim(text_), "True"))) return true;
    if (kind_ == Kind::Text && (SameText(Trim(text_), "False"))) return false;
    return Double() != 0;
}

bool FieldValue::operator==(const FieldValue& other) const {
    if (kind_ != other.kind_) return false;
    switch (kind_) {
        case Kind::Null:
            return true;
        case Kind::Integer:
            return integer_ == other.integer_;
        case Kind::Real:
            return real_ == other.real_;
        case Kind::Text:
            return text_ == other.text_;
    }
    return false;
}

}  // namespace tarvex
