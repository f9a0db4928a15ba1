#include "shell/controls/simple_controls.h"

namespace tarvex {

void LineControl::SetEnds(float x1, float y1, float x2, float y2) {
    if (x1 == x1_ && y1 == y1_ && x2 == x2_ && y2 == y2_) return;
    x1_ = x1;
    y1_ = y1;
    x2_ = x2;
    y2_ = y2;
    Notify(Aspect::Geometry);
}

void LineControl::SetBorderColor(Colour colour) {
    if (colour == borderColor_) return;
    borderColor_ = colour;
    Notify(Aspect::Appearance);
}

}  // namespace tarvex
