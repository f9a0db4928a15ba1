// How the skin looks and scales: no control covers another at any scale, the mission window
// grows with the main window with the pointer still in map units, the maps zoom as a view,
// and presses and drops on the tab strip reach the core.
#include <QDropEvent>
#include <QGroupBox>
#include <QMimeData>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QUrl>
#include <QWheelEvent>
#include <set>
#include <string>
#include <vector>

#include "qt/binding.h"
#include "qt/picture_view.h"
#include "qt/skin_fixture.h"
#include "qt/view_scale.h"
#include "qt/widget_factory.h"
#include "shell/forms/frm_mission.h"
#include "shell/forms/mdi_mission_ed.h"

namespace tarvex::qt {
namespace {

// A widget of a control with the control's place in its container, in map units.
struct Placed {
    QWidget* widget;
    QRectF model;
    std::string name;
};

// The visible widgets directly in `holder` that show a control; a scrolled view stands for its
// control at the view's place.
std::vector<Placed> ControlsIn(QWidget* holder) {
    std::vector<Placed> found;
    for (QObject* child : holder->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || !widget->isVisible()) continue;
        if (ControlBinding* binding = ControlBinding::Of(widget)) {
            const Control& c = binding->Model();
            found.push_back({widget, QRectF(c.Left(), c.Top(), c.Width(), c.Height()),
                             widget->objectName().toStdString()});
        } else if (auto* view = qobject_cast<QScrollArea*>(widget); view && view->widget()) {
            for (QObject* inner : view->widget()->children()) {
                ControlBinding* binding = ControlBinding::Of(qobject_cast<QWidget*>(inner));
                if (!binding) continue;
                const Control& c = binding->Model();
                const Place& home = c.Home();
                const QRectF model = c.ZRank() == 0
                                         ? QRectF(home.left, home.top, home.width, home.height)
                                         : QRectF(c.Left(), c.Top(), c.Width(), c.Height());
                found.push_back({widget, model, binding->Widget()->objectName().toStdString()});
                break;
            }
        }
    }
    return found;
}

// Overlaps of more than a pixel's rounding either way.
bool Covers(const QRect& a, const QRect& b) {
    const QRect both = a & b;
    return both.width() > 1 && both.height() > 1;
}

QRect CaptionOf(QGroupBox* box) {
    QStyleOptionGroupBox option;
    option.initFrom(box);
    option.text = box->title();
    option.textAlignment = box->alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    option.lineWidth = 1;
    return box->style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel,
                                        box);
}

// What covers what in `holder` and in the frames inside it, where the model keeps them apart:
// two controls, a frame's caption over what the frame holds, a control cut by the edge of its
// container.
void CollectFaults(QWidget* holder, const QRectF& room, std::vector<std::string>& faults) {
    const std::vector<Placed> controls = ControlsIn(holder);
    const QRect caption =
        qobject_cast<QGroupBox*>(holder) ? CaptionOf(static_cast<QGroupBox*>(holder)) : QRect();
    const std::string where = holder->objectName().toStdString() + ": ";
    for (size_t i = 0; i < controls.size(); ++i) {
        const Placed& a = controls[i];
        const QRect shown = a.widget->geometry();
        for (size_t j = i + 1; j < controls.size(); ++j) {
            const Placed& b = controls[j];
            if (!a.model.intersects(b.model) && Covers(shown, b.widget->geometry()))
                faults.push_back(where + a.name + " covers " + b.name);
        }
        if (!caption.isEmpty() && Covers(shown, caption))
            faults.push_back(where + "the caption covers " + a.name);
        if (room.contains(a.model) && !holder->rect().adjusted(-1, -1, 1, 1).contains(shown))
            faults.push_back(where + a.name + " is cut by the edge");
        if (qobject_cast<QGroupBox*>(a.widget))
            CollectFaults(a.widget, QRectF(0, 0, a.model.width(), a.model.height()), faults);
    }
}

