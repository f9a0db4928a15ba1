#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "common/error.h"
#include "platform/scripted_platform.h"
#include "shell/controls/controls.h"

namespace tarvex {
namespace {

int ErrorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const AppError& e) {
        return e.Number();
    }
    return 0;
}

// For each value control: a change fires its event once, inside the setter; the same value
// again fires nothing.
TEST(ValueControlsTest, ChangeFiresOnceAndSameValueFiresNothing) {
    struct Case {
        const char* kind;
        std::function<void(int& fired, std::string& seen)> run;
    };
    const std::vector<Case> cases = {
        {"CheckBox",
         [](int& fired, std::string& seen) {
             CheckBox c("chk");
             c.Click.Connect([&] { ++fired, seen = std::to_string(c.Value()); });
             c.SetValue(1);
             c.SetValue(1);
         }},
        {"TextBox",
         [](int& fired, std::string& seen) {
             TextBox t("txt");
             t.Change.Connect([&] { ++fired, seen = t.Text(); });
             t.SetText("1");
             t.SetText("1");
         }},
        {"UpDown",
         [](int& fired, std::string& seen) {
             UpDown u("updwn");
             u.Change.Connect([&] { ++fired, seen = std::to_string(u.Value()); });
             u.SetValue(1);
             u.SetValue(1);
         }},
        {"TabControl",
         [](int& fired, std::string& seen) {
             TabControl t("SSTab1", 4);
             t.Click.Connect([&](int) { ++fired, seen = std::to_string(t.Tab()); });
             t.SetTab(1);
             t.SetTab(1);
         }},
    };
    for (const auto& c : cases) {
        int fired = 0;
        std::string seen;
        c.run(fired, seen);
        EXPECT_EQ(fired, 1) << c.kind;
        EXPECT_EQ(seen, "1") << c.kind;
    }
}

TEST(ValueControlsTest, OutOfRangeValuesRaiseAndKeepTheOldValue) {
    CheckBox check("chk");
    UpDown upDown("btnOffsetEdit");
    upDown.SetMin(-65535);
    upDown.SetMax(65535);
    TabControl tabs("SSTab1", 4);
    EXPECT_EQ(ErrorOf([&] { check.SetValue(3); }), kErrInvalidProperty);
    EXPECT_EQ(ErrorOf([&] { upDown.SetValue(65536); }), kErrInvalidProperty);
    EXPECT_EQ(ErrorOf([&] { tabs.SetTab(4); }), kErrInvalidProperty);
    EXPECT_EQ(check.Value(), 0);
    EXPECT_EQ(upDown.Value(), 0);
    EXPECT_EQ(tabs.Tab(), 0);
}

TEST(ValueControlsTest, TabClickTellsThePreviousTab) {
    TabControl tabs("SSTab1", 4);
    int previous = -1;
    tabs.Click.Connect([&](int p) { previous = p; });
    tabs.SetTab(3);
    tabs.SetTab(2);
    EXPECT_EQ(previous, 3);
}

TEST(UpDownTest, ArrowsStopAtTheBoundsButStillClick) {
    UpDown upDown("updwnGroupView");
    upDown.SetMax(2);
    std::vector<std::string> events;
    upDown.Change.Connect([&] { events.push_back("change " + std::to_string(upDown.Value())); });
    upDown.UpClick.Connect([&] { events.push_back("up"); });
    upDown.DownClick.Connect([&] { events.push_back("down"); });
    upDown.SetIncrement(2);
    upDown.UserUp();
    upDown.UserUp();
    upDown.UserDown();
    EXPECT_EQ(events, (std::vector<std::string>{"change 2", "up", "up", "change 0", "down"}));
}

TEST(OptionButtonTest, ArraySetsOneAndClicksOnlyTheNewlySetButton) {
    ControlArray<OptionButton> optColor("optColor", 0, 15);
    std::vector<int> clicks;
    for (auto& opt : optColor)
        opt.Click.Connect([&, i = opt.Index()] { clicks.push_back(i); });

    optColor(0).SetValue(true);
    optColor(5).UserClick();
    optColor(5).UserClick();
    optColor(5).SetValue(false);

    EXPECT_EQ(clicks, (std::vector<int>{0, 5}));
    EXPECT_FALSE(optColor(0).Value());
    EXPECT_FALSE(optColor(5).Value());
    EXPECT_EQ(ErrorOf([&] { optColor(16); }), kErrSubscript);
    EXPECT_EQ(ErrorOf([&] { optColor(-1); }), kErrSubscript);
}

