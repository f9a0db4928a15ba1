#pragma once
// Controls without state of their own beyond the common one: labels, frames, buttons and the
// line shapes that mark the centre of a map.
#include "shell/controls/control.h"

namespace tarvex {

class Label : public CaptionControl {
  public:
    using CaptionControl::CaptionControl;
};

class Frame : public CaptionControl {
  public:
    using CaptionControl::CaptionControl;
};

class CommandButton : public CaptionControl {
  public:
    using CaptionControl::CaptionControl;
};

// A straight line drawn over its container, from (X1, Y1) to (X2, Y2) in map units.
class LineControl : public Control {
  public:
    using Control::Control;
    float X1() const { return x1_; }
    float Y1() const { return y1_; }
    float X2() const { return x2_; }
    float Y2() const { return y2_; }
    void SetEnds(float x1, float y1, float x2, float y2);
    Colour BorderColor() const { return borderColor_; }
    void SetBorderColor(Colour colour);

  private:
    float x1_ = 0;
    float y1_ = 0;
    float x2_ = 0;
    float y2_ = 0;
    Colour borderColor_ = 0;
};

}  // namespace tarvex
