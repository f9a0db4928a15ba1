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
// While the drop-down list is open the selected row follows the highlight, as the desktop's
// list does, without Click: UserHighlight moves it quietly and raises Highlight(row). The
// user's choice (UserChoose) raises Click when the chosen row differs from the row selected
// before the list opened, then UserPick (the command notification the forms watch).
// UserCancelDrop puts the row selected before the list opened back, quietly, then raises
// DropCancel: the list closed without a choice after the highlight had moved.
class ComboBox : public ListControl {
  public:
    using ListControl::ListControl;

    int Style() const { return style_; }
    void SetStyle(int style);  // 0..2, else error 380

    const std::string& Text() const { return text_; }
    void SetText(const std::string& text);

    void Clear() override;

    // The list is about to drop down: DropDown runs, so that a handler can set its scale.
    void UserOpenDrop();
    void UserHighlight(int row);
    void UserChoose(int row);
    void UserCancelDrop();
    bool DroppedDown() const { return rowBeforeDrop_ != kNotDropped; }

    // The factor on the height of the drop-down list; above 0 the list is that much taller and
    // opens upwards, 0 gives the desktop's list. A negative factor raises error 380.
    float DropDownScale() const { return dropDownScale_; }
    void SetDropDownScale(float scale);

    Event<> Change;
    Event<> DropDown;
    Event<int> Highlight;  // the row under the pointer
    Event<> UserPick;
    Event<> DropCancel;

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;
    void StoreListIndex(int index) override;
    void SelectedTextChanged() override;

  private:
    static constexpr int kNotDropped = -2;
    // Quiet move of the selected row, for the open list.
    void MoveQuietly(int row);

    int style_ = kComboDropDown;
    std::string text_;
    int rowBeforeDrop_ = kNotDropped;
    float dropDownScale_ = 0;
};

}  // namespace tarvex
