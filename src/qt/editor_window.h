#pragma once
// The main window of the editor: the menu bar from the main form's menu tree, the mission
// window inside it, and the status strip along the bottom. The other forms are windows of
// their own, shown and hidden by their models.
#include <QMainWindow>
#include <memory>
#include <vector>

namespace tarvex {
class Editor;
}

namespace tarvex::qt {

class FormView;

class EditorWindow : public QMainWindow {
  public:
    explicit EditorWindow(Editor& ed);
    ~EditorWindow() override;

    FormView& MissionView() const { return *mission_; }
    FormView& MainView() const { return *main_; }
    // The window of a form other than the two above; nullptr when there is none.
    FormView* FormWindow(const std::string& formName) const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void PlaceStatusStrip();
    // The mission window at the largest scale that fits above the status strip, centred.
    void FitMissionView();
    Editor& ed_;
    FormView* main_ = nullptr;
    FormView* mission_ = nullptr;
    std::vector<std::unique_ptr<FormView>> windows_;
    int missionListener_ = 0;
};

}  // namespace tarvex::qt
