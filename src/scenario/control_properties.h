#pragma once
// The properties of the control models as a scenario reads them, by the names the program
// uses (Text, ListIndex, List(2), Value, Enabled...), as text.
#include <optional>
#include <string>

#include "scenario/scenario_steps.h"

namespace tarvex {
class Component;
}

namespace tarvex::scenario {

// The value as text, numbers plainly written, booleans True or False. Nothing when the component's
// kind has no such property. Raises ScenarioError for a wrong number of arguments or a row outside
// the control.
std::optional<std::string> ReadProperty(const Component& component, const PropertyName& property);

// What the component is, for messages: "a list", "a text box", "a menu entry".
std::string KindOf(const Component& component);

}  // namespace tarvex::scenario
