#pragma once
#include "shell/controls/list_control.h"

namespace tarvex {

constexpr int kComboDropDown = 0;      // editable text with a drop-down list
constexpr int kComboSimple = 1;        // editable text with a list always shown
constexpr int kComboDropDownList = 2;  // the text is always the selected row's

// A combo box: the rows of a list plus a Text.
// - Selecting a row (ListIndex) sets Text to the row's text and fires Click, not Change.
// - With an editable style, setting Text fires Change; when it no longer matches the
//   selected row, no row is selected any more (silently).
// - With the drop-down list style, setting Text selects the row with that text (Click);
//   a text that matches no row raises error 383, the empty text selects no row.
// - Clear also empties Text, silently.
// Highlight(row) is raised by the skin while the user moves through the open list;
// UserPick after the user chose a row (the skin sets ListIndex first).
class ComboBox : public ListControl {
  public:
    using ListControl::ListControl;

    int Style() const { return style_; }
    void SetStyle(int style);  // 0..2, else error 380

    const std::string& Text() const { return text_; }
    void SetText(const std::string& text);

    void Clear() override;

    void RaiseHighlight(int row) const {
        if (Highlight) Highlight(row);
    }
    void RaiseUserPick() const {
        if (UserPick) UserPick();
    }

    std::function<void()> Change;
    std::function<void(int row)> Highlight;
    std::function<void()> UserPick;

  protected:
    void StoreListIndex(int index) override;
    void SelectedTextChanged() override;

  private:
    int style_ = kComboDropDown;
    std::string text_;
};

}  // namespace tarvex
