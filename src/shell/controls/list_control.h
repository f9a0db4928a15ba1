#pragma once
// Rows of text with item data, and the selected row: what lists and combos share.
//
// Rules the handlers rely on:
// - setting ListIndex to another row, or to -1, fires Click inside the setter;
// - Clear, and removing the selected row, leave no row selected and fire nothing;
// - removing or inserting a row above the selected one keeps the selection on its row;
// - AddItem leaves the selection alone (in a Sorted list the index follows its row).
#include <cstdint>
#include <string>
#include <vector>

#include "common/item_list.h"
#include "shell/controls/control.h"

namespace tarvex {

// The order of a sorted list: text compared without regard to case, character by character,
// so "10" comes before "9".
bool ListTextLess(const std::string& a, const std::string& b);

class ListControl : public Control, public ItemList {
  public:
    using Control::Control;

    // ItemList
    void Clear() override;
    void AddItem(const std::string& text) override { AddItem(text, -1); }
    int ListCount() const override { return static_cast<int>(rows_.size()); }
    std::int32_t ItemData(int index) const override;  // out of range: error 381
    void SetItemData(int index, std::int32_t data) override;

    // index -1 adds at the end, or at the row's sorted place in a Sorted list; any other
    // index inserts there. An index outside -1..ListCount raises error 5.
    void AddItem(const std::string& text, int index);
    // Out of range raises error 5.
    void RemoveItem(int index);

    // The text of a row; the empty text outside the rows, as the desktop answers.
    std::string List(int index) const;
    // Replaces a row's text where it stands (a Sorted list is not re-sorted); error 381
    // outside the rows.
    void SetList(int index, const std::string& text);

    int ListIndex() const { return listIndex_; }
    // -1..ListCount-1, else error 380.
    void SetListIndex(int index);
    // The row the last AddItem put in; -1 after a removal or a clear.
    int NewIndex() const { return newIndex_; }

    bool Sorted() const { return sorted_; }
    // Turning it on sorts the rows present (stably); the selected row keeps its selection.
    void SetSorted(bool sorted);

    // The first row whose text equals the given one without regard to case; -1 when none.
    int FindRow(const std::string& text) const;
    // The first row with this item data; -1 when none.
    int FindItemData(std::int32_t data) const;

  protected:
    struct Row {
        std::string text;
        std::int32_t data = 0;
        bool selected = false;
    };

    // Stores the new index and marks rows as the kind requires; no event, no notification.
    virtual void StoreListIndex(int index);
    // After a row's text or the set of rows changed under the selected row.
    virtual void SelectedTextChanged() {}
    virtual bool MultiSelecting() const { return false; }
    void CheckRow(int index, int errorNumber) const;

    std::vector<Row> rows_;
    int listIndex_ = -1;
    int newIndex_ = -1;
    bool sorted_ = false;
};

}  // namespace tarvex