TEST(OptionButtonTest, SeparateArraysDoNotClearEachOther) {
    ControlArray<OptionButton> allegiance("optAllegiance", 0, 2);
    ControlArray<OptionButton> family("optFamily", 0, 2);
    allegiance(1).SetValue(true);
    family(2).SetValue(true);
    EXPECT_TRUE(allegiance(1).Value());
    EXPECT_TRUE(family(2).Value());
}

TEST(CheckBoxTest, UserClickTogglesThroughTheSetter) {
    ControlArray<CheckBox> chkOverlay("chkOverlay", 0, 15);
    int clicks = 0;
    chkOverlay(3).Click.Connect([&] { ++clicks; });
    chkOverlay(3).UserClick();
    EXPECT_EQ(chkOverlay(3).Value(), kChecked);
    chkOverlay(3).UserClick();
    EXPECT_EQ(chkOverlay(3).Value(), kUnchecked);
    EXPECT_EQ(clicks, 2);
}

TEST(TextBoxTest, SelectionClampsAndSelTextReplaces) {
    TextBox text("txtNewRecord");
    text.SetText("Pilot_3");
    text.SetSelStart(0);
    text.SetSelLength(99);
    EXPECT_EQ(text.SelLength(), 7);
    int changes = 0;
    text.Change.Connect([&] { ++changes; });
    text.SetSelStart(6);
    text.SetSelLength(1);
    text.SetSelText("4");
    EXPECT_EQ(text.Text(), "Pilot_4");
    EXPECT_EQ(text.SelStart(), 7);
    EXPECT_EQ(changes, 1);
}

TEST(TimerTest, FiresOnlyWhileRunning) {
    Timer timer("tmrSetColor");
    int ticks = 0;
    timer.Timer.Connect([&] { ++ticks; });
    EXPECT_FALSE(timer.Fire());  // no interval yet
    timer.SetInterval(500);
    EXPECT_TRUE(timer.Fire());
    timer.SetEnabled(false);
    EXPECT_FALSE(timer.Fire());
    EXPECT_EQ(ticks, 1);
}

TEST(MenuItemTest, DisabledEntriesDropTheClick) {
    MenuItem mnuDel("mnuDel", "&Delete", "Del");
    int clicks = 0;
    mnuDel.Click.Connect([&] { ++clicks; });
    mnuDel.SetEnabled(false);
    mnuDel.UserClick();
    mnuDel.SetEnabled(true);
    mnuDel.UserClick();
    EXPECT_EQ(clicks, 1);
}

TEST(ControlTest, ListenersHearChangesButNotRepeats) {
    Label label("lblMap");
    std::vector<Aspect> heard;
    const int id = label.AddListener([&](Aspect a) { heard.push_back(a); });
    label.SetCaption("Map 1");
    label.SetCaption("Map 1");
    label.Move(10, 20);
    label.SetVisible(false);
    label.RemoveListener(id);
    label.SetVisible(true);
    EXPECT_EQ(heard, (std::vector<Aspect>{Aspect::Text, Aspect::Geometry, Aspect::Appearance}));
}

TEST(CommonDialogTest, CancelRaises32755OnlyWithCancelError) {
    ScriptedDialogs dialogs;
    CommonDialog dialog("CommonDialog1", &dialogs);
    dialog.DialogTitle = "Open Mission File";
    dialog.Filter = "(*.mis)|*.mis";
    dialog.FileName = "old.mis";

    dialogs.QueueOpenCancel();
    EXPECT_FALSE(dialog.ShowOpen());
    EXPECT_EQ(dialog.FileName, "old.mis");

    dialog.CancelError = true;
    dialogs.QueueOpenCancel();
    EXPECT_EQ(ErrorOf([&] { dialog.ShowOpen(); }), kErrCancel);

    dialogs.QueueOpen("/sim/missions/Raid.mis");
    EXPECT_TRUE(dialog.ShowOpen());
    EXPECT_EQ(dialog.FileName, "/sim/missions/Raid.mis");
    EXPECT_EQ(dialog.FileTitle, "Raid.mis");
    ASSERT_EQ(dialogs.opens.size(), 3u);
    EXPECT_EQ(dialogs.opens[0].title, "Open Mission File");
    EXPECT_EQ(dialogs.opens[0].fileName, "old.mis");
}

}  // namespace
}  // namespace tarvex
