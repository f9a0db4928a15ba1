// The skin on the offscreen platform: the window comes up with its tabs, menu entries and
// widgets reach the models, the pointer reaches the map in map units, and drawings and the
// screenshot option render.
#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QMimeData>
#include <QProcess>
#include <QRadioButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QUrl>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <vector>

#include "app/scratch_editor.h"
#include "common/error.h"
#include "ground/layout_lists.h"
#include "platform/scripted_platform.h"
#include "qt/binding.h"
#include "qt/editor_session.h"
#include "qt/editor_window.h"
#include "qt/form_view.h"
#include "qt/services.h"
#include "qt/skin_fixture.h"
#include "qt/widget_factory.h"
#include "refdata/recordset.h"
#include "scenario/scenario_run.h"
#include "scenario/scenario_script.h"
#include "shell/forms/frm_aircraft.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"
#include "support/reference_folder.h"

namespace tarvex::qt {
namespace {

namespace fs = std::filesystem;

TEST_F(SkinTest, ShowsTheFourTabsAndTurnsThemThroughTheModel) {
    auto* tabs = qobject_cast<QTabWidget*>(Widget("SSTab1"));
    ASSERT_NE(tabs, nullptr);
    const QStringList captions = {"Summary", "Formations", "Ground Units", "Waypoints"};
    ASSERT_EQ(tabs->count(), captions.size());
    for (int tab = 0; tab < tabs->count(); ++tab)
        EXPECT_EQ(tabs->tabText(tab), captions[tab]);
    EXPECT_EQ(session->window().windowTitle(), "Tarvex Mission Editor");

    // A press on a header turns the model first, then MouseDown runs within the header strip.
    auto& model = session->ed().FrmMission.SSTab1;
    float pressY = -1;
    int tabAtPress = -1;
    // Stand in for the editor's own handler to see what the skin hands the model.
    model.MouseDown.Disconnect();
    model.MouseDown.Connect([&](int, int, float, float y) {
        pressY = y;
        tabAtPress = model.Tab();
    });
    QTabBar* bar = tabs->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(3).center());
    EXPECT_EQ(tabAtPress, 3);
    EXPECT_GE(pressY, 0);
    EXPECT_LE(pressY, model.TabHeight());
    EXPECT_EQ(tabs->currentIndex(), 3);

