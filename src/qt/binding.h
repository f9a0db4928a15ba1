#pragma once
// The common part of every widget that mirrors a control model. A binding listens to its model
// and updates the widget with the widget's signals blocked, and forwards the user's input to
// the model's user entries, so that a user's click and code's selection are one event.
#include <QColor>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QSize>
#include <QWidget>
#include <exception>
#include <functional>
#include <set>

#include "qt/view_scale.h"
#include "shell/controls/control.h"

class QKeyEvent;
class QScrollArea;

namespace tarvex::qt {

// Map units per logical pixel at the normal scale: 1440 to the inch at 96 dots per inch. Qt
// scales logical pixels on screens of other densities; a form view may scale its widgets
// further (scale 2: 7.5 map units to the pixel).
constexpr double kTwipsPerPixel = 15.0;

inline int Px(double twips, double scale = 1.0) {
    const double pixels = twips * scale / kTwipsPerPixel;
    return static_cast<int>(pixels + (pixels >= 0 ? 0.5 : -0.5));
}
inline float Twips(double pixels, double scale = 1.0) {
    return static_cast<float>(pixels * kTwipsPerPixel / scale);
}

QColor ToQColor(Colour colour);

// Runs a call into the core. A failure that escapes the handlers goes to the report the
// session set, which shows the program's error box; it never tears down the event loop.
void Guarded(const std::function<void()>& call);
// Where Guarded sends a failure; without one it is written to the console.
void SetFailureReport(std::function<void(const std::exception&)> report);

class ControlBinding : public QObject {
    Q_OBJECT
  public:
    // origin: the point of the model's coordinates that is the parent widget's top left.
    ControlBinding(Control& model, QWidget* widget, QPointF origin);
    ~ControlBinding() override;

    Control& Model() const { return model_; }
    QWidget* Widget() const { return widget_; }
    void SetOrigin(QPointF origin);
    // Brings the whole widget in line with the model.
    void SyncAll();
    // Brings the widget's place in line with the model and the scale of its view.
    void SyncScale();
    // The binding of a widget, if it has one.
    static ControlBinding* Of(const QWidget* widget);

  protected:
    virtual void Sync(Aspect aspect);
    virtual void SyncGeometry();
    virtual void SyncAppearance();
    // Widgets that show their own text in the control's colours.
    virtual bool PaintsBackColour() const { return false; }
    // A list selects the row under the pointer before its MouseDown and MouseMove, so that
    // their handlers read the pressed row (and the row a drag has reached) from ListIndex.
    virtual bool SelectsBeforeMouseEvents() const { return false; }
    bool eventFilter(QObject* watched, QEvent* event) override;
    // Whether code is updating the widget (its echoes are ignored).
    bool Syncing() const { return syncing_ > 0; }
    // Watches mouse events of a child that covers the widget (a viewport, a line edit).
    void WatchChild(QWidget* child);
    // The point of a mouse event on `target` (the widget or a watched child) in the model's map
    // units.
    QPointF MapUnitsAt(const QWidget* target, QPointF position) const;
    // Logical pixels per map unit are 1 / kTwipsPerPixel times this.
    virtual double Scale() const { return ScaleOf(widget_); }

  private:
    void OnModel(Aspect aspect);
    bool KeyPressed(QKeyEvent* key);
    bool KeyReleased(QKeyEvent* key);
    Control& model_;
    QPointer<QWidget> widget_;
    QPointF origin_;
    int listener_ = 0;
    int syncing_ = 0;
    // Keys whose press went through a whole gesture, release included.
    std::set<int> keysDone_;
    friend class SyncScope;
};

// The control is seen through a scrolled view placed at placeSize (pixels): the view follows the
// control's rank among the view's siblings, and shows the control whole while it is in front.
void ShowThroughScrolledView(QWidget* control, QScrollArea* view, QSize placeSize);

}  // namespace tarvex::qt
