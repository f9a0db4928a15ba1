#pragma once
// The widgets of one form: every control of its register in the container the model names, at
// the place the model gives, each bound to its model; and the form's own caption, place and
// visibility.
#include <QScrollArea>
#include <QWidget>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "shell/forms/form.h"

namespace tarvex::qt {

class FormView : public QWidget {
  public:
    enum class Mode {
        Window,   // a window of its own
        Child,    // an area inside another window, placed where the form says
        Central,  // the body of a main window: the form's place and caption are the window's
    };
    FormView(Form& form, QWidget* parent, Mode mode);
    ~FormView() override;

    Form& Model() const { return form_; }
    // The widget of a control; nullptr for one that has none.
    QWidget* WidgetOf(const Control& control) const;
    QWidget* WidgetOf(const std::string& name, int index = -1) const;

    // The form was laid out for the desktop's 8-point dialog font at the normal scale.
    static constexpr double kPointSize = 8.0;
    // Scales the whole form, text and pictures included (2: twice the normal size); a child
    // form stands at offset (pixels) from its place in the window.
    void SetScale(double scale, QPoint offset = {});
    double Scale() const { return scale_; }
    // A window that stands in the middle of the screen wherever the form says.
    void SetCentred(bool centred);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    struct Shared {
        QWidget* widget;
        Container where;
    };
    struct View {
        QScrollArea* area;
        QWidget* control;
        Place place;
        QPointF origin;
    };
    // The widget that holds controls of that container, and the point of the container's
    // coordinates that is the widget's top left.
    QWidget* HolderOf(const Container& where, QPointF& origin);
    // A scrolled view at the control's home place; its widget holds the control.
    QScrollArea* ScrolledView(const Control& control, QWidget* parent, QPointF& origin);
    // Controls shown on several pages go to the page that is showing.
    void PlaceShared();
    void SyncForm();
    void PlaceView(const View& view);

    Form& form_;
    Mode mode_;
    std::map<const Control*, QWidget*> widgets_;
    std::vector<Shared> shared_;
    std::vector<View> views_;
    double scale_ = 1.0;
    QPoint offset_;
    QRectF placed_{0, 0, -1, -1};
    bool centred_ = false;
    QWidget* sharedHome_ = nullptr;
    std::set<QWidget*> holders_;
    std::vector<TabControl*> strips_;
    std::vector<int> stripListeners_;
    int formListener_ = 0;
};

}  // namespace tarvex::qt