    // Code's change shows too.
    model.MouseDown.Disconnect();
    model.SetTab(1);
    EXPECT_EQ(tabs->currentIndex(), 1);
}

TEST_F(SkinTest, MenuEntriesActOnTheirModelsAndFollowThem) {
    MenuItem& tooltips = session->ed().MDIMissionED.mnuTooltips;
    if (!tooltips.Click) tooltips.Click.Connect([&] { tooltips.SetChecked(!tooltips.Checked()); });
    QAction* action = Action("mnuTooltips");
    ASSERT_NE(action, nullptr);
    EXPECT_EQ(action->text(), "&Tooltips");
    const bool before = tooltips.Checked();
    EXPECT_EQ(action->isChecked(), before);
    action->trigger();
    EXPECT_EQ(tooltips.Checked(), !before);
    EXPECT_EQ(action->isChecked(), !before);

    MenuItem& save = session->ed().MDIMissionED.mnuSave;
    QAction* saveAction = Action("mnuSave");
    ASSERT_NE(saveAction, nullptr);
    EXPECT_EQ(saveAction->shortcut(), QKeySequence("Ctrl+S"));
    save.SetEnabled(false);
    EXPECT_FALSE(saveAction->isEnabled());
    int clicks = 0;
    save.Click.Disconnect();
    save.Click.Connect([&] { ++clicks; });
    saveAction->trigger();  // a disabled entry can't be chosen
    EXPECT_EQ(clicks, 0);
}

TEST_F(SkinTest, PointerOnTheMapReachesTheCoreInMapUnits) {
    session->ShowTab(3);
    QApplication::processEvents();
    QWidget* map = Widget("mapWayPoints");
    ASSERT_NE(map, nullptr);
    auto& model = session->ed().FrmMission.mapWayPoints;
    struct Press {
        std::string event;
        int button, shift;
        float x, y;
    };
    std::vector<Press> seen;
    model.MouseDown.Disconnect();
    model.MouseUp.Disconnect();
    model.MouseDown.Connect([&](int b, int s, float x, float y) {
        seen.push_back({"down", b, s, x, y});
    });
    model.MouseUp.Connect([&](int b, int s, float x, float y) {
        seen.push_back({"up", b, s, x, y});
    });
    struct Case {
        Qt::MouseButton button;
        Qt::KeyboardModifiers modifiers;
        QPoint at;
        int wantButton, wantShift;
    };
    const Case cases[] = {
        {Qt::LeftButton, {}, {20, 10}, kLeftButton, 0},
        {Qt::RightButton, Qt::ShiftModifier, {100, 200}, kRightButton, kShiftMask},
        {Qt::LeftButton, Qt::ControlModifier, {1, 1}, kLeftButton, kCtrlMask},
    };
    for (const Case& c : cases) {
        seen.clear();
        QTest::mouseClick(map, c.button, c.modifiers, c.at);
        ASSERT_EQ(seen.size(), 2u);
        EXPECT_EQ(seen[0].event, "down");
        EXPECT_EQ(seen[1].event, "up");
        for (const Press& press : seen) {
            EXPECT_EQ(press.button, c.wantButton);
            EXPECT_EQ(press.shift, c.wantShift);
            EXPECT_FLOAT_EQ(press.x, c.at.x() * 15.0f);
            EXPECT_FLOAT_EQ(press.y, c.at.y() * 15.0f);
        }
    }
}

TEST_F(SkinTest, AClickOnTheMapAddsAWaypointAndADragMovesIt) {
    session->ShowTab(3);
    QApplication::processEvents();
    QWidget* map = Widget("mapWayPoints");
    ASSERT_NE(map, nullptr);
    Editor& ed = session->ed();
    const Mission& doc = ed.doc;

    QTest::mouseMove(map, {100, 80});
    QTest::mouseClick(map, Qt::LeftButton, {}, {100, 80});
    ASSERT_EQ(ed.FrmMission.lstPoints.ListCount(), 1);
    EXPECT_EQ(doc.PathPointCount(0), 2);
    // The map positions come back from the coordinate text, within a unit of the pointer's.
    EXPECT_NEAR(doc.WPMapX(0, 1), 100 * 15, 2);
    EXPECT_NEAR(doc.WPMapY(0, 1), 80 * 15, 2);
    const std::string placed = doc.WPLat(0, 1) + " " + doc.WPLon(0, 1);
    EXPECT_EQ(ed.FrmMission.lstPoints.List(0), "01. " + placed);

    QTest::mousePress(map, Qt::LeftButton, {}, {101, 81});
    QTest::mouseMove(map, {130, 100});
    QTest::mouseMove(map, {160, 120});
    QTest::mouseRelease(map, Qt::LeftButton, {}, {160, 120});
    EXPECT_EQ(ed.FrmMission.lstPoints.ListCount(), 1);
    EXPECT_NEAR(doc.WPMapX(0, 1), 160 * 15, 2);
    EXPECT_NEAR(doc.WPMapY(0, 1), 120 * 15, 2);
    EXPECT_NE(doc.WPLat(0, 1) + " " + doc.WPLon(0, 1), placed);
    EXPECT_EQ(ed.FrmMission.lstPoints.List(0), "01. " + doc.WPLat(0, 1) + " " + doc.WPLon(0, 1));
}

TEST_F(SkinTest, UserChoicesAndCodeSelectionsAreOneEvent) {
    auto& frm = session->ed().FrmMission;
    // A combo: the user's choice raises Click and UserPick once each.
    auto* combo = qobject_cast<QComboBox*>(Widget("cmbClouds"));
    ASSERT_NE(combo, nullptr);
    int clicks = 0, picks = 0;
    frm.cmbClouds.Click.Connect([&] { ++clicks; });
    frm.cmbClouds.UserPick.Connect([&] { ++picks; });
    const int target = (frm.cmbClouds.ListIndex() + 1) % frm.cmbClouds.ListCount();
    emit combo->activated(target);
    EXPECT_EQ(frm.cmbClouds.ListIndex(), target);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(picks, 1);
    // Code's selection shows without echoing back into the model.
    frm.cmbClouds.SetListIndex(0);
    EXPECT_EQ(combo->currentIndex(), 0);
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(picks, 1);

    // A list: rows and selection follow the model; the user's row goes through ListIndex.
    auto* list = qobject_cast<QListWidget*>(Widget("lstGroupName"));
    ASSERT_NE(list, nullptr);
    int listClicks = 0;
    frm.lstGroupName.Click.Disconnect();
    frm.lstGroupName.Click.Connect([&] { ++listClicks; });
    frm.lstGroupName.AddItem("Alpha");
    frm.lstGroupName.AddItem("Bravo");
    ASSERT_EQ(list->count(), 2);
    frm.lstGroupName.SetListIndex(1);
    EXPECT_EQ(list->currentRow(), 1);
    EXPECT_EQ(listClicks, 1);
    session->ShowTab(1);
    QApplication::processEvents();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {},
                      list->visualItemRect(list->item(0)).center());
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 0);
    EXPECT_EQ(listClicks, 2);
}

