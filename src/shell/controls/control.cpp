#include "shell/controls/control.h"

#include <algorithm>

#include "common/error.h"

namespace tarvex {

Colour ResolveColour(Colour c) {
    if (!IsSystemColour(c)) return c;
    switch (c & 0xFF) {
        case 0x05:
            return Rgb(255, 255, 255);  // window background
        case 0x0F:
            return Rgb(192, 192, 192);  // button face
        default:
            return 0;  // the text colours
    }
}

Colour QBColor(int index) {
    static constexpr Colour kPalette[16] = {
        Rgb(0, 0, 0),       Rgb(0, 0, 128),   Rgb(0, 128, 0),   Rgb(0, 128, 128),
        Rgb(128, 0, 0),     Rgb(128, 0, 128), Rgb(128, 128, 0), Rgb(192, 192, 192),
        Rgb(128, 128, 128), Rgb(0, 0, 255),   Rgb(0, 255, 0),   Rgb(0, 255, 255),
        Rgb(255, 0, 0),     Rgb(255, 0, 255), Rgb(255, 255, 0), Rgb(255, 255, 255),
    };
    if (index < 0 || index > 15) Raise(kErrInvalidCall);
    return kPalette[index];
}

void Component::SetTag(const std::string& tag) {
    if (tag == tag_) return;
    tag_ = tag;
    Notify(Aspect::Appearance);
}

int Component::AddListener(Listener listener) {
    const int id = nextListenerId_++;
    listeners_.emplace_back(id, std::move(listener));
    return id;
}

void Component::RemoveListener(int id) {
    std::erase_if(listeners_, [id](const auto& entry) { return entry.first == id; });
}

std::vector<NamedEvent> Component::Events() const {
    std::vector<NamedEvent> events;
    ListEvents(events);
    return events;
}

const EventSlot* Component::FindEvent(std::string_view event) const {
    // A kind's own event comes after the one it hides (a tab strip's Click).
    const std::vector<NamedEvent> events = Events();
    for (auto it = events.rbegin(); it != events.rend(); ++it)
        if (event == it->name) return it->slot;
    return nullptr;
}

void Component::Notify(Aspect aspect) const {
    if (listeners_.empty()) return;
    // A copy, so that a listener may add or remove listeners while it runs.
    const auto listeners = listeners_;
    for (const auto& entry : listeners)
        entry.second(aspect);
}

Container Container::In(const Control& holder) {
    Container c;
    c.holder_ = &holder;
    return c;
}

Container Container::Pages(const Control& tabStrip, std::initializer_list<int> pages) {
    Container c;
    c.holder_ = &tabStrip;
    for (int page : pages)
        if (page >= 0 && page < 32) c.pages_ |= 1U << page;
    return c;
}

Container Container::Scrolled() const {
    Container c = *this;
    c.scrolled_ = true;
    return c;
}

Container Container::Overlay() const {
    Container c = *this;
    c.overlay_ = true;
    return c;
}

std::vector<int> Container::PageList() const {
    std::vector<int> pages;
    for (int page = 0; page < 32; ++page)
        if (OnPage(page)) pages.push_back(page);
    return pages;
}

void Control::PlaceIn(const Container& where, const Place& place) {
    where_ = where;
    home_ = place;
    Move(place);
}

void Control::ListEvents(std::vector<NamedEvent>& out) const {
    out.insert(out.end(), {{"Click", &Click},
                           {"DblClick", &DblClick},
                           {"MouseDown", &MouseDown},
                           {"MouseMove", &MouseMove},
                           {"MouseUp", &MouseUp},
                           {"KeyDown", &KeyDown},
                           {"KeyUp", &KeyUp},
                           {"KeyPress", &KeyPress},
                           {"GotFocus", &GotFocus},
                           {"LostFocus", &LostFocus},
                           {"OLEDragOver", &OLEDragOver},
                           {"OLEDragDrop", &OLEDragDrop}});
}

void Control::Move(float left, float top, float width, float height) {
    if (width < 0 || height < 0) Raise(kErrInvalidProperty);
    if (left == left_ && top == top_ && width == width_ && height == height_) return;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    Notify(Aspect::Geometry);
}

void Control::SetEnabled(bool enabled) {
    if (enabled == enabled_) return;
    enabled_ = enabled;
    Notify(Aspect::Appearance);
}

void Control::SetVisible(bool visible) {
    if (visible == visible_) return;
    visible_ = visible;
    Notify(Aspect::Appearance);
}

void Control::SetToolTipText(const std::string& text) {
    if (text == toolTipText_) return;
    toolTipText_ = text;
    Notify(Aspect::Appearance);
}

void Control::SetBackColor(Colour colour) {
    if (colour == backColor_) return;
    backColor_ = colour;
    Notify(Aspect::Appearance);
}

void Control::SetForeColor(Colour colour) {
    if (colour == foreColor_) return;
    foreColor_ = colour;
    Notify(Aspect::Appearance);
}

void Control::SetMousePointer(int pointer) {
    if (pointer == mousePointer_) return;
    mousePointer_ = pointer;
    Notify(Aspect::Appearance);
}

namespace {
// One sequence for all controls, so a control brought forward lies above every sibling that
// came forward before it, whatever their kinds.
long nextFrontRank = 1;
long nextBackRank = -1;
}  // namespace

void Control::ZOrder(int position) {
    zRank_ = position == 0 ? nextFrontRank++ : nextBackRank--;
    Notify(Aspect::Geometry);
}

void Control::RaiseClick() const {
    if (Click) Click();
}

void Control::RaiseDblClick() const {
    if (DblClick) DblClick();
}

void Control::RaiseMouseDown(int button, int shift, float x, float y) const {
    if (MouseDown) MouseDown(button, shift, x, y);
}

void Control::RaiseMouseMove(int button, int shift, float x, float y) const {
    if (MouseMove) MouseMove(button, shift, x, y);
}

void Control::RaiseMouseUp(int button, int shift, float x, float y) const {
    if (MouseUp) MouseUp(button, shift, x, y);
}

int Control::RaiseKeyDown(int keyCode, int shift) const {
    if (KeyDown) KeyDown(keyCode, shift);
    return keyCode;
}

int Control::RaiseKeyUp(int keyCode, int shift) const {
    if (KeyUp) KeyUp(keyCode, shift);
    return keyCode;
}

int Control::RaiseKeyPress(int keyAscii) const {
    if (KeyPress) KeyPress(keyAscii);
    return keyAscii;
}

void Control::RaiseGotFocus() const {
    if (GotFocus) GotFocus();
}

void Control::RaiseLostFocus() const {
    if (LostFocus) LostFocus();
}

int Control::RaiseDragOver(const DragData& data) const {
    int effect = kDropEffectNone;
    if (OLEDragOver) {
        effect = kDropEffectCopy | kDropEffectMove;
        OLEDragOver(data, effect);
    }
    return effect;
}

void Control::RaiseDragDrop(const DragData& data) const {
    int effect = kDropEffectCopy;
    if (OLEDragDrop) OLEDragDrop(data, effect);
}

void CaptionControl::SetCaption(const std::string& caption) {
    if (caption == caption_) return;
    caption_ = caption;
    Notify(Aspect::Text);
}

}  // namespace tarvex
