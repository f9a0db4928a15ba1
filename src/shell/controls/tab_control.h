#pragma once
#include <string>
#include <vector>

#include "shell/controls/control.h"

namespace tarvex {

// A tab strip with pages. Tab is the current page, 0-based. Setting it to another page fires
// Click(previousTab); a page outside 0..Tabs-1 raises error 380.
class TabControl : public Control {
  public:
    explicit TabControl(std::string name = {}, int tabs = 1);

    int Tabs() const { return static_cast<int>(pages_.size()); }
    void SetTabs(int tabs);  // below 1 raises error 380; the current tab stays when it still exists
    int Tab() const { return tab_; }
    void SetTab(int tab);

    // Out-of-range pages raise error 380.
    std::string TabCaption(int tab) const;
    void SetTabCaption(int tab, const std::string& caption);
    bool TabEnabled(int tab) const;
    void SetTabEnabled(int tab, bool enabled);
    bool TabVisible(int tab) const;
    void SetTabVisible(int tab, bool visible);

    // The header strip's height in map units: a press above it is on a header.
    float TabHeight() const { return tabHeight_; }
    void SetTabHeight(float height);

    Event<int> Click;  // the tab shown before

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    struct Page {
        std::string caption;
        bool enabled = true;
        bool visible = true;
    };
    const Page& PageAt(int tab) const;
    Page& PageAt(int tab);

    std::vector<Page> pages_;
    int tab_ = 0;
    float tabHeight_ = 240;
};

}  // namespace tarvex