TEST_F(SkinTest, TypingReachesTheTextBoxAndKeepsTheCaret) {
    auto& box = session->ed().FrmMission.txtType;
    auto* edit = qobject_cast<QLineEdit*>(Widget("txtType"));
    ASSERT_NE(edit, nullptr);
    session->ShowTab(0);
    box.SetText("");
    int changes = 0;
    box.Change.Connect([&] { ++changes; });
    edit->setFocus();
    QTest::keyClicks(edit, "Sweep");
    EXPECT_EQ(box.Text(), "Sweep");
    EXPECT_EQ(changes, 5);
    // The caret stays where the typing is, not where setting a text puts it.
    EXPECT_EQ(edit->cursorPosition(), 5);
    box.SetText("Escort");
    EXPECT_EQ(edit->text(), "Escort");
    EXPECT_EQ(changes, 6);
}

// Typing and the keys the core answers share one caret with the selection the widget makes
// itself (Shift and an arrow), in a line and in a box of several lines.
TEST_F(SkinTest, TypingAndTheWidgetsOwnSelectionShareOneCaret) {
    session->ShowTab(0);
    QApplication::processEvents();
    const struct {
        const char* name;
        Qt::Key lineBreak;
        const char* text;
    } cases[] = {
        {"txtType", Qt::Key_Space, "ASweep X"},
        {"txtSummary", Qt::Key_Return, "Sweep\r\nAX"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        auto* box = dynamic_cast<TextBox*>(session->ed().FrmMission.FindControl(c.name));
        QWidget* widget = Widget(c.name);
        ASSERT_TRUE(box && widget);
        box->SetText("");
        widget->setFocus();
        QTest::keyClicks(widget, "Sweep");
        QTest::keyClick(widget, c.lineBreak);
        QTest::keyClicks(widget, "now");
        for (int k = 0; k < 3; ++k)
            QTest::keyClick(widget, Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClicks(widget, "X");
        QTest::keyClick(widget, Qt::Key_Home);
        QTest::keyClicks(widget, "A");
        EXPECT_EQ(box->Text(), c.text);
    }
}

TEST_F(SkinTest, ClicksOnButtonsGoThroughTheModels) {
    auto& frm = session->ed().FrmMission;
    session->ShowTab(1);
    QApplication::processEvents();
    auto* check = qobject_cast<QCheckBox*>(Widget("chkPilotIsAC"));
    ASSERT_NE(check, nullptr);
    const int before = frm.chkPilotIsAC.Value();
    QTest::mouseClick(check, Qt::LeftButton, {}, QPoint(6, check->height() / 2));
    EXPECT_NE(frm.chkPilotIsAC.Value(), before);
    EXPECT_EQ(check->isChecked(), frm.chkPilotIsAC.Value() == kChecked);

    // An option of an array sets itself and clears its siblings, on screen as in the model.
    auto* first = qobject_cast<QRadioButton*>(Widget("optAllegiance", 0));
    ASSERT_NE(first, nullptr);
    QTest::mouseClick(first, Qt::LeftButton, {}, QPoint(6, first->height() / 2));
    for (int k = 0; k <= 3; ++k) {
        EXPECT_EQ(frm.optAllegiance(k).Value(), k == 0) << k;
        EXPECT_EQ(qobject_cast<QRadioButton*>(Widget("optAllegiance", k))->isChecked(), k == 0);
    }
}

TEST_F(SkinTest, SharedFramesFollowTheTabOnShow) {
    QWidget* airfields = Widget("fraAirfields");
    QWidget* colours = Widget("fraPathColor");
    auto* tabs = qobject_cast<QTabWidget*>(Widget("SSTab1"));
    ASSERT_TRUE(airfields && colours && tabs);
    struct Case {
        int tab;
        bool airfieldsShown, coloursShown;
    };
    const Case cases[] = {{0, false, false}, {1, true, false}, {2, false, true}, {3, true, true}};
    for (const Case& c : cases) {
        session->ShowTab(c.tab);
        QApplication::processEvents();
        EXPECT_EQ(airfields->isVisibleTo(tabs), c.airfieldsShown) << c.tab;
        EXPECT_EQ(colours->isVisibleTo(tabs), c.coloursShown) << c.tab;
        if (c.airfieldsShown) {
            EXPECT_EQ(airfields->parentWidget(), tabs->widget(c.tab));
        }
    }
}

TEST_F(SkinTest, NewRecordFloatsOverTheMainWindowAndAddsToTheGroupList) {
    auto& frm = session->ed().FrmMission;
    session->ShowTab(1);
    QApplication::processEvents();
    QTest::mouseClick(Widget("btnGroupName"), Qt::LeftButton);
    QApplication::processEvents();
    FormView* dialog = session->window().FormWindow("frmNewRecord");
    ASSERT_NE(dialog, nullptr);
    QWidget* window = dialog->window();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(window->windowType(), Qt::Tool);
    EXPECT_FALSE(window->isModal());
    EXPECT_EQ(window->windowTitle(), "Enter Group Name");

    auto* box = qobject_cast<QLineEdit*>(dialog->WidgetOf("txtNewRecord"));
    ASSERT_NE(box, nullptr);
    // A click in the box keeps what is typed there from now on.
    QTest::mouseClick(box, Qt::LeftButton);
    box->selectAll();
    QTest::keyClicks(box, "Top Cover");
    QTest::mouseClick(dialog->WidgetOf("btnAddRecord"), Qt::LeftButton);
    auto* groups = qobject_cast<QListWidget*>(Widget("lstGroupName"));
    ASSERT_NE(groups, nullptr);
    ASSERT_EQ(groups->count(), 1);
    EXPECT_EQ(groups->item(0)->text(), "Top Cover");
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 0);
    EXPECT_EQ(box->text(), "Top Cover");
    // Not modal: the main window's rows take clicks while the dialog stays open.
    QTest::mouseClick(dialog->WidgetOf("btnAddRecord"), Qt::LeftButton);
    ASSERT_EQ(groups->count(), 2);
    QTest::mouseClick(groups->viewport(), Qt::LeftButton, {},
                      groups->visualItemRect(groups->item(0)).center());
    EXPECT_EQ(frm.lstGroupName.ListIndex(), 0);
    EXPECT_TRUE(window->isVisible());
    QTest::mouseClick(dialog->WidgetOf("btnCancel"), Qt::LeftButton);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(SkinTest, WidgetsStandWhereTheirModelsSay) {
    auto& frm = session->ed().FrmMission;
    auto& aircraft = session->ed().frmAircraft;
    FormView& mission = session->window().MissionView();
    FormView* records = session->window().FormWindow("frmAircraft");
    ASSERT_NE(records, nullptr);
    QWidget* strip = mission.WidgetOf(frm.SSTab1);
    ASSERT_NE(strip, nullptr);
    // Page coordinates count from the strip's top, headers included.
    const float header = frm.SSTab1.TabHeight();
    struct Case {
        FormView* view;
        Control* control;
        QWidget* parent;
        float originY;
    };
    const Case cases[] = {
        {&mission, &frm.txtTitle, TabPage(strip, 0), header},
        {&mission, &frm.chkSuspend, TabPage(strip, 1), header},
        {&mission, &frm.lstStationary, mission.WidgetOf(frm.fraStationary), 0},
        {&mission, &frm.optColor(15), mission.WidgetOf(frm.fraPathColor), 0},
        {records, &aircraft.cmdClose, records->WidgetOf(aircraft.picButtons), 0},
        {records, &aircraft.grdDataGrid, records, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.control->Name());
        QWidget* widget = c.view->WidgetOf(*c.control);
        ASSERT_NE(widget, nullptr);
        ASSERT_NE(c.parent, nullptr);
        EXPECT_EQ(widget->parentWidget(), c.parent);
        const Control& m = *c.control;
        EXPECT_EQ(widget->geometry(),
                  QRect(Px(m.Left()), Px(m.Top() - c.originY), Px(m.Width()), Px(m.Height())));
    }
    // A move by the program moves the widget.
    frm.txtTitle.Move(1500, 600);
    EXPECT_EQ(mission.WidgetOf(frm.txtTitle)->pos(), QPoint(Px(1500), Px(600 - header)));
}

// A double click on a layout of the mission opens the editor over the whole map, and its spin
// boxes act on the layout.
TEST_F(SkinTest, DoubleClickEntersTheLayoutEditorWhoseSpinBoxesReachTheModel) {
    auto& frm = session->ed().FrmMission;
    auto* tabs = qobject_cast<QTabWidget*>(Widget("SSTab1"));
    ASSERT_NE(tabs, nullptr);
    session->ShowTab(2);
    QApplication::processEvents();
    QWidget* map = Widget("mapGroundUnits");
    ASSERT_NE(map, nullptr);
    frm.lstGrnUnits.SetListIndex(frm.lstGrnUnits.FindRow("Army Camp"));
    QTest::mouseMove(map, QPoint(100, 120));
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(100, 120));
    ASSERT_EQ(frm.lstGUAdded.ListCount(), 1);

    auto* list = qobject_cast<QListWidget*>(Widget("lstGUAdded"));
    ASSERT_NE(list, nullptr);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {},
                       list->visualItemRect(list->item(0)).center());
    QApplication::processEvents();
    EXPECT_EQ(frm.mapGroundUnits.Tag(), "True");
    QWidget* controls = Widget("fraGUPos");
    ASSERT_NE(controls, nullptr);
    EXPECT_TRUE(controls->isVisibleTo(tabs));
    // The map shows whole over the right-hand side of the tab.
    auto* view = qobject_cast<QScrollArea*>(map->parentWidget()->parentWidget()->parentWidget());
    ASSERT_NE(view, nullptr);
    EXPECT_GE(view->width(), map->width());
    EXPECT_GT(view->geometry().right(), Widget("lstGrnUnits")->geometry().right());

    auto* spin = qobject_cast<QSpinBox*>(Widget("btnXPos"));
    ASSERT_NE(spin, nullptr);
    EXPECT_EQ(spin->minimum(), -272);
    EXPECT_EQ(spin->maximum(), 272);
    spin->setValue(40);
    EXPECT_EQ(frm.btnXPos.Value(), 40);
    EXPECT_FLOAT_EQ(session->ed().doc.GUShiftX(0), 0.4f);
    // The model's own moves show: at 90 the fine turn goes back to 0.
    auto* turn = qobject_cast<QSpinBox*>(Widget("btnRotate2"));
    ASSERT_NE(turn, nullptr);
    turn->setValue(90);
    EXPECT_EQ(turn->value(), 0);
    EXPECT_EQ(session->ed().transform.QuarterTurns, 1);

    QTest::mouseClick(Widget("btnGUClose"), Qt::LeftButton);
    EXPECT_EQ(frm.mapGroundUnits.Tag(), "False");
    EXPECT_FALSE(controls->isVisibleTo(tabs));
    EXPECT_LE(view->width(), Widget("lstGrnUnits")->x());
}

