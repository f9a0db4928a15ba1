#include "scenario/scenario_steps.h"

namespace tarvex::scenario {

std::string ControlName::Display() const {
    std::string text = form.empty() ? name : form + "." + name;
    if (index >= 0) text += "(" + std::to_string(index) + ")";
    return text;
}

std::string PropertyName::Display() const {
    std::string text = name;
    for (size_t i = 0; i < args.size(); ++i)
        text += (i == 0 ? "(" : ",") + std::to_string(args[i]);
    return args.empty() ? text : text + ")";
}

}  // namespace tarvex::scenario
