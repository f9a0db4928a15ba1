#include "shell/controls/text_box.h"

#include <algorithm>

#include "common/error.h"
#include "common/text.h"

namespace tarvex {

void TextBox::SetText(const std::string& text) {
    if (text == text_) return;
    text_ = text;
    selStart_ = 0;
    selLength_ = 0;
    Notify(Aspect::Text);
    if (Change) Change();
}

void TextBox::SetSelStart(int start) {
    if (start < 0) Raise(kErrInvalidProperty);
    start = std::min(start, static_cast<int>(text_.size()));
    if (start == selStart_ && selLength_ == 0) return;
    selStart_ = start;
    selLength_ = 0;
    Notify(Aspect::Selection);
}

void TextBox::SetSelLength(int length) {
    if (length < 0) Raise(kErrInvalidProperty);
    length = std::min(length, static_cast<int>(text_.size()) - selStart_);
    if (length == selLength_) return;
    selLength_ = length;
    Notify(Aspect::Selection);
}

std::string TextBox::SelText() const {
    return text_.substr(selStart_, selLength_);
}

void TextBox::SetSelText(const std::string& text) {
    std::string next = text_;
    next.replace(selStart_, selLength_, text);
    const bool changed = next != text_;
    text_ = std::move(next);
    selStart_ += static_cast<int>(text.size());
    selLength_ = 0;
    Notify(changed ? Aspect::Text : Aspect::Selection);
    if (changed && Change) Change();
}

bool TextBox::UpperCaseKeepingCaret() {
    const std::string upper = UCase(text_);
    if (upper == text_) return false;
    const int caret = selStart_;
    SetText(upper);
    SetSelStart(caret);
    return true;
}

void TextBox::SetLocked(bool locked) {
    if (locked == locked_) return;
    locked_ = locked;
    Notify(Aspect::Appearance);
}

void TextBox::SetMaxLength(int length) {
    if (length < 0) Raise(kErrInvalidProperty);
    if (length == maxLength_) return;
    maxLength_ = length;
    Notify(Aspect::Appearance);
}

void TextBox::SetMultiLine(bool multiLine) {
    if (multiLine == multiLine_) return;
    multiLine_ = multiLine;
    Notify(Aspect::Appearance);
}

void TextBox::ListEvents(std::vector<NamedEvent>& out) const {
    Control::ListEvents(out);
    out.push_back({"Change", &Change});
}

void SetTextSelect(TextBox& box) {
    box.SetSelStart(0);
    box.SetSelLength(static_cast<int>(box.Text().size()));
}

}  // namespace tarvex
