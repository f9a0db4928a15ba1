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

}  // namespace tarvex
