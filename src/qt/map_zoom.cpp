#include "qt/map_zoom.h"

#include <QCursor>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QWheelEvent>

#include "qt/picture_view.h"
#include "qt/view_scale.h"

namespace tarvex::qt {

namespace {

QScrollArea* ViewOf(const QWidget* map) {
    for (QWidget* up = map->parentWidget(); up; up = up->parentWidget())
        if (auto* area = qobject_cast<QScrollArea*>(up)) return area;
    return nullptr;
}

}  // namespace

MapZoom::MapZoom(QWidget* keyScope, std::vector<PictureView*> maps) : QObject(keyScope) {
    for (PictureView* map : maps) {
        QScrollArea* view = map ? ViewOf(map) : nullptr;
        if (!view) continue;
        maps_.push_back(map);
        view->viewport()->installEventFilter(this);
    }
    const struct {
        QKeySequence keys;
        int steps;
    } keys[] = {{QKeySequence::ZoomIn, 1},
                {QKeySequence(Qt::CTRL | Qt::Key_Equal), 1},
                {QKeySequence::ZoomOut, -1},
                {QKeySequence(Qt::CTRL | Qt::Key_0), 0}};
    for (const auto& key : keys) {
        auto* shortcut = new QShortcut(key.keys, keyScope);
        shortcut->setContext(Qt::WindowShortcut);
        const int steps = key.steps;
        connect(shortcut, &QShortcut::activated, this, [this, steps] { Step(steps); });
    }
}

void MapZoom::ZoomAbout(PictureView& map, double zoom, QPoint atView) {
    QScrollArea* view = ViewOf(&map);
    if (!view || zoom == map.Zoom()) return;
    QWidget* viewport = view->viewport();
    const QPointF before = QPointF(map.mapFrom(viewport, atView)) / map.Zoom();
    map.SetZoom(zoom);
    const QPointF wanted = before * zoom;
    const QPointF now = map.mapFrom(viewport, atView);
    QScrollBar* across = view->horizontalScrollBar();
    QScrollBar* down = view->verticalScrollBar();
    across->setValue(across->value() + qRound(wanted.x() - now.x()));
    down->setValue(down->value() + qRound(wanted.y() - now.y()));
}

void MapZoom::Step(int steps) {
    for (PictureView* map : maps_) {
        if (!map->isVisible()) continue;
        QWidget* viewport = ViewOf(map)->viewport();
        QPoint at = viewport->mapFromGlobal(QCursor::pos());
        if (!viewport->rect().contains(at)) at = viewport->rect().center();
        ZoomAbout(*map, steps == 0 ? 1.0 : NextZoom(map->Zoom(), steps), at);
    }
}

bool MapZoom::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel) return false;
    auto* wheel = static_cast<QWheelEvent*>(event);
    if (!(wheel->modifiers() & Qt::ControlModifier)) return false;
    // Fine wheels (touch pads) add up to whole notches.
    wheelRest_ += wheel->angleDelta().y();
    const int steps = wheelRest_ / 120;
    wheelRest_ -= steps * 120;
    if (steps == 0) return true;
    for (PictureView* map : maps_)
        if (ViewOf(map)->viewport() == watched)
            ZoomAbout(*map, NextZoom(map->Zoom(), steps), wheel->position().toPoint());
    return true;
}

}  // namespace tarvex::qt