// The faults of every tab's page as the user sees it.
std::vector<std::string> LayoutFaults(EditorSession& session) {
    std::vector<std::string> faults;
    const TabControl& strip = session.ed().FrmMission.SSTab1;
    QWidget* tabs = session.window().MissionView().WidgetOf(strip);
    for (int tab = 0; tab < strip.Tabs(); ++tab) {
        session.ShowTab(tab);
        QApplication::processEvents();
        const QRectF page(0, strip.TabHeight(), strip.Width(), strip.Height());
        CollectFaults(TabPage(tabs, tab), page, faults);
    }
    return faults;
}

// Sizes the main window so that the mission window takes `scale`.
void ScaleTo(EditorSession& session, double scale) {
    const Editor& ed = session.ed();
    QMainWindow& window = session.window();
    QWidget* body = window.centralWidget();
    const QSize chrome = window.size() - body->size();
    const double wide = ed.FrmMission.Width();
    const double high = ed.FrmMission.Height() + ed.MDIMissionED.Picture1.Height();
    window.resize(chrome + QSize(Px(wide, scale) + 4, Px(high, scale) + 4));
    QApplication::processEvents();
}

TEST_F(SkinTest, NoControlCoversAnotherAtAnyScale) {
    dialogs.QueueOpen(TARVEX_SOURCE_DIR "/tests/data/missions/channel_sweep.mis");
    Action("mnuOpen")->trigger();
    for (const double scale : {1.0, 1.5, 2.0}) {
        SCOPED_TRACE(scale);
        ScaleTo(*session, scale);
        ASSERT_EQ(session->window().MissionView().Scale(), scale);
        const std::vector<std::string> faults = LayoutFaults(*session);
        for (const std::string& fault : faults)
            ADD_FAILURE() << fault;
    }
}

TEST_F(SkinTest, TheMissionWindowScalesWithTheMainWindowAndKeepsMapUnits) {
    FormView& mission = session->window().MissionView();
    ScaleTo(*session, 2.0);
    ASSERT_EQ(mission.Scale(), 2.0);
    // Text grows with the form, and the form stands centred.
    EXPECT_DOUBLE_EQ(mission.font().pointSizeF(), 2 * FormView::kPointSize);
    QWidget* body = session->window().centralWidget();
    EXPECT_NEAR(mission.geometry().center().x(), body->width() / 2, 2);
    EXPECT_EQ(mission.size(), QSize(Px(session->ed().FrmMission.Width(), 2),
                                    Px(session->ed().FrmMission.Height(), 2)));

    session->ShowTab(3);
    QApplication::processEvents();
    auto* map = dynamic_cast<PictureView*>(Widget("mapWayPoints"));
    ASSERT_NE(map, nullptr);
    auto& model = session->ed().FrmMission.mapWayPoints;
    const float width = model.Width();
    EXPECT_EQ(map->width(), Px(width, 2));
    std::vector<QPointF> pressed;
    model.MouseDown.Disconnect();
    model.MouseDown.Connect([&](int, int, float x, float y) { pressed.emplace_back(x, y); });
    // At twice the size a pixel is 7.5 map units; zoomed twice more, 3.75.
    for (const double zoom : {1.0, 2.0}) {
        map->SetZoom(zoom);
        pressed.clear();
        QTest::mouseClick(map, Qt::LeftButton, {}, QPoint(200, 160));
        ASSERT_EQ(pressed.size(), 1u);
        EXPECT_FLOAT_EQ(pressed[0].x(), 200 * 7.5 / zoom);
        EXPECT_FLOAT_EQ(pressed[0].y(), 160 * 7.5 / zoom);
        EXPECT_EQ(model.Width(), width);
    }
}

