#pragma once
#include <vector>

#include "shell/controls/list_control.h"

namespace tarvex {

constexpr int kMultiSelectNone = 0;
constexpr int kMultiSelectSimple = 1;
constexpr int kMultiSelectExtended = 2;

// A list box. Single selection: Selected(i) is true for the ListIndex row only, and setting it
// goes through ListIndex. Multiple selection: each row has its own Selected flag (a change
// fires Click); ListIndex is the row with the focus, and setting it also selects that row.
class ListBox : public ListControl {
  public:
    using ListControl::ListControl;

    // Also shows the list from its top again.
    void Clear() override;

    int MultiSelect() const { return multiSelect_; }
    // Switching the mode drops every selection but the ListIndex row's.
    void SetMultiSelect(int mode);

    // Out of range raises error 381.
    bool Selected(int index) const;
    void SetSelected(int index, bool selected);
    int SelCount() const;
    // The selected rows, in order.
    std::vector<int> SelectedRows() const;
    // The user's selection in one step (a click, shift-click or drag over rows): exactly these
    // rows selected and the focus on focusRow. Fires Click once when anything changed.
    void SetSelection(const std::vector<int>& rows, int focusRow);

    // The row a Shift press extends the selection from: the row of the user's last press
    // without Shift, or the row code selected since. -1 when there is none.
    int AnchorIndex() const { return anchor_ < ListCount() ? anchor_ : -1; }
    void SetAnchorIndex(int row) { anchor_ = row; }

    // The first row shown; clamped to the rows present.
    int TopIndex() const;
    void SetTopIndex(int index);

    // The height of a row in map units; 0 leaves it to the desktop. With a height, the row
    // under a point of the list is TopIndex + Y / RowHeight.
    float RowHeight() const { return rowHeight_; }
    void SetRowHeight(float height);
    // The row under Y (map units from the list's top), whether or not it holds a row; -1 when
    // the list has no row height.
    int RowAt(float y) const;

  protected:
    void StoreListIndex(int index) override;
    void SelectedTextChanged() override;
    bool MultiSelecting() const override { return multiSelect_ != kMultiSelectNone; }

  private:
    int multiSelect_ = kMultiSelectNone;
    int topIndex_ = 0;
    float rowHeight_ = 0;
    int anchor_ = -1;
};

}  // namespace tarvex
