#include "shell/controls/menu_item.h"

namespace tarvex {

void MenuItem::SetCaption(const std::string& caption) {
    if (caption == caption_) return;
    caption_ = caption;
    Notify(Aspect::Text);
}

void MenuItem::SetShortcut(const std::string& shortcut) {
    if (shortcut == shortcut_) return;
    shortcut_ = shortcut;
    Notify(Aspect::Text);
}

void MenuItem::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Notify(Aspect::Appearance);
}

void MenuItem::SetChecked(bool checked) {
    if (checked == checked_) return;
    checked_ = checked;
    Notify(Aspect::Value);
}

void MenuItem::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Notify(Aspect::Appearance);
}

void MenuItem::UserClick() {
    if (!enabled_ || !visible_ || IsSeparator()) return;
    if (Click) Click();
}

void MenuItem::ListEvents(std::vector<NamedEvent>& out) const {
    Component::ListEvents(out);
    out.push_back({"Click", &Click});
    out.push_back({"Highlight", &Highlight});
}

}  // namespace tarvex
