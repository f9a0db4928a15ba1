#pragma once
// The entries of the mission document by the names the program gives them, for the
// expectations of a scenario.
#include <string>
#include <string_view>
#include <vector>

namespace tarvex {
struct Mission;
}

namespace tarvex::scenario {

// The entry as text ("WPLat" with its path and point, "PathPointCount" with its path,
// "MissionPath" alone): numbers plainly written, booleans True or False. Raises ScenarioError
// for a name the document has not, a wrong number of indexes, or an index outside the array.
std::string MissionFieldText(const Mission& doc, std::string_view name,
                             const std::vector<int>& indexes);

}  // namespace tarvex::scenario