TEST_F(SkinTest, CtrlWheelZoomsTheMapAboutThePointer) {
    session->ShowTab(3);
    QApplication::processEvents();
    auto* map = dynamic_cast<PictureView*>(Widget("mapWayPoints"));
    ASSERT_NE(map, nullptr);
    auto* view = qobject_cast<QScrollArea*>(map->parentWidget()->parentWidget()->parentWidget());
    ASSERT_NE(view, nullptr);
    const size_t drawn = session->ed().FrmMission.mapWayPoints.Operations().size();
    const QPoint at(150, 120);  // in the view
    const auto turn = [&](Qt::KeyboardModifiers keys, int notches) {
        QWheelEvent wheel(at, view->viewport()->mapToGlobal(at), {}, {0, 120 * notches},
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QApplication::sendEvent(view->viewport(), &wheel);
    };
    const auto underPointer = [&] {
        return QPointF(map->mapFrom(view->viewport(), at)) / map->Zoom();
    };
    const QPointF before = underPointer();
    turn(Qt::ControlModifier, 2);
    EXPECT_DOUBLE_EQ(map->Zoom(), NextZoom(1, 2));
    EXPECT_EQ(map->width(), Px(session->ed().FrmMission.mapWayPoints.Width(), map->Zoom()));
    EXPECT_NEAR(underPointer().x(), before.x(), 1);
    EXPECT_NEAR(underPointer().y(), before.y(), 1);
    EXPECT_GT(view->horizontalScrollBar()->value(), 0);
    // Without Ctrl the wheel scrolls; the drawing is the core's and stays.
    turn({}, -1);
    EXPECT_DOUBLE_EQ(map->Zoom(), NextZoom(1, 2));
    turn(Qt::ControlModifier, -2);
    EXPECT_DOUBLE_EQ(map->Zoom(), 1.0);
    // The keys zoom the map shown, and Ctrl+0 goes back to the normal size.
    session->window().activateWindow();
    QApplication::setActiveWindow(&session->window());
    const struct {
        Qt::Key key;
        double zoom;
    } keys[] = {{Qt::Key_Plus, NextZoom(1, 1)},
                {Qt::Key_Equal, NextZoom(1, 2)},
                {Qt::Key_Minus, NextZoom(1, 1)},
                {Qt::Key_0, 1.0}};
    for (const auto& k : keys) {
        QTest::keyClick(Widget("txtPoint"), k.key, Qt::ControlModifier);
        EXPECT_DOUBLE_EQ(map->Zoom(), k.zoom) << k.key;
    }
    EXPECT_EQ(session->ed().FrmMission.mapWayPoints.Operations().size(), drawn);
}

TEST_F(SkinTest, APressOnTheGroundUnitsHeaderDrawsItsMap) {
    dialogs.QueueOpen(TARVEX_SOURCE_DIR "/tests/data/missions/channel_sweep.mis");
    Action("mnuOpen")->trigger();
    session->ShowTab(0);
    auto& frm = session->ed().FrmMission;
    frm.mapGroundUnits.Cls();
    QTabBar* bar = qobject_cast<QTabWidget*>(Widget("SSTab1"))->tabBar();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->tabRect(2).center());
    QApplication::processEvents();
    EXPECT_EQ(frm.SSTab1.Tab(), 2);
    EXPECT_FALSE(frm.mapGroundUnits.Picture().empty());
    EXPECT_FALSE(frm.mapGroundUnits.Operations().empty());
    // What is drawn shows: many colours, not a blank surface.
    const QImage shown = Widget("mapGroundUnits")->grab().toImage();
    std::set<QRgb> colours;
    for (int y = 0; y < shown.height(); y += 7)
        for (int x = 0; x < shown.width(); x += 7)
            colours.insert(shown.pixel(x, y));
    EXPECT_GT(colours.size(), 20u);
}

TEST_F(SkinTest, AMissionDroppedOnTheTabsOpens) {
    QWidget* tabs = Widget("SSTab1");
    ASSERT_TRUE(tabs && tabs->acceptDrops());
    const auto drop = [&](QMimeData& mime) {
        QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(tabs, &enter);
        if (!enter.isAccepted()) return false;
        QDropEvent dropped(QPointF(50, 50), Qt::CopyAction, &mime, Qt::LeftButton, {});
        QApplication::sendEvent(tabs, &dropped);
        return true;
    };
    QMimeData text;
    text.setText("channel_sweep.mis");
    EXPECT_FALSE(drop(text));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(TARVEX_SOURCE_DIR "/tests/data/missions/channel_sweep.mis"),
                   QUrl::fromLocalFile("/tmp/other.mis")});
    ASSERT_TRUE(drop(files));
    EXPECT_EQ(session->window().windowTitle(), "Tarvex Mission Editor: channel_sweep.mis");
    EXPECT_EQ(session->ed().FrmMission.txtTitle.Text(), "Channel Sweep");
}

}  // namespace
}  // namespace tarvex::qt
