#pragma once
// The common ground of every control model: identity, position in map units (twips), look,
// the events every visible control can raise, and the listener list through which the skin
// learns that a model changed.
//
// Event rule kept by every kind: an event fires synchronously inside the setter that changed
// the value, after the new value is stored; setting a value to what it already is fires nothing.
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shell/controls/event.h"

namespace tarvex {

// Colours are values with red in the low byte: 255 is red, 0xFF0000 blue.
using Colour = std::int32_t;

constexpr Colour Rgb(int red, int green, int blue) {
    return static_cast<Colour>((red & 0xFF) | ((green & 0xFF) << 8) | ((blue & 0xFF) << 16));
}
constexpr int RedOf(Colour c) {
    return c & 0xFF;
}
constexpr int GreenOf(Colour c) {
    return (c >> 8) & 0xFF;
}
constexpr int BlueOf(Colour c) {
    return (c >> 16) & 0xFF;
}

// System colours: the high bit set and the system colour index in the low byte. The skin
// resolves them to the desktop's palette; ResolveColour gives the classic defaults.
constexpr Colour kSystemButtonFace = static_cast<Colour>(0x8000000FU);
constexpr Colour kSystemButtonText = static_cast<Colour>(0x80000012U);
constexpr Colour kSystemWindow = static_cast<Colour>(0x80000005U);
constexpr Colour kSystemWindowText = static_cast<Colour>(0x80000008U);
constexpr bool IsSystemColour(Colour c) {
    return (static_cast<std::uint32_t>(c) >> 31) != 0;
}
Colour ResolveColour(Colour c);

// Entry 0 to 15 of the 16 classic colours (0 black, 1 blue (0, 0, 128), ... 15 white);
// any other index raises error 5.
Colour QBColor(int index);

// What changed, so that the skin can update only that part of its widget.
enum class Aspect {
    Geometry,    // Left, Top, Width, Height, z-order
    Appearance,  // Visible, Enabled, colours, tooltip, caption, mouse pointer
    Text,        // Text of a text box or combo, caption text
    Value,       // Value of a check box, option, up-down; current tab; timer settings
    Rows,        // rows of a list or combo, columns and records of a grid
    Selection,   // selected row(s), top row, text selection
    Drawing,     // the recording or the bitmap of a picture surface
    Focus,       // code asked for the focus
};

constexpr int kLeftButton = 1;
constexpr int kRightButton = 2;
constexpr int kMiddleButton = 4;
constexpr int kShiftMask = 1;
constexpr int kCtrlMask = 2;
constexpr int kAltMask = 4;

// Key codes of the keys the forms test for.
constexpr int kKeyBack = 8;
constexpr int kKeyTab = 9;
constexpr int kKeyReturn = 13;
constexpr int kKeyShift = 16;
constexpr int kKeyControl = 17;
constexpr int kKeyEscape = 27;
constexpr int kKeyLeft = 37;
constexpr int kKeyUp = 38;
constexpr int kKeyRight = 39;
constexpr int kKeyDown = 40;
constexpr int kKeyDelete = 46;

// Drop effects of a drag over a control.
constexpr int kDropEffectNone = 0;
constexpr int kDropEffectCopy = 1;
constexpr int kDropEffectMove = 2;

// What a drag carries: a list of files, or something else.
struct DragData {
    bool hasFiles = false;
    std::vector<std::string> files;
};

// Button, shift state, and the position in the control's map units.
using MouseEvent = Event<int, int, float, float>;
// The key code is passed by reference: a handler may set it to 0 to swallow the key.
using KeyEvent = Event<int&, int>;
// The data dragged, and the effect the handler allows.
using DragEvent = Event<const DragData&, int&>;

class Control;

// A place in map units: left and top in the container, width and height.
struct Place {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
};

// What a control lies in: its form, a frame or picture surface of that form, or pages of the
// form's tab strip. A control's Left and Top count from its container's top left corner; on a
// page, from the tab strip's, the strip of headers included.
class Container {
  public:
    // None: a control that its form has not placed.
    Container() = default;
    // The form itself, or a frame or picture surface of the same form.
    static Container In(const Control& holder);
    // Pages of a tab strip. A control shown on several pages goes where the page showing is;
    // its place holds on the first page listed, and the program moves it on the others.
    static Container Pages(const Control& tabStrip, std::initializer_list<int> pages);

    // A surface that may grow beyond its place, seen through a scrolled view of that place.
    Container Scrolled() const;
    // A control that the program shows in turn with what lies under it (in place of it, or
    // over it while it is open): it starts hidden, and it alone may overlap its neighbours.
    Container Overlay() const;

    const Control* Holder() const { return holder_; }
    bool HasPages() const { return pages_ != 0; }
    bool OnPage(int page) const { return page >= 0 && page < 32 && (pages_ >> page & 1U) != 0; }
    // The pages in order; empty for a container that is no tab strip.
    std::vector<int> PageList() const;
    bool IsScrolled() const { return scrolled_; }
    bool IsOverlay() const { return overlay_; }

  private:
    const Control* holder_ = nullptr;
    std::uint32_t pages_ = 0;
    bool scrolled_ = false;
    bool overlay_ = false;
};

// Identity, tag and listeners: what every model has, visible or not (timers, menus, dialogs).
class Component {
  public:
    using Listener = std::function<void(Aspect)>;

    explicit Component(std::string name = {}, int index = -1)
        : name_(std::move(name)), index_(index) {}
    virtual ~Component() = default;
    Component(const Component&) = delete;
    Component& operator=(const Component&) = delete;