// The pilots of the Formations tab as the form shows them: the list's selection and what its
// handlers made of it.
std::string PilotsShown(Editor& ed) {
    const auto& frm = ed.FrmMission;
    std::string shown = "tab " + std::to_string(frm.SSTab1.Tab()) + ", group " +
                        std::to_string(frm.lstGroupName.ListIndex()) + ", pilots";
    for (int row : frm.lstPilotName.SelectedRows())
        shown += " " + std::to_string(row);
    shown += ", focus " + std::to_string(frm.lstPilotName.ListIndex()) + ", anchor " +
             std::to_string(frm.lstPilotName.AnchorIndex()) + ", player " +
             (frm.chkPlayer.Enabled() ? "enabled" : "disabled");
    return shown;
}

// One gesture both ways: a press with Shift on the pilots, by the user's hands on the widgets
// and by a scenario's lines on a headless editor, leaves the form the same.
TEST_F(SkinTest, AScenarioDoesWhatTheUsersHandsDo) {
    const std::string mission = TARVEX_SOURCE_DIR "/tests/data/missions/channel_sweep.mis";
    dialogs.QueueOpen(mission);
    Action("mnuOpen")->trigger();
    QTabBar* bar = qobject_cast<QTabWidget*>(Widget("SSTab1"))->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(1).center());
    QApplication::processEvents();
    const auto press = [&](const char* name, int row, Qt::KeyboardModifiers keys) {
        auto* list = qobject_cast<QListWidget*>(Widget(name));
        ASSERT_NE(list, nullptr);
        ASSERT_GT(list->count(), row);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, keys,
                          list->visualItemRect(list->item(row)).center());
    };
    press("lstGroupName", 0, {});
    press("lstPilotName", 1, {});
    press("lstPilotName", 0, Qt::ShiftModifier);

    const fs::path source = TARVEX_SOURCE_DIR;
    ScratchEditor scratch({{source / "data/refdb/schema.sql", source / "data/refdb/seed.sql"},
                           {},
                           source / "data/maps",
                           false},
                          "both-ways");
    const scenario::Script script = scenario::ParseScenario(
        "open " + mission +
            "\ntab 1\nselect lstGroupName 0\nselect lstPilotName 1\nselect lstPilotName 0 "
            "shift\n",
        {});
    ASSERT_TRUE(script.errors.empty()) << script.errors[0].message;
    scenario::ScenarioRun run(scratch);
    const auto failure = run.Run(script);
    ASSERT_FALSE(failure) << failure->line << ": " << failure->message;

    EXPECT_EQ(PilotsShown(session->ed()), PilotsShown(scratch.ed()));
    EXPECT_EQ(PilotsShown(session->ed()),
              "tab 1, group 0, pilots 0 1, focus 0, anchor 1, player disabled");
}

