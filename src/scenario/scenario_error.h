#pragma once
// What stops a scenario at a line: a syntax error, a control or row that isn't there, a box
// nobody answered, an expectation that did not hold. The text says it for the designer.
#include <stdexcept>
#include <string>
#include <string_view>

namespace tarvex::scenario {

class ScenarioError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// A text as a scenario writes it: in double quotes, with \" \\ \r \n \t for the characters
// that a line can't hold as they are, so that it can be pasted back into an expectation.
std::string Quoted(std::string_view text);

}  // namespace tarvex::scenario