    const std::string& Name() const { return name_; }
    // The position in a control array; -1 for a control that stands alone.
    int Index() const { return index_; }

    const std::string& Tag() const { return tag_; }
    void SetTag(const std::string& tag);

    // The skin registers here; the id removes the listener again.
    int AddListener(Listener listener);
    void RemoveListener(int id);

    // The event of that name, compared with regard to case; nullptr when the kind has none.
    const EventSlot* FindEvent(std::string_view event) const;
    // Every event of the kind, for the check that the wiring left none unconnected.
    std::vector<NamedEvent> Events() const;

    // Used by ControlArray when it creates its elements.
    void SetIdentity(std::string name, int index) {
        name_ = std::move(name);
        index_ = index;
    }

  protected:
    void Notify(Aspect aspect) const;
    // Each kind adds its own events to those of the kind it derives from.
    virtual void ListEvents(std::vector<NamedEvent>&) const {}

  private:
    std::string name_;
    int index_;
    std::string tag_;
    std::vector<std::pair<int, Listener>> listeners_;
    int nextListenerId_ = 1;
};

// A visible control: geometry, look and the input events the skin forwards.
class Control : public Component {
  public:
    using Component::Component;

    float Left() const { return left_; }
    float Top() const { return top_; }
    float Width() const { return width_; }
    float Height() const { return height_; }
    void SetLeft(float left) { Move(left, top_, width_, height_); }
    void SetTop(float top) { Move(left_, top, width_, height_); }
    void SetWidth(float width) { Move(left_, top_, width, height_); }
    void SetHeight(float height) { Move(left_, top_, width_, height); }
    void Move(float left, float top) { Move(left, top, width_, height_); }
    // A negative width or height raises error 380.
    virtual void Move(float left, float top, float width, float height);
    void Move(const Place& place) { Move(place.left, place.top, place.width, place.height); }

    // Where the form put the control, and the place it gave it there. The program may move
    // the control later; Home stays, and is the view of a scrolled surface.
    const Container& Where() const { return where_; }
    const Place& Home() const { return home_; }
    void PlaceIn(const Container& where, const Place& place);

    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; }
    void SetVisible(bool visible);

    const std::string& ToolTipText() const { return toolTipText_; }
    void SetToolTipText(const std::string& text);
    Colour BackColor() const { return backColor_; }
    void SetBackColor(Colour colour);
    Colour ForeColor() const { return foreColor_; }
    void SetForeColor(Colour colour);

    // 0 default arrow, 2 cross, 11 hourglass; the skin maps the rest as it can.
    int MousePointer() const { return mousePointer_; }
    void SetMousePointer(int pointer);

    // ZOrder(0) brings the control to the front of its siblings, ZOrder(1) sends it to the
    // back. ZRank orders siblings: the higher one lies on top.
    void ZOrder(int position = 0);
    long ZRank() const { return zRank_; }

    // Asks the skin to give this control the focus; the skin reports the move back through
    // RaiseGotFocus / RaiseLostFocus.
    void SetFocus() { Notify(Aspect::Focus); }

    // Input from the skin (or a test). Each runs the matching event if one is wired; the
    // user's gestures that take several of these steps are in user_gestures.h.
    // A press and release of the left button on a button, check box or option button go:
    // RaiseMouseDown, the control's own change (UserClick), then RaiseMouseUp, so that a
    // MouseUp handler sees the new value. A list is the other way round: it selects the row
    // under the pointer first, then raises MouseDown (and in a drag selects the row reached
    // before each MouseMove), so that those handlers read the pressed row from ListIndex.
    virtual void UserClick() { RaiseClick(); }
    void RaiseClick() const;
    void RaiseDblClick() const;
    void RaiseMouseDown(int button, int shift, float x, float y) const;
    void RaiseMouseMove(int button, int shift, float x, float y) const;
    void RaiseMouseUp(int button, int shift, float x, float y) const;
    // The key code after the handlers ran (0 when one swallowed it).
    int RaiseKeyDown(int keyCode, int shift) const;
    int RaiseKeyUp(int keyCode, int shift) const;
    int RaiseKeyPress(int keyAscii) const;
    void RaiseGotFocus() const;
    void RaiseLostFocus() const;
    // The effect after the handler ran; with no handler wired a drop is refused.
    int RaiseDragOver(const DragData& data) const;
    void RaiseDragDrop(const DragData& data) const;

    Event<> Click;
    Event<> DblClick;
    MouseEvent MouseDown;
    MouseEvent MouseMove;
    MouseEvent MouseUp;
    KeyEvent KeyDown;
    KeyEvent KeyUp;
    Event<int&> KeyPress;  // the character typed; 0 swallows it
    Event<> GotFocus;
    Event<> LostFocus;
    DragEvent OLEDragOver;
    DragEvent OLEDragDrop;

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    Container where_;
    Place home_;
    float left_ = 0;
    float top_ = 0;
    float width_ = 0;
    float height_ = 0;
    bool enabled_ = true;
    bool visible_ = true;
    std::string toolTipText_;
    Colour backColor_ = kSystemButtonFace;
    Colour foreColor_ = kSystemButtonText;
    int mousePointer_ = 0;
    long zRank_ = 0;
};

// A control that shows a caption; "&" marks the access key.
class CaptionControl : public Control {
  public:
    using Control::Control;
    const std::string& Caption() const { return caption_; }
    void SetCaption(const std::string& caption);

  private:
    std::string caption_;
};

}  // namespace tarvex
