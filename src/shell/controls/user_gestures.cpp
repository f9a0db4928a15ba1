#include "shell/controls/user_gestures.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <string>
#include <vector>

#include "common/text.h"
#include "shell/controls/combo_box.h"
#include "shell/controls/list_box.h"
#include "shell/controls/tab_control.h"
#include "shell/controls/text_box.h"

namespace tarvex {

namespace {

// A row of the desktop's small font, for the places reported with a press on a list that
// gives no row height of its own.
constexpr float kListRowHeight = 195;

constexpr int kKeySpace = 32;
constexpr int kKeyHome = 36;
constexpr int kKeyEnd = 35;

std::vector<int> RowsBetween(int a, int b) {
    std::vector<int> rows;
    for (int r = std::min(a, b); r <= std::max(a, b); ++r)
        rows.push_back(r);
    return rows;
}

bool IsRow(const ListBox& list, int row) {
    return row >= 0 && row < list.ListCount();
}

void SelectByPress(ListBox& list, int row, int shift) {
    const bool ctrl = (shift & kCtrlMask) != 0;
    const bool extend = (shift & kShiftMask) != 0;
    switch (list.MultiSelect()) {
        case kMultiSelectSimple: {
            list.SetAnchorIndex(row);
            list.SetSelected(row, !list.Selected(row));
            return;
        }
        case kMultiSelectExtended: {
            std::vector<int> rows = ctrl ? list.SelectedRows() : std::vector<int>{};
            if (extend) {
                const int anchor = list.AnchorIndex() >= 0 ? list.AnchorIndex() : row;
                for (int r : RowsBetween(anchor, row))
                    if (std::find(rows.begin(), rows.end(), r) == rows.end()) rows.push_back(r);
                list.SetSelection(rows, row);
                list.SetAnchorIndex(anchor);
                return;
            }
            const auto at = std::find(rows.begin(), rows.end(), row);
            if (ctrl && at != rows.end()) {
                rows.erase(at);
            } else {
                rows.push_back(row);
            }
            list.SetSelection(rows, row);
            list.SetAnchorIndex(row);
            return;
        }
        default:
            list.SetListIndex(row);
    }
}

// The caret's next stop after or before `at`: a line break of a multi-line box and a character
// of several bytes are passed whole.
int CaretStep(const std::string& text, int at, bool forward) {
    const int size = static_cast<int>(text.size());
    const auto continuation = [&](int i) {
        return (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80;
    };
    if (forward) {
        if (at >= size) return size;
        if (text.compare(at, 2, "\r\n") == 0) return at + 2;
        int next = at + 1;
        while (next < size && continuation(next))
            ++next;
        return next;
    }
    if (at <= 0) return 0;
    if (at >= 2 && text.compare(at - 2, 2, "\r\n") == 0) return at - 2;
    int previous = at - 1;
    while (previous > 0 && continuation(previous))
        --previous;
    return previous;
}

// What a text box or an editable combo does with keys, whichever it is.
class TextTarget {
  public:
    explicit TextTarget(Control& control)
        : box_(dynamic_cast<TextBox*>(&control)), combo_(dynamic_cast<ComboBox*>(&control)) {
        if (combo_ && combo_->Style() == kComboDropDownList) combo_ = nullptr;
    }
    bool Valid() const { return box_ || combo_; }

    void SelectAll() {
        if (box_) {
            box_->SetSelStart(0);
            box_->SetSelLength(static_cast<int>(box_->Text().size()));
        }
        replaceCombo_ = true;
    }

    void Insert(const std::string& text) {
        if (box_) {
            if (box_->Locked()) return;
            const int room =
                box_->MaxLength() == 0
                    ? static_cast<int>(text.size())
                    : box_->MaxLength() - static_cast<int>(box_->Text().size()) + box_->SelLength();
            if (room < static_cast<int>(text.size())) return;
            box_->SetSelText(text);
        } else if (combo_) {
            combo_->SetText(replaceCombo_ ? text : combo_->Text() + text);
            replaceCombo_ = false;
        }
    }

    // Back (before) and Delete (after): the selection, else one character.
    void Erase(bool before) {
        if (combo_) {
            if (replaceCombo_) {
                combo_->SetText("");
            } else if (before && !combo_->Text().empty()) {
                const std::string& text = combo_->Text();
                combo_->SetText(
                    text.substr(0, CaretStep(text, static_cast<int>(text.size()), false)));
            }
            replaceCombo_ = false;
            return;
        }
        if (!box_ || box_->Locked()) return;
        if (box_->SelLength() == 0) {
            const int start = box_->SelStart();
            const int other = CaretStep(box_->Text(), start, !before);
            if (other == start) return;
            box_->SetSelStart(std::min(start, other));
            box_->SetSelLength(std::abs(other - start));
        }
        box_->SetSelText("");
    }

    // Home and End go to the ends of the caret's line.
    void MoveCaret(int keyCode) {
        if (!box_) return;
        const std::string& text = box_->Text();
        const int at = box_->SelStart();
        switch (keyCode) {
            case kKeyHome: {
                const size_t lineBreak = at < 2 ? std::string::npos : text.rfind("\r\n", at - 2);
                box_->SetSelStart(lineBreak == std::string::npos ? 0
                                                                 : static_cast<int>(lineBreak) + 2);
                break;
            }
            case kKeyEnd: {
                const size_t lineBreak = text.find("\r\n", at);
                box_->SetSelStart(lineBreak == std::string::npos ? static_cast<int>(text.size())
                                                                 : static_cast<int>(lineBreak));
                break;
            }
            case kKeyLeft:
                box_->SetSelStart(CaretStep(text, at, false));
                break;
            case kKeyRight:
                box_->SetSelStart(CaretStep(text, at + box_->SelLength(), true));
                break;
            default:
                break;
        }
    }

    bool MultiLine() const { return box_ && box_->MultiLine(); }

  private:
    TextBox* box_;
    ComboBox* combo_;
    bool replaceCombo_ = false;
};

int MovedRow(int keyCode, int current, int count) {
    switch (keyCode) {
        case kKeyUp:
            return current < 0 ? 0 : std::max(0, current - 1);
        case kKeyDown:
            return std::min(count - 1, current + 1);
        case kKeyHome:
            return 0;
        case kKeyEnd:
            return count - 1;
        default:
            return current;
    }
}

void RespondToKey(Control& control, int keyCode, TextTarget& text) {
    if (text.Valid()) {
        switch (keyCode) {
            case kKeyBack:
                text.Erase(true);
                return;
            case kKeyDelete:
                text.Erase(false);
                return;
            case kKeyReturn:
                if (text.MultiLine()) text.Insert("\r\n");
                return;
            case kKeyHome:
            case kKeyEnd:
            case kKeyLeft:
            case kKeyRight:
                text.MoveCaret(keyCode);
                return;
            default:
                break;
        }
    }
    if (auto* combo = dynamic_cast<ComboBox*>(&control); combo && combo->DroppedDown()) {
        if (keyCode == kKeyUp || keyCode == kKeyDown) {
            if (combo->ListCount() > 0)
                combo->UserHighlight(MovedRow(keyCode, combo->ListIndex(), combo->ListCount()));
        } else if (keyCode == kKeyReturn) {
            combo->UserChoose(combo->ListIndex());
        } else if (keyCode == kKeyEscape) {
            combo->UserCancelDrop();
        }
        return;
    }
    auto* list = dynamic_cast<ListControl*>(&control);
    if (!list || list->ListCount() == 0) return;
    if (keyCode != kKeyUp && keyCode != kKeyDown && keyCode != kKeyHome && keyCode != kKeyEnd)
        return;
    const int row = MovedRow(keyCode, list->ListIndex(), list->ListCount());
    if (auto* closed = dynamic_cast<ComboBox*>(&control)) {
        if (row != closed->ListIndex()) closed->UserChoose(row);
        return;
    }
    auto* box = dynamic_cast<ListBox*>(&control);
    if (box && box->MultiSelect() != kMultiSelectNone) {
        box->SetSelection({row}, row);
        box->SetAnchorIndex(row);
    } else {
        list->SetListIndex(row);
    }
}

// One key with the character it gives (0 for none).
void PressKey(Control& control, int keyCode, int shift, char character, TextTarget& text) {
    if (keyCode != 0 && control.RaiseKeyDown(keyCode, shift) == 0) {
        control.RaiseKeyUp(keyCode, shift);
        return;
    }
    int typed = static_cast<unsigned char>(character);
    if (typed != 0) typed = control.RaiseKeyPress(typed);
    if (typed >= 32 && typed < 127) {
        text.Insert(std::string(1, static_cast<char>(typed)));
    } else if ((typed != 0 || character == 0) && KeyHasResponse(control, keyCode, shift)) {
        RespondToKey(control, keyCode, text);
    }
    if (keyCode != 0) control.RaiseKeyUp(keyCode, shift);
}

// The character a key gives, for the keys that give one.
char CharacterOfKey(int keyCode, int shift) {
    const bool shifted = (shift & kShiftMask) != 0;
    if (keyCode >= 'A' && keyCode <= 'Z')
        return static_cast<char>(shifted ? keyCode : keyCode + 32);
    if (keyCode >= '0' && keyCode <= '9' && !shifted) return static_cast<char>(keyCode);
    switch (keyCode) {
        case kKeySpace:
        case kKeyBack:
        case kKeyReturn:
        case kKeyEscape:
            return static_cast<char>(keyCode);
        default:
            return 0;
    }
}

}  // namespace

void UserClickControl(Control& control) {
    const float x = control.Width() / 2;
    const float y = control.Height() / 2;
    control.RaiseMouseDown(kLeftButton, 0, x, y);
    control.UserClick();
    control.RaiseMouseUp(kLeftButton, 0, x, y);
}

float RowMiddle(const ListBox& list, int row) {
    const float height = list.RowHeight() > 0 ? list.RowHeight() : kListRowHeight;
    return (static_cast<float>(row - list.TopIndex()) + 0.5f) * height;
}

void UserPressRow(ListBox& list, int row, int button, int shift) {
    UserPressRow(list, row, button, shift, list.Width() / 2, RowMiddle(list, row));
}

void UserPressRow(ListBox& list, int row, int button, int shift, float x, float y) {
    if (button == kLeftButton && IsRow(list, row)) SelectByPress(list, row, shift);
    list.RaiseMouseDown(button, shift, x, y);
}

void UserMoveOverRow(ListBox& list, int row, int button, int shift) {
    UserMoveOverRow(list, row, button, shift, list.Width() / 2, RowMiddle(list, row));
}

void UserMoveOverRow(ListBox& list, int row, int button, int shift, float x, float y) {
    if (button == kLeftButton && IsRow(list, row)) {
        if (list.MultiSelect() == kMultiSelectNone) {
            list.SetListIndex(row);
        } else if (list.MultiSelect() == kMultiSelectExtended) {
            const int anchor = list.AnchorIndex() >= 0 ? list.AnchorIndex() : row;
            list.SetSelection(RowsBetween(anchor, row), row);
            list.SetAnchorIndex(anchor);
        }
    }
    list.RaiseMouseMove(button, shift, x, y);
}

void UserReleaseRow(ListBox& list, int row, int button, int shift) {
    UserReleaseRow(list, row, button, shift, list.Width() / 2, RowMiddle(list, row));
}

void UserReleaseRow(ListBox& list, int, int button, int shift, float x, float y) {
    list.RaiseMouseUp(button, shift, x, y);
}

void UserDoubleClickRow(ListBox& list, int row, int button, int shift) {
    UserDoubleClickRow(list, row, button, shift, list.Width() / 2, RowMiddle(list, row));
}

void UserDoubleClickRow(ListBox& list, int, int button, int shift, float x, float y) {
    list.RaiseMouseDown(button, shift, x, y);
    list.RaiseDblClick();
}

void UserPressTab(TabControl& strip, int tab, int button, int shift, float x, float y) {
    if (button == kLeftButton && tab >= 0 && tab < strip.Tabs() && tab != strip.Tab() &&
        strip.TabEnabled(tab) && y <= strip.TabHeight())
        strip.SetTab(tab);
    strip.RaiseMouseDown(button, shift, x, y);
}

bool TakesTyping(const Control& control) {
    if (dynamic_cast<const TextBox*>(&control)) return true;
    const auto* combo = dynamic_cast<const ComboBox*>(&control);
    return combo && combo->Style() != kComboDropDownList;
}

bool KeyHasResponse(const Control& control, int keyCode, int shift) {
    if (shift != 0) return false;
    if (TakesTyping(control)) {
        switch (keyCode) {
            case kKeyBack:
            case kKeyDelete:
            case kKeyHome:
            case kKeyEnd:
            case kKeyLeft:
            case kKeyRight:
                return true;
            case kKeyReturn:
                if (const auto* box = dynamic_cast<const TextBox*>(&control);
                    box && box->MultiLine())
                    return true;
                break;
            default:
                break;
        }
    }
    const auto* combo = dynamic_cast<const ComboBox*>(&control);
    if (combo && combo->DroppedDown())
        return keyCode == kKeyUp || keyCode == kKeyDown || keyCode == kKeyReturn ||
               keyCode == kKeyEscape;
    const auto* list = dynamic_cast<const ListControl*>(&control);
    return list && list->ListCount() > 0 &&
           (keyCode == kKeyUp || keyCode == kKeyDown || keyCode == kKeyHome || keyCode == kKeyEnd);
}

void UserPressKey(Control& control, int keyCode, int shift) {
    TextTarget text(control);
    PressKey(control, keyCode, shift, CharacterOfKey(keyCode, shift), text);
}

void UserTypeText(Control& box, std::string_view text, bool replace) {
    TextTarget target(box);
    if (!target.Valid()) return;
    if (replace) {
        target.SelectAll();
        if (text.empty()) {
            PressKey(box, kKeyDelete, 0, 0, target);
            return;
        }
    }
    for (size_t i = 0; i < text.size(); ++i) {
        const auto c = static_cast<unsigned char>(text[i]);
        if (c == '\n') {
            PressKey(box, kKeyReturn, 0, '\r', target);
        } else if (c >= 0x80) {
            // The whole of a UTF-8 sequence at once.
            size_t end = i + 1;
            while (end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
                ++end;
            target.Insert(std::string(text.substr(i, end - i)));
            i = end - 1;
        } else {
            int shift = 0;
            const int code = KeyCodeOfCharacter(static_cast<char>(c), shift);
            PressKey(box, code, shift, static_cast<char>(c), target);
        }
    }
}

int KeyCodeOfCharacter(char character, int& shift) {
    shift = 0;
    if (character >= 'a' && character <= 'z') return character - 32;
    if (character >= 'A' && character <= 'Z') {
        shift = kShiftMask;
        return character;
    }
    if (character >= '0' && character <= '9') return character;
    if (character == ' ') return kKeySpace;
    // The punctuation keys, with the character each gives without and with Shift.
    static constexpr struct {
        int code;
        char plain;
        char shifted;
    } kKeys[] = {{186, ';', ':'},  {187, '=', '+'}, {188, ',', '<'}, {189, '-', '_'},
                 {190, '.', '>'},  {191, '/', '?'}, {192, '`', '~'}, {219, '[', '{'},
                 {220, '\\', '|'}, {221, ']', '}'}, {222, '\'', '"'}};
    for (const auto& key : kKeys) {
        if (character == key.plain) return key.code;
        if (character == key.shifted) {
            shift = kShiftMask;
            return key.code;
        }
    }
    static constexpr char kShiftedDigits[] = ")!@#$%^&*(";
    for (int digit = 0; digit < 10; ++digit) {
        if (character == kShiftedDigits[digit]) {
            shift = kShiftMask;
            return '0' + digit;
        }
    }
    return 0;
}

int KeyCodeOfName(std::string_view name) {
    if (name.size() == 1 && std::isalnum(static_cast<unsigned char>(name[0])))
        return std::toupper(static_cast<unsigned char>(name[0]));
    if (name.size() >= 2 && (name[0] == 'F' || name[0] == 'f')) {
        const std::string digits(name.substr(1));
        if (digits.find_first_not_of("0123456789") == std::string::npos && digits.size() <= 2) {
            const int n = std::stoi(digits);
            if (n >= 1 && n <= 12) return 111 + n;
        }
    }
    static constexpr struct {
        const char* name;
        int code;
    } kNames[] = {{"Back", kKeyBack},       {"Backspace", kKeyBack}, {"Tab", kKeyTab},
                  {"Return", kKeyReturn},   {"Enter", kKeyReturn},   {"Shift", kKeyShift},
                  {"Control", kKeyControl}, {"Ctrl", kKeyControl},   {"Escape", kKeyEscape},
                  {"Esc", kKeyEscape},      {"Space", kKeySpace},    {"PageUp", 33},
                  {"PageDown", 34},         {"End", kKeyEnd},        {"Home", kKeyHome},
                  {"Left", kKeyLeft},       {"Up", kKeyUp},          {"Right", kKeyRight},
                  {"Down", kKeyDown},       {"Insert", 45},          {"Delete", kKeyDelete},
                  {"Del", kKeyDelete}};
    for (const auto& key : kNames)
        if (SameText(name, key.name)) return key.code;
    return 0;
}

}  // namespace tarvex
