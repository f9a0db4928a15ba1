#include "refdata/sql_translation.h"

#include <unordered_map>
#include <vector>

#include "common/text.h"
#include "refdata/sql_tokens.h"

namespace tarvex {

namespace {

bool IsPunct(const SqlToken& token, std::string_view text) {
    return token.kind == SqlTokenKind::Punct && token.text == text;
}

// The index of the next token that isn't blank, from `i` on; the size when none.
size_t NextSignificant(const std::vector<SqlToken>& tokens, size_t i) {
    while (i < tokens.size() && tokens[i].kind == SqlTokenKind::Space)
        ++i;
    return i;
}

std::string SingleQuoted(const std::string& doubleQuoted) {
    const bool closed = doubleQuoted.size() >= 2 && doubleQuoted.back() == '"';
    const std::string inner = doubleQuoted.substr(1, doubleQuoted.size() - (closed ? 2 : 1));
    std::string out = "'";
    for (size_t i = 0; i < inner.size(); ++i) {
        if (inner[i] == '"' && i + 1 < inner.size() && inner[i + 1] == '"') ++i;
        if (inner[i] == '\'') out += '\'';
        out += inner[i];
    }
    return out + "'";
}

void DropDeleteStar(std::vector<SqlToken>& tokens) {
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (!IsSqlKeyword(tokens[i], "DELETE")) continue;
        const size_t star = NextSignificant(tokens, i + 1);
        if (star == tokens.size() || !IsPunct(tokens[star], "*")) continue;
        const size_t from = NextSignificant(tokens, star + 1);
        if (from == tokens.size() || !IsSqlKeyword(tokens[from], "FROM")) continue;
        tokens.erase(tokens.begin() + star, tokens.begin() + from);
    }
}

void DropForeignOrderQualifiers(std::vector<SqlToken>& tokens, const SelectParts& select) {
    if (!select.isSelect || select.fromNames.empty()) return;
    size_t order = tokens.size();
    int depth = 0;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (IsPunct(tokens[i], "(")) ++depth;
        if (IsPunct(tokens[i], ")")) --depth;
        if (depth == 0 && IsSqlKeyword(tokens[i], "ORDER")) {
            const size_t by = NextSignificant(tokens, i + 1);
            if (by < tokens.size() && IsSqlKeyword(tokens[by], "BY")) order = by + 1;
        }
    }
    for (size_t i = order; i + 2 < tokens.size(); ++i) {
        if (!IsSqlIdentifier(tokens[i]) || !IsPunct(tokens[i + 1], ".") ||
            !IsSqlIdentifier(tokens[i + 2])) {
            continue;
        }
        const std::string qualifier = SqlIdentifier(tokens[i]);
        bool named = false;
        for (const std::string& name : select.fromNames)
            named = named || SameText(name, qualifier);
        if (!named) tokens.erase(tokens.begin() + i, tokens.begin() + i + 2);
    }
}

}  // namespace

std::string TranslateSql(std::string_view sql) {
    // Most lookups have nothing to rewrite: no quote, no star, no qualifier.
    if (sql.find_first_of("\"*.") == std::string_view::npos) return std::string(sql);
    std::vector<SqlToken> tokens = TokenizeSql(sql);
    for (SqlToken& token : tokens) {
        if (token.kind == SqlTokenKind::DoubleQuoted) {
            token.text = SingleQuoted(token.text);
            token.kind = SqlTokenKind::SingleQuoted;
        }
    }
    DropDeleteStar(tokens);
    DropForeignOrderQualifiers(tokens, ParseSelect(sql));
    return JoinSqlTokens(tokens);
}

std::string QuotesDoubled(std::string_view text, char quote) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text) {
        if (c == quote) out += quote;
        out += c;
    }
    return out;
}

const std::string& TranslateSqlOnce(const std::string& sql) {
    // The program has a few dozen shapes; a runaway caller only makes the memory start afresh.
    constexpr size_t kMaxRemembered = 1024;
    thread_local std::unordered_map<std::string, std::string> remembered;
    if (const auto found = remembered.find(sql); found != remembered.end()) return found->second;
    if (remembered.size() >= kMaxRemembered) remembered.clear();
    return remembered.emplace(sql, TranslateSql(sql)).first->second;
}

}  // namespace tarvex
