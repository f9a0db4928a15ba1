#pragma once
// The text of a file being composed in memory: every line ends in CR LF. The whole text goes
// to disk in one piece once it is complete, so a failure half way leaves nothing behind.
#include <string>
#include <string_view>

namespace tarvex {

class FileText {
  public:
    // Adds the text and a line end; no argument adds an empty line.
    void Line(std::string_view text = {}) {
        text_ += text;
        text_ += "\r\n";
    }
    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

}  // namespace tarvex
