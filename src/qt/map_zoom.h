#pragma once
// Zoom on the maps: Ctrl with the wheel, Ctrl++ and Ctrl+- magnify the map shown about the
// pointer (about the middle of its view when the pointer is elsewhere), Ctrl+0 goes back to
// the normal size; the view's scroll bars follow. A view only: the map's model, its drawing and
// the map units the pointer gives are unchanged.
#include <QObject>
#include <QPoint>
#include <vector>

class QWidget;

namespace tarvex::qt {

class PictureView;

class MapZoom : public QObject {
  public:
    // The keys act within `keyScope`; maps not seen through a scrolled view are left alone.
    MapZoom(QWidget* keyScope, std::vector<PictureView*> maps);

    // Sets the zoom of a map keeping the point under `atView` (a point of its scrolled view's
    // viewport) where it is.
    static void ZoomAbout(PictureView& map, double zoom, QPoint atView);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void Step(int steps);
    std::vector<PictureView*> maps_;
    int wheelRest_ = 0;
};

}  // namespace tarvex::qt
