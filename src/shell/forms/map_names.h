#pragma once
// The rows of the two map combos, in the order of table Maps: row = Recnum - 1.
namespace tarvex {

inline constexpr const char* kMapRowTexts[8] = {
    "Map1Bob", "Map2Bob", "Map3Bob", "Map4Bob", "Map1BfE", "Map2BfE", "Map3BfE", "Map4BfE",
};

}  // namespace tarvex
