#include "shell/controls/option_button.h"

#include <algorithm>

namespace tarvex {

OptionButton::~OptionButton() {
    if (group_) std::erase(group_->members, this);
}

void OptionButton::JoinGroup(std::shared_ptr<OptionGroup> group) {
    if (group_) std::erase(group_->members, this);
    group_ = std::move(group);
    if (group_) group_->members.push_back(this);
}

void OptionButton::SetValue(bool value) {
    if (value == value_) return;
    value_ = value;
    if (value && group_) {
        // Siblings go off quietly: only the button that became set raises Click.
        for (OptionButton* other : group_->members) {
            if (other != this && other->value_) {
                other->value_ = false;
                other->Notify(Aspect::Value);
            }
        }
    }
    Notify(Aspect::Value);
    if (value) RaiseClick();
}

void JoinOptionGroup(const std::vector<OptionButton*>& buttons) {
    auto group = std::make_shared<OptionGroup>();
    for (OptionButton* button : buttons)
        button->JoinGroup(group);
}

}  // namespace tarvex
