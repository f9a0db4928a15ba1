#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "common/error.h"
#include "shell/controls/combo_box.h"
#include "shell/controls/list_box.h"

namespace tarvex {
namespace {

void Fill(ListControl& list, const std::vector<std::string>& rows) {
    for (const auto& row : rows)
        list.AddItem(row);
}

int ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const AppError& e) {
        return e.Number();
    }
    return 0;
}

// What happens to the selection, and how many Clicks, for each row operation.
TEST(ListBoxTest, SelectionRulesOfRowOperations) {
    struct Case {
        const char* what;
        std::function<void(ListBox&)> act;
        int listIndex;
        int clicks;
    };
    const std::vector<Case> cases = {
        {"select another row", [](ListBox& l) { l.SetListIndex(3); }, 3, 1},
        {"select the same row", [](ListBox& l) { l.SetListIndex(2); }, 2, 0},
        {"select none", [](ListBox& l) { l.SetListIndex(-1); }, -1, 1},
        {"clear", [](ListBox& l) { l.Clear(); }, -1, 0},
        {"remove the selected row", [](ListBox& l) { l.RemoveItem(2); }, -1, 0},
        {"remove a row above", [](ListBox& l) { l.RemoveItem(0); }, 1, 0},
        {"remove a row below", [](ListBox& l) { l.RemoveItem(3); }, 2, 0},
        {"add at the end", [](ListBox& l) { l.AddItem("x"); }, 2, 0},
        {"insert above", [](ListBox& l) { l.AddItem("x", 1); }, 3, 0},
        {"rename the selected row", [](ListBox& l) { l.SetList(2, "new"); }, 2, 0},
    };
    for (const auto& c : cases) {
        ListBox list("lst");
        Fill(list, {"a", "b", "c", "d"});
        list.SetListIndex(2);
        int clicks = 0;
        list.Click.Connect([&] { ++clicks; });
        c.act(list);
        EXPECT_EQ(list.ListIndex(), c.listIndex) << c.what;
        EXPECT_EQ(clicks, c.clicks) << c.what;
        EXPECT_EQ(list.SelCount(), c.listIndex >= 0 ? 1 : 0) << c.what;
    }
}

TEST(ListBoxTest, HandlerRunsInsideTheSetterAndSeesTheNewRow) {
    ListBox list("lst");
    Fill(list, {"a", "b"});
    std::string seen;
    list.Click.Connect([&] { seen = list.List(list.ListIndex()); });
    list.SetListIndex(1);
    EXPECT_EQ(seen, "b");
}

TEST(ListBoxTest, ReentrantSelectionFromAClickHandler) {
    ListBox list("lst");
    Fill(list, {"a", "b", "c"});
    std::vector<int> order;
    list.Click.Connect([&] {
        order.push_back(list.ListIndex());
        if (list.ListIndex() == 2) list.SetListIndex(0);
    });
    list.SetListIndex(2);
    EXPECT_EQ(order, (std::vector<int>{2, 0}));
    EXPECT_EQ(list.ListIndex(), 0);
}

TEST(ListBoxTest, BadIndexesRaiseTheDesktopErrors) {
    ListBox list("lst");
    Fill(list, {"a"});
    EXPECT_EQ(ErrorOf([&] { list.SetListIndex(1); }), kErrInvalidProperty);
    EXPECT_EQ(ErrorOf([&] { list.SetListIndex(-2); }), kErrInvalidProperty);
    EXPECT_EQ(ErrorOf([&] { list.RemoveItem(1); }), kErrInvalidCall);
    EXPECT_EQ(ErrorOf([&] { list.AddItem("x", 3); }), kErrInvalidCall);
    EXPECT_EQ(ErrorOf([&] { list.ItemData(-1); }), 381);
    EXPECT_EQ(list.List(5), "");
    EXPECT_EQ(list.ListCount(), 1);
}

TEST(ListBoxTest, SortedListsOrderTextWithoutCaseAndSelectionFollowsItsRow) {
    ListBox list("cmbSort");
    list.SetSorted(true);
    Fill(list, {"9", "10", "b", "A", "100"});
    std::vector<std::string> rows;
    for (int i = 0; i < list.ListCount(); ++i)
        rows.push_back(list.List(i));
    EXPECT_EQ(rows, (std::vector<std::string>{"10", "100", "9", "A", "b"}));

    list.SetListIndex(2);  // "9"
    list.AddItem("0");
    EXPECT_EQ(list.NewIndex(), 0);
    EXPECT_EQ(list.List(list.ListIndex()), "9");
}

