#pragma once
#include "shell/controls/control.h"

namespace tarvex {

// Text fires Change whenever it changes, by code or by typing. Setting Text puts the caret at
// the start with nothing selected, as the desktop does. Locked and MaxLength bind the user's
// typing only (the skin enforces them); code may set any text.
class TextBox : public Control {
  public:
    using Control::Control;

    const std::string& Text() const { return text_; }
    void SetText(const std::string& text);

    // Selection in characters (bytes of the text). Out-of-range values are clamped; a negative
    // one raises error 380.
    int SelStart() const { return selStart_; }
    void SetSelStart(int start);
    int SelLength() const { return selLength_; }
    void SetSelLength(int length);
    std::string SelText() const;
    // Replaces the selection, fires Change, leaves the caret after the inserted text.
    void SetSelText(const std::string& text);

    // Puts the text in capitals, the caret where it was; true when that changed the text (the
    // change then ran the Change handler again).
    bool UpperCaseKeepingCaret();

    bool Locked() const { return locked_; }
    void SetLocked(bool locked);
    int MaxLength() const { return maxLength_; }  // 0: no limit
    void SetMaxLength(int length);
    bool MultiLine() const { return multiLine_; }
    void SetMultiLine(bool multiLine);

    Event<> Change;

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    std::string text_;
    int selStart_ = 0;
    int selLength_ = 0;
    bool locked_ = false;
    int maxLength_ = 0;
    bool multiLine_ = false;
};

// Selects the whole text, so that typing replaces it.
void SetTextSelect(TextBox& box);

}  // namespace tarvex
