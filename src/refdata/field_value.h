#pragma once
// The value of one field of a record: null, a whole number, a floating-point number or text,
// as the engine stored it, with the conversions the program applies when it reads one.
#include <cstdint>
#include <string>

namespace tarvex {

class FieldValue {
  public:
    enum class Kind { Null, Integer, Real, Text };

    FieldValue() = default;
    FieldValue(std::nullptr_t) {}
    FieldValue(int value) : kind_(Kind::Integer), integer_(value) {}
    FieldValue(long value) : kind_(Kind::Integer), integer_(value) {}
    FieldValue(long long value) : kind_(Kind::Integer), integer_(value) {}
    FieldValue(unsigned value) : kind_(Kind::Integer), integer_(value) {}
    FieldValue(unsigned long value)
        : kind_(Kind::Integer), integer_(static_cast<std::int64_t>(value)) {}
    FieldValue(unsigned long long value)
        : kind_(Kind::Integer), integer_(static_cast<std::int64_t>(value)) {}
    // A stored boolean: true is 1, as SQLite's TRUE.
    FieldValue(bool value) : kind_(Kind::Integer), integer_(value ? 1 : 0) {}
    FieldValue(double value) : kind_(Kind::Real), real_(value) {}
    FieldValue(float value) : kind_(Kind::Real), real_(value) {}
    FieldValue(std::string value) : kind_(Kind::Text), text_(std::move(value)) {}
    FieldValue(const char* value) : kind_(Kind::Text), text_(value) {}

    Kind GetKind() const { return kind_; }
    bool IsNull() const { return kind_ == Kind::Null; }

    // A null reads as the empty text and as 0. Text that is not wholly a number raises
    // error 13 when read as a number; whole numbers round half to even and raise error 6
    // when out of range.
    std::string Text() const;
    double Double() const;
    std::uint8_t Byte() const;
    std::int16_t Integer() const;
    std::int32_t Long() const;
    std::int64_t Int64() const;
    // Any value other than 0 (null and empty text are false).
    bool Bool() const;

    // Same kind and same value (a null equals only a null).
    bool operator==(const FieldValue& other) const;

  private:
    Kind kind_ = Kind::Null;
    std::int64_t integer_ = 0;
    double real_ = 0;
    std::string text_;
};

}  // namespace tarvex
