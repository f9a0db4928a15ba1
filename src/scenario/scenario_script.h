#pragma once
// A scenario read into steps: one action, queued answer or expectation per line. The whole
// text is read before anything runs, so that a mistake at the last line stops a batch edit
// before its first change.
#include <string_view>

#include "scenario/scenario_steps.h"

namespace tarvex::scenario {

// Reads every line; the lines that can't be read are in `errors`, each with its number.
Script ParseScenario(std::string_view text, const ScriptContext& context);

}  // namespace tarvex::scenario