// A failure that no handler caught ends in the program's error box, and the editor goes on.
TEST_F(SkinTest, AFailureThatEscapesAHandlerEndsInTheErrorBox) {
    Label& caption = session->ed().FrmMission.lblTitleCaption;
    ASSERT_FALSE(caption.MouseDown);
    std::function<void()> fail;
    caption.MouseDown.Connect([&](int, int, float, float) { fail(); });
    session->ShowTab(0);
    QApplication::processEvents();
    const struct {
        std::function<void()> fail;
        const char* text;
    } cases[] = {
        {[] { Raise(kErrSubscript); },
         "Error # 9 was generated by Tarvex Mission Editor\nSubscript out of range"},
        {[] { throw std::runtime_error("no such row"); },
         "Error # 5 was generated by Tarvex Mission Editor\nno such row"},
    };
    for (const auto& c : cases) {
        fail = c.fail;
        const size_t before = dialogs.messages.size();
        QTest::mouseClick(Widget("lblTitleCaption"), Qt::LeftButton);
        ASSERT_EQ(dialogs.messages.size(), before + 1);
        EXPECT_EQ(dialogs.messages.back().text, c.text);
        EXPECT_EQ(dialogs.messages.back().title, "Error");
        EXPECT_EQ(dialogs.messages.back().icon, MsgIcon::Critical);
    }
}

