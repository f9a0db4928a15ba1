#pragma once
// The program composes its SQL with the values written into the text, so a load sends a
// thousand texts that differ only in their numbers. Before a text reaches the engine its
// literal values are taken out and bound as parameters: every text of one shape is then
// prepared once and served from the statement cache.
#include <string>
#include <string_view>
#include <vector>

#include "refdata/field_value.h"

namespace tarvex {

struct ParameterizedSql {
    std::string shape;               // the text with "?" in place of each value taken out
    std::vector<FieldValue> values;  // the values, in the order of their marks
};

// Takes out the numbers and quoted texts that stand as the operand of a comparison ("ID=12",
// "Name=\"Map1Bob\"", "UnitTotal = 140") or as an item of a VALUES list. Only a single
// SELECT, INSERT, UPDATE or DELETE is touched, never a script, a PRAGMA or a definition
// (which take no parameters), and nothing in ORDER BY, where a number names a column. A
// double-quoted value is text, as the program's dialect reads it.
ParameterizedSql ParameterizeSql(std::string_view sql);

}  // namespace tarvex
