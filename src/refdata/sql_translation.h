#pragma once
// The program's SQL texts were written for another dialect. Three forms read differently in
// SQLite and are rewritten before a text reaches the engine; nothing else is touched.
#include <string>
#include <string_view>

namespace tarvex {

// - "DELETE * FROM" becomes "DELETE FROM";
// - a double-quoted literal ("Map1Bob") becomes a single-quoted one, any single quote in it
//   doubled and a doubled double quote undone;
// - in ORDER BY, a qualifier naming a table that the FROM clause doesn't name is dropped
//   ("FROM qryGroundUnitDetails ... ORDER BY GrndTypes.ID" orders by ID), since SQLite can't
//   see the tables behind a view.
std::string TranslateSql(std::string_view sql);

// A text to stand between two `quote` characters in SQL: each quote inside it doubled, so
// that a name like O'Brien never ends the literal early.
std::string QuotesDoubled(std::string_view text, char quote);

// TranslateSql of a text that comes again and again (a shape with its values taken out),
// worked out once and remembered. The reference holds until the next call.
const std::string& TranslateSqlOnce(const std::string& sql);

}  // namespace tarvex
