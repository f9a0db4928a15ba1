#include "shell/controls/tab_control.h"

#include "common/error.h"

namespace tarvex {

TabControl::TabControl(std::string name, int tabs) : Control(std::move(name)) {
    if (tabs < 1) tabs = 1;
    pages_.resize(tabs);
}

void TabControl::SetTabs(int tabs) {
    if (tabs < 1) Raise(kErrInvalidProperty);
    if (tabs == Tabs()) return;
    pages_.resize(tabs);
    // The page shown disappeared: the last one shows, quietly, as the strip shrank under it.
    if (tab_ >= tabs) tab_ = tabs - 1;
    Notify(Aspect::Rows);
}

void TabControl::SetTab(int tab) {
    if (tab < 0 || tab >= Tabs()) Raise(kErrInvalidProperty);
    if (tab == tab_) return;
    const int previous = tab_;
    tab_ = tab;
    Notify(Aspect::Value);
    if (Click) Click(previous);
}

const TabControl::Page& TabControl::PageAt(int tab) const {
    if (tab < 0 || tab >= Tabs()) Raise(kErrInvalidProperty);
    return pages_[tab];
}

TabControl::Page& TabControl::PageAt(int tab) {
    if (tab < 0 || tab >= Tabs()) Raise(kErrInvalidProperty);
    return pages_[tab];
}

std::string TabControl::TabCaption(int tab) const {
    return PageAt(tab).caption;
}

void TabControl::SetTabCaption(int tab, const std::string& caption) {
    Page& page = PageAt(tab);
    if (page.caption == caption) return;
    page.caption = caption;
    Notify(Aspect::Text);
}

bool TabControl::TabEnabled(int tab) const {
    return PageAt(tab).enabled;
}

void TabControl::SetTabEnabled(int tab, bool enabled) {
    Page& page = PageAt(tab);
    if (page.enabled == enabled) return;
    page.enabled = enabled;
    Notify(Aspect::Appearance);
}

bool TabControl::TabVisible(int tab) const {
    return PageAt(tab).visible;
}

void TabControl::SetTabVisible(int tab, bool visible) {
    Page& page = PageAt(tab);
    if (page.visible == visible) return;
    page.visible = visible;
    Notify(Aspect::Appearance);
}

void TabControl::SetTabHeight(float height) {
    if (height < 0) Raise(kErrInvalidProperty);
    if (height == tabHeight_) return;
    tabHeight_ = height;
    Notify(Aspect::Geometry);
}

void TabControl::ListEvents(std::vector<NamedEvent>& out) const {
    Control::ListEvents(out);
    out.push_back({"Click", &Click});
}

}  // namespace tarvex
