#pragma once
#include <functional>
#include <string>
#include <vector>

#include "shell/controls/control.h"

namespace tarvex {

// A menu entry. Caption "-" is a separator; "&" marks the access key. Shortcut is the key as
// the desktop writes it ("Ctrl+N", "F12", "Del"). Children are entries of the form that owns
// them, listed here in their menu order.
class MenuItem : public Component {
  public:
    using Component::Component;
    MenuItem(std::string name, std::string caption, std::string shortcut = {})
        : Component(std::move(name)),
          caption_(std::move(caption)),
          shortcut_(std::move(shortcut)) {}

    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);
    const std::string& Shortcut() const { return shortcut_; }
    void SetShortcut(const std::string& shortcut);
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);
    bool IsSeparator() const { return caption_ == "-"; }

    void AddChild(MenuItem& child) { children_.push_back(&child); }
    const std::vector<MenuItem*>& Children() const { return children_; }

    // A disabled or hidden entry can't be chosen: the click is dropped.
    void UserClick();
    // The skin reports that the entry became highlighted while the menu is open.
    void RaiseHighlight(bool byMouse) const {
        if (Highlight) Highlight(byMouse);
    }

    Event<> Click;
    Event<bool> Highlight;  // whether the mouse reached it

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    std::string caption_;
    std::string shortcut_;
    bool enabled_ = true;
    bool checked_ = false;
    bool visible_ = true;
    std::vector<MenuItem*> children_;
};

}  // namespace tarvex
