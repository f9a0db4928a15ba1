#include "shell/controls/combo_box.h"

#include "common/error.h"

namespace tarvex {

void ComboBox::SetStyle(int style) {
    if (style < kComboDropDown || style > kComboDropDownList) Raise(kErrInvalidProperty);
    if (style == style_) return;
    style_ = style;
    if (style_ == kComboDropDownList) text_ = List(listIndex_);
    Notify(Aspect::Appearance);
}

void ComboBox::StoreListIndex(int index) {
    listIndex_ = index;
    text_ = List(index);
}

void ComboBox::SelectedTextChanged() {
    if (listIndex_ >= 0 || style_ == kComboDropDownList) text_ = List(listIndex_);
}

void ComboBox::Clear() {
    const bool hadText = !text_.empty();
    text_.clear();
    rowBeforeDrop_ = kNotDropped;
    ListControl::Clear();
    if (hadText) Notify(Aspect::Text);
}

void ComboBox::SetText(const std::string& text) {
    if (style_ == kComboDropDownList) {
        if (text == text_) return;
        const int row = text.empty() ? -1 : FindRow(text);
        if (row == -1 && !text.empty()) Raise(383, "'Text' property is read-only");
        SetListIndex(row);
        return;
    }
    if (text == text_) return;
    text_ = text;
    // Typed text that no longer is the selected row's leaves no row selected.
    if (listIndex_ >= 0 && List(listIndex_) != text_) listIndex_ = -1;
    Notify(Aspect::Text);
    if (Change) Change();
}

void ComboBox::MoveQuietly(int row) {
    if (row < -1 || row >= ListCount()) Raise(kErrInvalidProperty);
    if (row == listIndex_) return;
    StoreListIndex(row);
    Notify(Aspect::Selection);
}

void ComboBox::UserOpenDrop() {
    if (DropDown) DropDown();
}

void ComboBox::SetDropDownScale(float scale) {
    if (scale < 0) Raise(kErrInvalidProperty);
    if (scale == dropDownScale_) return;
    dropDownScale_ = scale;
    Notify(Aspect::Appearance);
}

void ComboBox::UserHighlight(int row) {
    if (rowBeforeDrop_ == kNotDropped) rowBeforeDrop_ = listIndex_;
    MoveQuietly(row);
    if (Highlight) Highlight(row);
}

void ComboBox::UserChoose(int row) {
    const int before = rowBeforeDrop_ == kNotDropped ? listIndex_ : rowBeforeDrop_;
    rowBeforeDrop_ = kNotDropped;
    MoveQuietly(row);
    if (row != before) RaiseClick();
    if (UserPick) UserPick();
}

void ComboBox::UserCancelDrop() {
    if (rowBeforeDrop_ == kNotDropped) return;
    const int before = rowBeforeDrop_;
    rowBeforeDrop_ = kNotDropped;
    MoveQuietly(before < ListCount() ? before : -1);
    if (DropCancel) DropCancel();
}

void ComboBox::ListEvents(std::vector<NamedEvent>& out) const {
    ListControl::ListEvents(out);
    out.push_back({"Change", &Change});
    out.push_back({"DropDown", &DropDown});
    out.push_back({"Highlight", &Highlight});
    out.push_back({"UserPick", &UserPick});
    out.push_back({"DropCancel", &DropCancel});
}

}  // namespace tarvex
