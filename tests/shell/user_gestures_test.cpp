// The user's gestures that the skin and the scenarios share: the order of the events and the
// selection, text and tab they leave.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shell/controls/controls.h"
#include "shell/controls/user_gestures.h"

namespace tarvex {
namespace {

std::vector<int> SelectedRows(const ListBox& list) {
    std::vector<int> rows;
    for (int r = 0; r < list.ListCount(); ++r)
        if (list.Selected(r)) rows.push_back(r);
    return rows;
}

ListBox& Rows(ListBox& list, int count) {
    for (int r = 0; r < count; ++r)
        list.AddItem("row " + std::to_string(r));
    return list;
}

// Presses on an extended list after a plain press on row 1: what stays selected, and where
// the focus is.
TEST(UserGesturesTest, ExtendedListSelectsAsTheDesktopDoes) {
    const struct {
        const char* what;
        std::vector<std::pair<int, int>> presses;  // row, shift state
        std::vector<int> selected;
        int focus;
    } cases[] = {
        {"plain press", {{4, 0}}, {4}, 4},
        {"ctrl adds", {{4, kCtrlMask}}, {1, 4}, 4},
        {"ctrl takes away", {{4, kCtrlMask}, {1, kCtrlMask}}, {4}, 1},
        {"shift spans from the anchor", {{4, kShiftMask}}, {1, 2, 3, 4}, 4},
        {"a second shift keeps the anchor", {{4, kShiftMask}, {2, kShiftMask}}, {1, 2}, 2},
        {"shift upwards", {{0, kShiftMask}}, {0, 1}, 0},
        {"ctrl moves the anchor", {{5, kCtrlMask}, {3, kShiftMask}}, {3, 4, 5}, 3},
        {"ctrl and shift add a span",
         {{5, kCtrlMask}, {3, kCtrlMask | kShiftMask}},
         {1, 3, 4, 5},
         3},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        ListBox list;
        Rows(list, 6).SetMultiSelect(kMultiSelectExtended);
        UserPressRow(list, 1, kLeftButton, 0);
        for (const auto& [row, shift] : c.presses)
            UserPressRow(list, row, kLeftButton, shift);
        EXPECT_EQ(SelectedRows(list), c.selected);
        EXPECT_EQ(list.ListIndex(), c.focus);
    }
}

// The selection changes before MouseDown reports the press, so the press sees its row; the
// right button selects nothing; a drag with the left button carries the selection along.
TEST(UserGesturesTest, ListPressSelectsBeforeItReportsThePress) {
    ListBox list;
    Rows(list, 4);
    std::vector<std::string> log;
    list.Click.Connect([&] { log.push_back("Click " + std::to_string(list.ListIndex())); });
    list.MouseDown.Connect([&](int button, int, float, float y) {
        log.push_back("Down " + std::to_string(button) + " at row " +
                      std::to_string(list.ListIndex()) + (y > 195 * 2 ? " below" : ""));
    });
    list.MouseMove.Connect([&](int button, int, float, float) {
        log.push_back("Move " + std::to_string(button) + " " + std::to_string(list.ListIndex()));
    });
    list.MouseUp.Connect([&](int, int, float, float) { log.push_back("Up"); });

    UserPressRow(list, 2, kLeftButton, 0);
    UserMoveOverRow(list, 3, kLeftButton, 0);
    UserReleaseRow(list, 3, kLeftButton, 0);
    UserPressRow(list, 0, kRightButton, 0);
    UserMoveOverRow(list, 1, 0, 0);
    // A press below the last row selects nothing.
    UserPressRow(list, -1, kLeftButton, 0, 10, 5000);
    EXPECT_EQ(log, (std::vector<std::string>{"Click 2", "Down 1 at row 2 below", "Click 3",
                                             "Move 1 3", "Up", "Down 2 at row 3", "Move 0 3",
                                             "Down 1 at row 3 below"}));
}

TEST(UserGesturesTest, TabPressShowsAnEnabledPageBeforeItReportsThePress) {
    TabControl strip("SSTab1", 4);
    strip.SetTabEnabled(2, false);
    std::vector<std::string> log;
    strip.Click.Connect(
        [&](int previous) { log.push_back("Click from " + std::to_string(previous)); });
    strip.MouseDown.Connect(
        [&](int, int, float, float) { log.push_back("Down on " + std::to_string(strip.Tab())); });
    UserPressTab(strip, 3, kLeftButton, 0, 100, 120);
    UserPressTab(strip, 2, kLeftButton, 0, 100, 120);
    UserPressTab(strip, 3, kLeftButton, 0, 100, 120);
    // Only the left button turns the page, and only on the headers.
    UserPressTab(strip, 1, kRightButton, 0, 100, 120);
    UserPressTab(strip, 1, kLeftButton, 0, 100, strip.TabHeight() + 1);
    EXPECT_EQ(log, (std::vector<std::string>{"Click from 0", "Down on 3", "Down on 3", "Down on 3",
                                             "Down on 3", "Down on 3"}));
}

// Each key: KeyDown, KeyPress, the change, KeyUp; a handler may swallow the key or the
// character, or change the character.
TEST(UserGesturesTest, TypingGoesKeyByKeyWithOneChangePerKey) {
    TextBox box;
    std::vector<std::string> log;
    box.KeyDown.Connect([&](int& code, int shift) {
        log.push_back("Down " + std::to_string(code) + (shift ? "+shift" : ""));
        if (code == '9') code = 0;
    });
    box.KeyPress.Connect([&](int& ascii) {
        if (ascii == 'x') ascii = 0;
        if (ascii == 'y') ascii = 'Y';
    });
    box.Change.Connect([&] {
        log.push_back("Change " + box.Text() + " caret " + std::to_string(box.SelStart()));
    });
    box.KeyUp.Connect([&](int& code, int) { log.push_back("Up " + std::to_string(code)); });

    box.SetText("old");
    log.clear();
    UserTypeText(box, "aB9xy", true);
    EXPECT_EQ(box.Text(), "aBY");
    EXPECT_EQ(log,
              (std::vector<std::string>{"Down 65", "Change a caret 1", "Up 65", "Down 66+shift",
                                        "Change aB caret 2", "Up 66", "Down 57", "Up 57", "Down 88",
                                        "Up 88", "Down 89", "Change aBY caret 3", "Up 89"}));
}

TEST(UserGesturesTest, KeysEditTheTextOrMoveTheSelection) {
    const int home = KeyCodeOfName("Home");
    const int end = KeyCodeOfName("End");
    const struct {
        const char* what;
        std::string start;
        std::vector<int> keys;
        std::string text;
    } texts[] = {
        {"back at the end", "abc", {end, kKeyBack}, "ab"},
        {"delete at the start", "abc", {home, kKeyDelete}, "bc"},
        {"back takes a line break whole", "a\r\nb", {end, kKeyRight, kKeyBack}, "ab"},
        {"return in a multi-line box", "ab", {end, kKeyReturn}, "ab\r\n"},
        {"right passes a line break whole, home stays on the line",
         "ab\r\ncd",
         {kKeyRight, kKeyRight, kKeyRight, home, kKeyBack},
         "abcd"},
        {"a character of two bytes goes whole", "\xC3\xA9x", {end, kKeyLeft, kKeyBack}, "x"},
    };
    for (const auto& c : texts) {
        SCOPED_TRACE(c.what);
        TextBox box;
        box.SetMultiLine(true);
        box.SetText(c.start);
        for (int key : c.keys)
            UserPressKey(box, key, 0);
        EXPECT_EQ(box.Text(), c.text);
    }

    TextBox limited;
    limited.SetMaxLength(3);
    UserTypeText(limited, "12345", false);
    EXPECT_EQ(limited.Text(), "123");
    limited.SetLocked(true);
    UserTypeText(limited, "", true);
    EXPECT_EQ(limited.Text(), "123");

    ComboBox names;
    names.SetText("Pilot_1");
    UserTypeText(names, "Bob", true);
    EXPECT_EQ(names.Text(), "Bob");
    UserPressKey(names, kKeyBack, 0);
    EXPECT_EQ(names.Text(), "Bo");

    ListBox list;
    Rows(list, 3).SetListIndex(0);
    UserPressKey(list, kKeyDown, 0);
    UserPressKey(list, end, 0);
    EXPECT_EQ(list.ListIndex(), 2);

    // A closed list: an arrow is the user's choice of the next row.
    ComboBox closed;
    for (const char* row : {"a", "b"})
        closed.AddItem(row);
    closed.SetStyle(kComboDropDownList);
    std::vector<std::string> events;
    closed.Click.Connect([&] { events.push_back("Click " + closed.Text()); });
    closed.UserPick.Connect([&] { events.push_back("UserPick"); });
    UserPressKey(closed, kKeyDown, 0);
    UserPressKey(closed, kKeyDown, 0);
    UserPressKey(closed, kKeyDown, 0);
    EXPECT_EQ(events, (std::vector<std::string>{"Click a", "UserPick", "Click b", "UserPick"}));

    // An open list: the arrows move the highlight, Return takes it.
    ComboBox combo;
    for (const char* row : {"a", "b", "c"})
        combo.AddItem(row);
    combo.SetStyle(kComboDropDownList);
    int picks = 0;
    combo.UserPick.Connect([&] { ++picks; });
    combo.UserHighlight(0);
    UserPressKey(combo, kKeyDown, 0);
    UserPressKey(combo, kKeyReturn, 0);
    EXPECT_EQ(combo.Text(), "b");
    EXPECT_EQ(picks, 1);
    EXPECT_FALSE(combo.DroppedDown());
}

// The keys the skin hands to the core are exactly those the core answers: a key that the
// core says it answers changes the control, and one it leaves to the desktop changes nothing.
TEST(UserGesturesTest, KeysAnsweredAreKeysThatChangeTheControl) {
    const int home = KeyCodeOfName("Home");
    const int pageDown = KeyCodeOfName("PageDown");
    const struct {
        const char* what;
        int key, shift;
        bool answered;
    } cases[] = {
        {"Back", kKeyBack, 0, true},
        {"Delete", kKeyDelete, 0, true},
        {"Home", home, 0, true},
        {"Left", kKeyLeft, 0, true},
        {"Down", kKeyDown, 0, true},
        {"Return", kKeyReturn, 0, true},
        {"Shift+Left", kKeyLeft, kShiftMask, false},
        {"Page Down", pageDown, 0, false},
        {"Tab", kKeyTab, 0, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        TextBox box;
        box.SetMultiLine(true);
        box.SetText("ab");
        box.SetSelStart(1);
        ListBox list;
        Rows(list, 3).SetListIndex(1);
        const bool boxAnswers = KeyHasResponse(box, c.key, c.shift);
        const bool listAnswers = KeyHasResponse(list, c.key, c.shift);
        UserPressKey(box, c.key, c.shift);
        UserPressKey(list, c.key, c.shift);
        const bool boxChanged = box.Text() != "ab" || box.SelStart() != 1;
        const bool listChanged = list.ListIndex() != 1;
        EXPECT_EQ(boxAnswers || listAnswers, c.answered);
        EXPECT_EQ(boxAnswers, boxChanged);
        EXPECT_EQ(listAnswers, listChanged);
    }
}

}  // namespace
}  // namespace tarvex