TEST(ListBoxTest, ExtendedSelectionKeepsRowFlagsAndFiresOncePerUserSelection) {
    ListBox list("lstPointsExtended");
    list.SetMultiSelect(kMultiSelectExtended);
    Fill(list, {"a", "b", "c", "d"});
    int clicks = 0;
    list.Click.Connect([&] { ++clicks; });

    list.SetSelected(1, true);
    list.SetSelected(2, true);
    list.SetSelected(2, true);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(list.SelCount(), 2);
    EXPECT_EQ(list.ListIndex(), -1);

    list.SetSelection({0, 3}, 3);
    EXPECT_EQ(clicks, 3);
    EXPECT_TRUE(list.Selected(0));
    EXPECT_FALSE(list.Selected(1));
    EXPECT_EQ(list.ListIndex(), 3);

    list.SetSelection({0, 3}, 3);
    EXPECT_EQ(clicks, 3);
}

// The row under a point counts from the first row shown; a cleared list shows its top again.
TEST(ListBoxTest, RowUnderThePointerFollowsTheTopRow) {
    ListBox list;
    Fill(list, {"a", "b", "c", "d", "e"});
    EXPECT_EQ(list.RowAt(100), -1);  // no row height: the desktop's own rows
    list.SetRowHeight(190);
    list.SetTopIndex(2);
    EXPECT_EQ(list.RowAt(0), 2);
    EXPECT_EQ(list.RowAt(189), 2);
    EXPECT_EQ(list.RowAt(190), 3);
    list.Clear();
    Fill(list, {"x", "y"});
    EXPECT_EQ(list.TopIndex(), 0);
    EXPECT_EQ(list.RowAt(200), 1);
}

TEST(ComboBoxTest, TextFollowsTheRowAndFiresTheRightEvent) {
    ComboBox combo("cmbPilotName");
    Fill(combo, {"Alpha", "Bravo"});
    int clicks = 0;
    int changes = 0;
    combo.Click.Connect([&] { ++clicks; });
    combo.Change.Connect([&] { ++changes; });

    combo.SetListIndex(1);
    EXPECT_EQ(combo.Text(), "Bravo");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(changes, 0);

    combo.SetText("Bravo 2");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(clicks, 1);
    combo.SetText("Bravo 2");
    EXPECT_EQ(changes, 1);

    combo.Clear();
    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(changes, 1);
}

TEST(ComboBoxTest, DropDownListTextSelectsARowOrRefuses) {
    ComboBox combo("cmbMovingType");
    combo.SetStyle(kComboDropDownList);
    Fill(combo, {"Spitfire", "Hurricane"});
    int clicks = 0;
    combo.Click.Connect([&] { ++clicks; });

    combo.SetText("hurricane");
    EXPECT_EQ(combo.ListIndex(), 1);
    EXPECT_EQ(combo.Text(), "Hurricane");
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(ErrorOf([&] { combo.SetText("Bf 109"); }), 383);
    EXPECT_EQ(combo.ListIndex(), 1);

    combo.RemoveItem(1);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.Text(), "");
    EXPECT_EQ(clicks, 1);
}

TEST(ComboBoxTest, OpenListFollowsTheHighlightQuietlyAndTheChoiceClicks) {
    ComboBox combo("cmbRunways");
    combo.SetStyle(kComboDropDownList);
    Fill(combo, {"Biggin Hill", "Hawkinge", "Manston"});
    std::vector<std::string> events;
    combo.Click.Connect([&] { events.push_back("click " + std::to_string(combo.ListIndex())); });
    combo.Highlight.Connect([&](int row) { events.push_back("highlight " + combo.List(row)); });
    combo.UserPick.Connect([&] { events.push_back("pick " + combo.Text()); });
    combo.DropCancel.Connect([&] { events.push_back("cancel " + combo.Text()); });

    combo.UserHighlight(1);
    combo.UserHighlight(2);
    combo.UserCancelDrop();
    EXPECT_EQ(combo.ListIndex(), -1);
    combo.UserHighlight(0);
    combo.UserChoose(2);
    combo.UserHighlight(1);
    combo.UserChoose(2);     // the row it had before the list opened: no Click
    combo.UserCancelDrop();  // no list open: nothing
    EXPECT_EQ(events,
              (std::vector<std::string>{"highlight Hawkinge", "highlight Manston", "cancel ",
                                        "highlight Biggin Hill", "click 2", "pick Manston",
                                        "highlight Hawkinge", "pick Manston"}));
}

TEST(ComboBoxTest, FillingThroughTheItemListInterface) {
    ComboBox combo("cmbGrndAirfield");
    ItemList& items = combo;
    items.AddItem("Biggin Hill");
    items.SetItemData(combo.NewIndex(), 42);
    EXPECT_EQ(combo.FindItemData(42), 0);
    EXPECT_EQ(items.ItemData(0), 42);
}

}  // namespace
}  // namespace tarvex
