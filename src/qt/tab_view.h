#pragma once
// The tab strip with its pages. A press on the strip is the model's tab press, which turns to
// the page under the pointer before it reports the press.
#include <QTabWidget>
#include <vector>

#include "shell/controls/tab_control.h"

namespace tarvex::qt {

class ControlBinding;

class TabView : public QTabWidget {
  public:
    TabView(TabControl& model, QWidget* parent);
    ControlBinding* Bind(QPointF origin);
    // The page widget of tab n, on which the tab's controls lie.
    QWidget* Page(int tab) const;
    void SyncPages();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    TabControl& model_;
    std::vector<QWidget*> pages_;
};

}  // namespace tarvex::qt
