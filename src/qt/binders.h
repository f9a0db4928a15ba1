#pragma once
// The widgets that mirror the control models. Each binding listens to its model and updates
// the widget with the widget's signals blocked, and forwards the user's input to the model's
// setters and Raise* functions, so that a user's click and code's selection are one event.
#include <QColor>
#include <QObject>
#include <QPointF>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QWidget>
#include <functional>

#include "shell/controls/controls.h"
#include "shell/controls/data_grid.h"

class QMenuBar;
class QMimeData;
class QScrollArea;
class QTimer;

namespace tarvex::qt {

// Map units per logical pixel: 1440 to the inch at 96 dots per inch. Qt scales logical pixels
// on screens of other densities.
constexpr double kTwipsPerPixel = 15.0;

inline int Px(double twips) {
    return static_cast<int>(twips / kTwipsPerPixel + (twips >= 0 ? 0.5 : -0.5));
}
inline float Twips(double pixels) {
    return static_cast<float>(pixels * kTwipsPerPixel);
}

QColor ToQColor(Colour colour);
// A caption without its access-key marks, for widgets that don't show them.
QString PlainCaption(const std::string& caption);
// The desktop's key code of a Qt key; 0 for keys the program never tests.
int KeyCodeOf(int qtKey);

// The local files a drag carries.
DragData DragDataOf(const QMimeData* mime);

// Runs a call into the core; a failure that escapes its handlers is reported on the console
// instead of tearing down the event loop.
void Guarded(const std::function<void()>& call);

// The common part of every binding: geometry, look, focus, mouse, keys and focus events.
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

  private:
    void OnModel(Aspect aspect);
    Control& model_;
    QPointer<QWidget> widget_;
    QPointF origin_;
    int listener_ = 0;
    int syncing_ = 0;
    friend class SyncScope;
};

// Creates the widget for a control model under parent and binds it. Picture surfaces, grids,
// tab strips and the rest each get their kind of widget; nullptr for models that are not
// shown (data sources).
QWidget* CreateControlWidget(Control& control, QWidget* parent, QPointF origin);

// The control is seen through a scrolled view placed at placeSize (pixels): the view follows the
// control's rank among the view's siblings, and shows the control whole while it is in front.
void ShowThroughScrolledView(QWidget* control, QScrollArea* view, QSize placeSize);

// A real timer behind a timer model: it runs while the model runs and fires the model's event.
QTimer* BindTimer(TimerControl& timer, QObject* owner);

// The menu bar from the entries' tree: captions with their access keys, shortcuts, check
// marks, enabled and visible states; a chosen entry goes to its UserClick.
void BuildMenuBar(QMenuBar* bar, const std::vector<MenuItem*>& entries);

// The widget of a tab strip's page n; nullptr when the widget is no tab strip.
QWidget* TabPage(QWidget* tabWidget, int page);

}  // namespace tarvex::qt
