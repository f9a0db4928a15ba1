#include "refdata/sql_parameters.h"

#include <cctype>
#include <cerrno>
#include <charconv>
#include <cstdint>

#include "refdata/sql_tokens.h"

namespace tarvex {

namespace {

bool IsKeyword(std::string_view text, std::string_view keyword) {
    if (text.size() != keyword.size()) return false;
    for (size_t i = 0; i < text.size(); ++i)
        if (std::toupper(static_cast<unsigned char>(text[i])) != keyword[i]) return false;
    return true;
}

// The text inside quotes, a doubled quote undone. False for a run that isn't closed.
bool QuotedText(std::string_view token, char quote, std::string& out) {
    if (token.size() < 2 || token.back() != quote) return false;
    out.clear();
    for (size_t i = 1; i + 1 < token.size(); ++i) {
        out += token[i];
        if (token[i] == quote) ++i;
    }
    return true;
}

// A number literal as the engine would read it: a whole number that fits 64 bits, else a
// floating-point one. False for a word that isn't wholly a number.
bool NumberValue(std::string_view token, bool negative, FieldValue& out) {
    const char* first = token.data();
    const char* last = first + token.size();
    if (token.find_first_of(".eE") == std::string_view::npos) {
        unsigned long long magnitude = 0;
        const auto [end, error] = std::from_chars(first, last, magnitude);
        if (end != last) return false;
        if (error == std::errc() && magnitude <= 9223372036854775807ULL) {
            const long long value = static_cast<long long>(magnitude);
            out = FieldValue(negative ? -value : value);
            return true;
        }
    }
    // The usual decimal, digits with a point and no exponent: both parts are exact doubles
    // and one division rounds correctly, as the full parse would.
    if (token.find_first_of("eE") == std::string_view::npos && token.size() <= 16) {
        std::uint64_t mantissa = 0;
        int decimals = -1;
        bool plain = true;
        for (const char c : token) {
            if (c == '.') {
                if (decimals >= 0) plain = false;
                decimals = 0;
                continue;
            }
            if (c < '0' || c > '9') {
                plain = false;
                break;
            }
            mantissa = mantissa * 10 + static_cast<std::uint64_t>(c - '0');
            if (decimals >= 0) ++decimals;
        }
        if (plain && decimals >= 0 && mantissa < (std::uint64_t{1} << 53)) {
            static constexpr double kPowers[] = {1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
            const double value = static_cast<double>(mantissa) / kPowers[decimals];
            out = FieldValue(negative ? -value : value);
            return true;
        }
    }
    double value = 0;
    const auto [end, error] = std::from_chars(first, last, value);
    if (end != last || error != std::errc()) return false;
    out = FieldValue(negative ? -value : value);
    return true;
}

}  // namespace

ParameterizedSql ParameterizeSql(std::string_view sql) {
    ParameterizedSql result;
    std::string& shape = result.shape;
    shape.reserve(sql.size());

    // What came before the current token, blanks left out.
    std::string_view previous;          // the last significant token
    size_t signAt = std::string::npos;  // where a sign behind an operand position stands
    bool statementKnown = false;
    bool bindable = false;
    bool ended = false;      // a ";" was seen
    bool inOrderBy = false;  // between ORDER BY and the end of the statement
    int depth = 0;
    int valuesDepth = -1;      // the depth of the VALUES list, -1 outside one
    bool afterValues = false;  // VALUES was the last keyword
    std::string text;

    auto operandPosition = [&](std::string_view before) {
        if (before.size() == 1 && (before[0] == '=' || before[0] == '<' || before[0] == '>'))
            return !inOrderBy;
        return valuesDepth >= 0 && depth == valuesDepth + 1 && before.size() == 1 &&
               (before[0] == '(' || before[0] == ',');
    };

    size_t i = 0;
    while (i < sql.size()) {
        const SqlTokenSpan span = NextSqlToken(sql, i);
        const std::string_view token = sql.substr(i, span.end - i);
        i = span.end;
        if (span.kind == SqlTokenKind::Space) {
            shape += token;
            continue;
        }
        if (ended) return {std::string(sql), {}};  // a script: as it stands
        if (!statementKnown) {
            statementKnown = true;
            bindable = span.kind == SqlTokenKind::Word &&
                       (IsKeyword(token, "SELECT") || IsKeyword(token, "INSERT") ||
                        IsKeyword(token, "UPDATE") || IsKeyword(token, "DELETE"));
        }

        bool bound = false;
        if (bindable) {
            // A sign straight after an operand position belongs to the value behind it.
            const bool isSigned = previous.size() == 1 &&
                                  (previous[0] == '-' || previous[0] == '+') &&
                                  signAt != std::string::npos;
            const bool atOperand = isSigned ? true : operandPosition(previous);
            FieldValue value;
            if (atOperand) {
                if (span.kind == SqlTokenKind::SingleQuoted && !isSigned) {
                    bound = QuotedText(token, '\'', text);
                    if (bound) value = FieldValue(text);
                } else if (span.kind == SqlTokenKind::DoubleQuoted && !isSigned) {
                    bound = QuotedText(token, '"', text);
                    if (bound) value = FieldValue(text);
                } else if (span.kind == SqlTokenKind::Word &&
                           (std::isdigit(static_cast<unsigned char>(token[0])) ||
                            token[0] == '.')) {
                    bound = NumberValue(token, isSigned && previous[0] == '-', value);
                }
            }
            if (bound) {
                if (isSigned) shape.resize(signAt);
                shape += '?';
                result.values.push_back(std::move(value));
            }
            signAt = std::string::npos;
            if (!bound && span.kind == SqlTokenKind::Punct && token.size() == 1 &&
                (token[0] == '-' || token[0] == '+') && operandPosition(previous)) {
                signAt = shape.size();
            }
        }
        if (!bound) shape += token;

        if (span.kind == SqlTokenKind::Punct && token.size() == 1) {
            switch (token[0]) {
                case '(':
                    if (afterValues && valuesDepth < 0) valuesDepth = depth;
                    ++depth;
                    break;
                case ')':
                    --depth;
                    if (depth == valuesDepth) afterValues = false;
                    break;
                case ';':
                    ended = true;
                    break;
                default:
                    break;
            }
        }
        if (span.kind == SqlTokenKind::Word) {
            if (IsKeyword(token, "VALUES")) {
                afterValues = true;
                valuesDepth = -1;
            } else if (IsKeyword(token, "BY") && IsKeyword(previous, "ORDER") && depth == 0) {
                inOrderBy = true;
            }
        }
        previous = token;
    }
    return result;
}

}  // namespace tarvex
