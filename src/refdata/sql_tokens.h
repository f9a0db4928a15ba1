#pragma once
// A small lexer for the SQL the program sends, enough to find the clauses of a simple SELECT
// and to rewrite literals without touching anything inside quotes or brackets. Joining the
// texts of the tokens gives back the input exactly.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {

enum class SqlTokenKind {
    Space,         // blanks, line ends and comments
    Word,          // identifier, keyword or number
    Bracketed,     // [name]
    SingleQuoted,  // 'text' with '' inside
    DoubleQuoted,  // "text" with "" inside
    Backquoted,    // `name`
    Punct,         // any other single character
};

struct SqlToken {
    SqlTokenKind kind;
    std::string text;
};

// The token that starts at `start` (below the size of the text): its kind and where it ends.
// A number is one word with its decimal part and exponent.
struct SqlTokenSpan {
    SqlTokenKind kind;
    size_t end;
};
SqlTokenSpan NextSqlToken(std::string_view sql, size_t start);

std::vector<SqlToken> TokenizeSql(std::string_view sql);
std::string JoinSqlTokens(const std::vector<SqlToken>& tokens);

// The name a Word, Bracketed or Backquoted token stands for, without its quoting.
std::string SqlIdentifier(const SqlToken& token);
bool IsSqlIdentifier(const SqlToken& token);
bool IsSqlKeyword(const SqlToken& token, std::string_view keyword);

// The parts of "SELECT [DISTINCT] list FROM source [clauses]" at the outermost level.
struct SelectParts {
    bool isSelect = false;
    bool distinct = false;
    std::string selectList;              // the text between SELECT [DISTINCT] and FROM, as written
    std::string afterSelect;             // everything after the SELECT keyword, as written
    std::vector<std::string> fromNames;  // every identifier of the FROM clause
    std::string singleSource;            // the one table or view, when FROM names only one
};

SelectParts ParseSelect(std::string_view sql);

// A text that names a table or view rather than being a statement: one identifier, possibly
// in brackets. Gives the name, or the empty text for a statement.
std::string NameOnly(std::string_view nameOrSql);

}  // namespace tarvex
