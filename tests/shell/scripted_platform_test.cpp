#include <gtest/gtest.h>

#include "platform/scripted_platform.h"

namespace tarvex {
namespace {

TEST(ScriptedDialogsTest, QueuedAnswersFirstThenTheDesktopDefaults) {
    ScriptedDialogs dialogs;
    dialogs.QueueMsgAnswer(MsgAnswer::No);
    dialogs.QueueInput("typed");

    const MessageBoxRequest ask{"Delete?", "Confirm", MsgButtons::YesNo, MsgIcon::Question};
    EXPECT_EQ(dialogs.MsgBox(ask), MsgAnswer::No);
    EXPECT_EQ(dialogs.MsgBox(ask), MsgAnswer::Yes);
    EXPECT_EQ(dialogs.MsgBox({"Saved", "Info", MsgButtons::OKCancel, MsgIcon::Information}),
              MsgAnswer::OK);

    InputBoxRequest input;
    input.preset = "Pilot_1";
    EXPECT_EQ(dialogs.InputBox(input), "typed");
    EXPECT_EQ(dialogs.InputBox(input), "Pilot_1");
    EXPECT_TRUE(dialogs.ShowOpen({}).cancelled);

    ASSERT_EQ(dialogs.messages.size(), 3u);
    EXPECT_EQ(dialogs.messages[0].title, "Confirm");
    EXPECT_EQ(dialogs.messages[0].icon, MsgIcon::Question);
    EXPECT_EQ(dialogs.LastMessage(), "Saved");
    EXPECT_EQ(dialogs.inputs.size(), 2u);
}

// A box with nothing queued is entered as unanswered; declining, it takes the answer that
// changes nothing. A queued file serves either dialog.
TEST(ScriptedDialogsTest, UnansweredBoxesAreRecordedAndDeclinedOnRequest) {
    const struct {
        MsgButtons buttons;
        MsgAnswer byDefault, declined;
    } cases[] = {{MsgButtons::OK, MsgAnswer::OK, MsgAnswer::OK},
                 {MsgButtons::OKCancel, MsgAnswer::OK, MsgAnswer::Cancel},
                 {MsgButtons::YesNo, MsgAnswer::Yes, MsgAnswer::No},
                 {MsgButtons::YesNoCancel, MsgAnswer::Yes, MsgAnswer::Cancel}};
    for (const auto& c : cases) {
        ScriptedDialogs dialogs;
        const MessageBoxRequest box{"Delete?", "Confirm", c.buttons, MsgIcon::Question};
        EXPECT_EQ(dialogs.MsgBox(box), c.byDefault);
        dialogs.declineUnanswered = true;
        EXPECT_EQ(dialogs.MsgBox(box), c.declined);
        ASSERT_EQ(dialogs.unanswered.size(), 2u);
        EXPECT_EQ(dialogs.unanswered[0].kind, "message box");
        EXPECT_EQ(dialogs.unanswered[0].text, "Delete?");
    }

    ScriptedDialogs dialogs;
    dialogs.declineUnanswered = true;
    InputBoxRequest input;
    input.prompt = "Enter Name";
    input.preset = "Coast";
    EXPECT_EQ(dialogs.InputBox(input), "");
    dialogs.QueueFile("/sim/a.mis");
    EXPECT_TRUE(dialogs.AnswersQueued());
    EXPECT_EQ(dialogs.ShowSave({}).fileName, "/sim/a.mis");
    EXPECT_TRUE(dialogs.ShowOpen({}).cancelled);
    ASSERT_EQ(dialogs.unanswered.size(), 2u);
    EXPECT_EQ(dialogs.unanswered[0].kind, "input box");
    EXPECT_EQ(dialogs.unanswered[0].text, "Enter Name");
    EXPECT_EQ(dialogs.unanswered[1].kind, "open dialog");
    EXPECT_FALSE(dialogs.AnswersQueued());
}

TEST(ScriptedDialogsTest, ChosenFileTitleTakesEitherSeparator) {
    EXPECT_EQ(ScriptedDialogs::Chosen("C:\\Sim\\missions\\a.mis").fileTitle, "a.mis");
    EXPECT_EQ(ScriptedDialogs::Chosen("/sim/missions/b.mis").fileTitle, "b.mis");
    EXPECT_EQ(ScriptedDialogs::Chosen("c.mis").fileTitle, "c.mis");
}

TEST(ScriptedServicesTest, SoundSettingsAndClockRecordWhatWasAsked) {
    ScriptedSoundEngine sound;
    sound.missing.insert("gone.wav");
    const int click = sound.Load("click.wav");
    EXPECT_NE(click, 0);
    EXPECT_EQ(sound.Load("gone.wav"), 0);
    sound.Play(click);
    EXPECT_EQ(sound.PathOf(sound.plays.at(0)), "click.wav");

    MemorySettingsStore settings;
    settings.Save("Sortak", "Sortak Options", "LastTab", "3");
    EXPECT_EQ(settings.Get("Sortak", "Sortak Options", "LastTab"), "3");
    settings.Delete("Sortak", "Sortak Options", "LastTab");
    EXPECT_FALSE(settings.Get("Sortak", "Sortak Options", "LastTab"));

    ScriptedClock clock;
    int pumped = 0;
    clock.onDoEvents = [&] { ++pumped; };
    clock.DoEvents();
    EXPECT_EQ(clock.doEventsCount, 1);
    EXPECT_EQ(pumped, 1);
}

}  // namespace
}  // namespace tarvex
