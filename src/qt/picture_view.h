#pragma once
// A picture surface: its bitmap, then its recorded drawing replayed with antialiasing. The
// pointer reaches the model in map units.
#include <QImage>
#include <QString>
#include <QWidget>

#include "shell/controls/picture_surface.h"

namespace tarvex::qt {

class ControlBinding;

class PictureView : public QWidget {
  public:
    PictureView(PictureSurface& model, QWidget* parent);
    ~PictureView() override;
    ControlBinding* Bind(QPointF origin);
    // The view's own magnification over the form's scale: map units, drawing and the model's
    // size stay as they are.
    double Zoom() const { return zoom_; }
    void SetZoom(double zoom);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    PictureSurface& model_;
    ControlBinding* binding_ = nullptr;
    double zoom_ = 1.0;
    QString loaded_;
    QImage image_;
    bool painting_ = false;
};

}  // namespace tarvex::qt
