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

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    struct Shared {
        QWidget* widget;
        Container where;
    };
    // The widget that holds controls of that container, and the point of the container's
    // coordinates that is the widget's top left.
    QWidget* HolderOf(const Container& where, QPointF& origin);
    // A scrolled view at the control's home place; its widget holds the control.
    QScrollArea* ScrolledView(const Control& control, QWidget* parent, QPointF& origin);
    // Controls shown on several pages go to the page that is showing.
    void PlaceShared();
    void SyncForm();

    Form& form_;
    Mode mode_;
    std::map<const Control*, QWidget*> widgets_;
    std::vector<Shared> shared_;
    QWidget* sharedHome_ = nullptr;
    std::set<QWidget*> holders_;
    std::vector<TabControl*> strips_;
    std::vector<int> stripListeners_;
    int formListener_ = 0;
};

}  // namespace tarvex::qt