TEST_F(SkinTest, OffsetsWindowOpensOnTopBesideTheEditorAndItsCellsReachTheDatabase) {
    Editor& ed = session->ed();
    auto& frm = ed.FrmMission;
    ed.db.theDB.Execute(
        "INSERT INTO GrndNames (ID,LayoutName,UnitTotal,IsDefault,GUType) VALUES "
        "(9001,'AA Decoy',4001,0,1); INSERT INTO GrndTypes (ID,UnitType,XOffset,YOffset) VALUES "
        "(9001,4001,0.1,0.2);");
    FillLayoutLists(ed);
    ed.options.ShowDataWin = true;
    session->ShowTab(2);
    frm.lstGrnUnits.SetListIndex(frm.lstGrnUnits.FindRow("AA Decoy"));
    QWidget* map = Widget("mapGroundUnits");
    QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(100, 120));
    frm.lstGUAdded.SetListIndex(0);
    frm.lstGUAdded.RaiseDblClick();
    QApplication::processEvents();

    FormView* offsets = session->window().FormWindow("frmGUOffsets");
    ASSERT_NE(offsets, nullptr);
    QWidget* window = offsets->window();
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_EQ(window->windowTitle(), "AA Decoy");
    EXPECT_EQ(window->pos(),
              QPoint(Px(ed.MDIMissionED.Left() + 96), Px(ed.MDIMissionED.Top() + 672)));

    auto* grid = qobject_cast<QTableWidget*>(offsets->WidgetOf("dbgGUOffsets"));
    ASSERT_NE(grid, nullptr);
    ASSERT_EQ(grid->rowCount(), 1);
    // Metric units are off in this run: feet.
    EXPECT_EQ(grid->item(0, 4)->text(), "328.1");
    grid->item(0, 4)->setText("1640.4");
    QApplication::processEvents();
    Recordset rs =
        ed.db.theDB.OpenRecordset("SELECT XOffset FROM GrndTypes Where ID=9001", kSnapshot);
    rs.MoveFirst();
    EXPECT_DOUBLE_EQ(rs.Fields(0).Double(), 0.5);
    EXPECT_EQ(grid->item(0, 4)->text(), "1640.4");
}

