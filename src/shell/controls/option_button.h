#pragma once
#include <memory>
#include <vector>

#include "shell/controls/control.h"

namespace tarvex {

class OptionButton;

// The buttons of which at most one is set. A control array of option buttons is one group;
// buttons that stand alone are joined with JoinOptionGroup.
struct OptionGroup {
    std::vector<OptionButton*> members;
};

// Setting Value true clears the siblings and fires Click on this button only, and only when it
// was not set before. Setting it false fires nothing.
class OptionButton : public CaptionControl {
  public:
    using CaptionControl::CaptionControl;
    ~OptionButton() override;

    bool Value() const { return value_; }
    void SetValue(bool value);
    void UserClick() override { SetValue(true); }

    void JoinGroup(std::shared_ptr<OptionGroup> group);

  private:
    bool value_ = false;
    std::shared_ptr<OptionGroup> group_;
};

void JoinOptionGroup(const std::vector<OptionButton*>& buttons);

}  // namespace tarvex
