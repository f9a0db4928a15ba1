#include "refdata/sql_tokens.h"

#include <cctype>

#include "common/text.h"

namespace tarvex {

namespace {

bool IsWordChar(char c) {
    const auto b = static_cast<unsigned char>(c);
    return (b >= 'a' && b <= 'z') || (b >= 'A' && b <= 'Z') || (b >= '0' && b <= '9') || c == '_' ||
           c == '$' || b >= 0x80;
}

bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

bool IsBlank(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

// The end of a quoted run that starts at `start` with `close` as its closing character; a
// doubled closing character stands for itself. An unclosed run takes the rest of the text.
size_t QuotedEnd(std::string_view sql, size_t start, char close) {
    size_t i = start + 1;
    while (i < sql.size()) {
        if (sql[i] == close) {
            if (close != ']' && i + 1 < sql.size() && sql[i + 1] == close) {
                i += 2;
                continue;
            }
            return i + 1;
        }
        ++i;
    }
    return sql.size();
}

bool EndsFromClause(const SqlToken& token) {
    static const char* const kClauses[] = {"WHERE", "GROUP",  "ORDER",     "HAVING", "LIMIT",
                                           "UNION", "EXCEPT", "INTERSECT", "WINDOW"};
    if (token.kind == SqlTokenKind::Punct && token.text == ";") return true;
    for (const char* clause : kClauses) {
        if (IsSqlKeyword(token, clause)) return true;
    }
    return false;
}

// The end of a number that starts at `i`: digits, a decimal part, an exponent.
size_t NumberEnd(std::string_view sql, size_t i) {
    auto digits = [&](size_t k) {
        while (k < sql.size() && IsDigit(sql[k]))
            ++k;
        return k;
    };
    size_t end = digits(i);
    if (end < sql.size() && sql[end] == '.') end = digits(end + 1);
    if (end < sql.size() && (sql[end] == 'e' || sql[end] == 'E')) {
        size_t k = end + 1;
        if (k < sql.size() && (sql[k] == '+' || sql[k] == '-')) ++k;
        if (k < sql.size() && IsDigit(sql[k])) end = digits(k);
    }
    return end;
}

}  // namespace

SqlTokenSpan NextSqlToken(std::string_view sql, size_t i) {
    const char c = sql[i];
    size_t end = i + 1;
    SqlTokenKind kind = SqlTokenKind::Punct;
    if (IsBlank(c)) {
        kind = SqlTokenKind::Space;
        while (end < sql.size() && IsBlank(sql[end]))
            ++end;
    } else if (c == '-' && i + 1 < sql.size() && sql[i + 1] == '-') {
        kind = SqlTokenKind::Space;
        end = sql.find('\n', i);
        end = end == std::string_view::npos ? sql.size() : end;
    } else if (c == '/' && i + 1 < sql.size() && sql[i + 1] == '*') {
        kind = SqlTokenKind::Space;
        end = sql.find("*/", i + 2);
        end = end == std::string_view::npos ? sql.size() : end + 2;
    } else if (c == '\'') {
        kind = SqlTokenKind::SingleQuoted;
        end = QuotedEnd(sql, i, '\'');
    } else if (c == '"') {
        kind = SqlTokenKind::DoubleQuoted;
        end = QuotedEnd(sql, i, '"');
    } else if (c == '`') {
        kind = SqlTokenKind::Backquoted;
        end = QuotedEnd(sql, i, '`');
    } else if (c == '[') {
        kind = SqlTokenKind::Bracketed;
        end = QuotedEnd(sql, i, ']');
    } else if (IsDigit(c) || (c == '.' && i + 1 < sql.size() && IsDigit(sql[i + 1]))) {
        // A number keeps its decimal part and exponent in one token; letters straight
        // behind it make it a word, as "1st".
        kind = SqlTokenKind::Word;
        end = NumberEnd(sql, i);
        while (end < sql.size() && IsWordChar(sql[end]))
            ++end;
    } else if (IsWordChar(c)) {
        kind = SqlTokenKind::Word;
        while (end < sql.size() && IsWordChar(sql[end]))
            ++end;
    }
    return {kind, end};
}

std::vector<SqlToken> TokenizeSql(std::string_view sql) {
    std::vector<SqlToken> tokens;
    size_t i = 0;
    while (i < sql.size()) {
        const SqlTokenSpan span = NextSqlToken(sql, i);
        tokens.push_back({span.kind, std::string(sql.substr(i, span.end - i))});
        i = span.end;
    }
    return tokens;
}

std::string JoinSqlTokens(const std::vector<SqlToken>& tokens) {
    std::string sql;
    for (const SqlToken& token : tokens)
        sql += token.text;
    return sql;
}

bool IsSqlIdentifier(const SqlToken& token) {
    return token.kind == SqlTokenKind::Word || token.kind == SqlTokenKind::Bracketed ||
           token.kind == SqlTokenKind::Backquoted;
}

std::string SqlIdentifier(const SqlToken& token) {
    if (token.kind == SqlTokenKind::Bracketed || token.kind == SqlTokenKind::Backquoted) {
        const bool closed =
            token.text.size() >= 2 &&
            token.text.back() == (token.kind == SqlTokenKind::Bracketed ? ']' : '`');
        return token.text.substr(1, token.text.size() - (closed ? 2 : 1));
    }
    return token.text;
}

bool IsSqlKeyword(const SqlToken& token, std::string_view keyword) {
    return token.kind == SqlTokenKind::Word && SameText(token.text, keyword);
}

SelectParts ParseSelect(std::string_view sql) {
    SelectParts parts;
    const std::vector<SqlToken> tokens = TokenizeSql(sql);
    size_t i = 0;
    while (i < tokens.size() && tokens[i].kind == SqlTokenKind::Space)
        ++i;
    if (i == tokens.size() || !IsSqlKeyword(tokens[i], "SELECT")) return parts;
    parts.isSelect = true;
    size_t offset = 0;
    for (size_t k = 0; k <= i; ++k)
        offset += tokens[k].text.size();
    parts.afterSelect = std::string(sql.substr(offset));

    // The select list runs from after SELECT [DISTINCT] to the FROM at depth 0.
    ++i;
    size_t j = i;
    while (j < tokens.size() && tokens[j].kind == SqlTokenKind::Space)
        ++j;
    if (j < tokens.size() && IsSqlKeyword(tokens[j], "DISTINCT")) {
        parts.distinct = true;
        i = j + 1;
    }
    int depth = 0;
    size_t from = tokens.size();
    for (size_t k = i; k < tokens.size(); ++k) {
        const SqlToken& token = tokens[k];
        if (token.kind == SqlTokenKind::Punct && token.text == "(") ++depth;
        if (token.kind == SqlTokenKind::Punct && token.text == ")") --depth;
        if (depth == 0 && IsSqlKeyword(token, "FROM")) {
            from = k;
            break;
        }
        parts.selectList += token.text;
    }
    parts.selectList = Trim(parts.selectList);
    if (from == tokens.size()) return parts;

    // The FROM clause: its names, and whether it is one plain table or view.
    size_t significant = 0;
    bool plain = true;
    depth = 0;
    for (size_t k = from + 1; k < tokens.size(); ++k) {
        const SqlToken& token = tokens[k];
        if (depth == 0 && EndsFromClause(token)) break;
        if (token.kind == SqlTokenKind::Space) continue;
        if (token.kind == SqlTokenKind::Punct && token.text == "(") ++depth;
        if (token.kind == SqlTokenKind::Punct && token.text == ")") --depth;
        ++significant;
        if (IsSqlIdentifier(token)) {
            parts.fromNames.push_back(SqlIdentifier(token));
        } else {
            plain = false;
        }
    }
    if (plain && significant == 1) parts.singleSource = parts.fromNames.front();
    return parts;
}

std::string NameOnly(std::string_view nameOrSql) {
    std::vector<SqlToken> tokens = TokenizeSql(nameOrSql);
    const SqlToken* name = nullptr;
    for (const SqlToken& token : tokens) {
        if (token.kind == SqlTokenKind::Space) continue;
        if (name || !IsSqlIdentifier(token)) return {};
        name = &token;
    }
    if (!name || IsSqlKeyword(*name, "SELECT")) return {};
    return SqlIdentifier(*name);
}

}  // namespace tarvex