// Files dragged over a control that listens for them reach its model, which takes them or
// not.
TEST_F(SkinTest, FilesDraggedOverAButtonReachItsModel) {
    FormView* records = session->window().FormWindow("frmAircraft");
    ASSERT_NE(records, nullptr);
    QWidget* add = records->WidgetOf("cmdAdd");
    ASSERT_TRUE(add && add->acceptDrops());
    for (const bool files : {true, false}) {
        QMimeData mime;
        if (files)
            mime.setUrls({QUrl::fromLocalFile("/tmp/Spitfire.air")});
        else
            mime.setText("Spitfire");
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction | Qt::MoveAction, &mime, Qt::LeftButton,
                              {});
        QApplication::sendEvent(add, &enter);
        EXPECT_EQ(enter.isAccepted(), files);
    }
}

TEST(SkinServices, FileFiltersTakeQtsForm) {
    struct Case {
        const char* filter;
        const char* qt;
    };
    const Case cases[] = {
        {"(*.mdb)|*.mdb", "(*.mdb)"},
        {"Text (*.mis)|*.mis", "Text (*.mis)"},
        {"Aircraft|*.air", "Aircraft (*.air)"},
        {"Missions (*.mis)|*.mis|All (*.*)|*.*", "Missions (*.mis);;All (*.*)"},
        {"Pictures|*.bmp;*.dib", "Pictures (*.bmp *.dib)"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(QtFileFilter(c.filter).toStdString(), c.qt) << c.filter;
}

TEST_F(SkinTest, StatusStripPaintsTheRecording) {
    auto& strip = session->ed().MDIMissionED.Picture1;
    QWidget* widget = session->window().MainView().WidgetOf("Picture1");
    ASSERT_NE(widget, nullptr);
    strip.Cls();
    strip.SetDrawWidth(4);
    strip.Line(0, 150, 3000, 150, Rgb(255, 0, 0));
    const QImage image = widget->grab().toImage();
    const QColor mid = image.pixelColor(100 * image.width() / widget->width(),
                                        10 * image.height() / widget->height());
    EXPECT_GT(mid.red(), 200);
    EXPECT_LT(mid.green(), 60);
    strip.Cls();
    const QColor cleared = widget->grab().toImage().pixelColor(100, 10);
    EXPECT_GT(cleared.green(), 100);
}

TEST(SkinProgram, ScreenshotOptionWritesAPicture) {
    const std::filesystem::path folder = testing::MakeTestFolder("screenshot");
    const std::filesystem::path config = folder / "config";
    std::filesystem::create_directories(config);
    const QString out = QString::fromStdString((folder / "waypoints.png").string());
    QProcess editor;
    editor.setWorkingDirectory(TARVEX_BINARY_DIR "/default-install");
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QT_QPA_PLATFORM", "offscreen");
    env.insert("TARVEX_SIM_PATH", TARVEX_BINARY_DIR "/default-install/Tarvex");
    env.insert("XDG_CONFIG_HOME", QString::fromStdString(config.string()));
    editor.setProcessEnvironment(env);
    editor.start(TARVEX_BINARY_DIR "/src/qt/tarvex-editor",
                 {"--screenshot", out, "--tab", "3",
                  TARVEX_SOURCE_DIR "/tests/data/missions/channel_sweep.mis"});
    ASSERT_TRUE(editor.waitForFinished(60000));
    EXPECT_EQ(editor.exitCode(), 0) << editor.readAllStandardError().toStdString();
    const QImage image(out);
    EXPECT_FALSE(image.isNull());
    EXPECT_GT(image.width(), 500);
    EXPECT_GT(image.height(), 400);
    std::error_code ignored;
    std::filesystem::remove_all(folder, ignored);
}

}  // namespace
}  // namespace tarvex::qt

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
