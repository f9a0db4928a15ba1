#pragma once
// A picture surface: a bitmap with drawing over it. Every drawing operation is recorded with
// the pen, fill and width in force at the time; the skin replays the recording to paint, and
// tests read it. Coordinates are map units (twips), Y downward, (0, 0) the top left corner.
#include <functional>
#include <string>
#include <vector>

#include "shell/controls/control.h"

namespace tarvex {

constexpr int kFillSolid = 0;
constexpr int kFillTransparent = 1;

enum class DrawKind { Circle, Line, Box, Text };

struct DrawOp {
    DrawKind kind = DrawKind::Line;
    float x1 = 0;  // circle centre, line start, box corner, text position
    float y1 = 0;
    float x2 = 0;  // line end, opposite box corner
    float y2 = 0;
    float radius = 0;
    Colour pen = 0;  // outline or text colour
    Colour fillColor = 0;
    int fillStyle = kFillTransparent;
    int drawWidth = 1;
    std::string text;
};

class PictureSurface : public Control {
  public:
    using Control::Control;

    // Loads a bitmap, takes its size and drops the drawing. A missing or unreadable bitmap
    // leaves the surface as it was and answers false. The empty path removes the picture
    // (size and drawing kept).
    bool LoadPicture(const std::string& path);
    const std::string& Picture() const { return picture_; }
    // The bitmap's size in pixels, 0 when there is none.
    int PictureWidthPixels() const { return pictureWidthPixels_; }
    int PictureHeightPixels() const { return pictureHeightPixels_; }

    // The inner drawing area. The surface has no border, so these follow Width and Height.
    float ScaleWidth() const { return Width(); }
    float ScaleHeight() const { return Height(); }

    // Removes all drawing (the bitmap stays) and puts CurrentX, CurrentY at 0, 0.
    void Cls();
    // A negative colour draws with ForeColor. Circle leaves CurrentX/Y at the centre, Line
    // and Box at the second point.
    void Circle(float x, float y, float radius, Colour colour = -1);
    void Line(float x1, float y1, float x2, float y2, Colour colour = -1);
    // A rectangle; filled draws it solid in the pen colour, otherwise with FillColor/FillStyle.
    void Box(float x1, float y1, float x2, float y2, Colour colour = -1, bool filled = false);
    // Text in ForeColor at CurrentX, CurrentY. Then, with newLine, CurrentX returns to 0 and
    // CurrentY moves down by TextHeight; without it CurrentX moves right by TextWidth.
    void Print(const std::string& text, bool newLine = true);

    float CurrentX() const { return currentX_; }
    float CurrentY() const { return currentY_; }
    void SetCurrentX(float x) { currentX_ = x; }
    void SetCurrentY(float y) { currentY_ = y; }
    void SetCurrent(float x, float y) {
        currentX_ = x;
        currentY_ = y;
    }

    Colour FillColor() const { return fillColor_; }
    void SetFillColor(Colour colour) { fillColor_ = colour; }
    int FillStyle() const { return fillStyle_; }
    void SetFillStyle(int style);  // 0 solid, 1 transparent; else error 380
    int DrawWidth() const { return drawWidth_; }
    void SetDrawWidth(int width);  // 1 and up; else error 380

    // Text measures in map units. The skin may replace the measuring with its font's; by
    // default a fixed estimate of the desktop's small font: 90 per character, 195 high.
    float TextWidth(const std::string& text) const;
    float TextHeight(const std::string& text) const;
    std::function<float(const std::string&)> measureWidth;
    std::function<float(const std::string&)> measureHeight;

    const std::vector<DrawOp>& Operations() const { return operations_; }

    // Asks the skin to repaint; the skin raises Paint when it repaints.
    void Refresh() { Notify(Aspect::Drawing); }
    void RaisePaint() const {
        if (Paint) Paint();
    }
    Event<> Paint;

  protected:
    void ListEvents(std::vector<NamedEvent>& out) const override;

  private:
    void Record(DrawOp op);
    // A line or box from (x1, y1) to (x2, y2); the drawing position moves to the second point.
    void RecordSpan(DrawKind kind, float x1, float y1, float x2, float y2, Colour colour,
                    bool filled);

    std::string picture_;
    int pictureWidthPixels_ = 0;
    int pictureHeightPixels_ = 0;
    std::vector<DrawOp> operations_;
    float currentX_ = 0;
    float currentY_ = 0;
    Colour fillColor_ = 0;
    int fillStyle_ = kFillTransparent;
    int drawWidth_ = 1;
};

}  // namespace tarvex
