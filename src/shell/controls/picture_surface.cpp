#include "shell/controls/picture_surface.h"

#include "common/error.h"
#include "shell/controls/bmp_header.h"

namespace tarvex {

namespace {
constexpr float kCharWidth = 90;    // 6 pixels of the small desktop font
constexpr float kLineHeight = 195;  // 13 pixels
}  // namespace

bool PictureSurface::LoadPicture(const std::string& path) {
    if (path.empty()) {
        picture_.clear();
        pictureWidthPixels_ = 0;
        pictureHeightPixels_ = 0;
        Notify(Aspect::Drawing);
        return true;
    }
    const auto info = ReadBmpHeader(path);
    if (!info) return false;
    // A new bitmap replaces what was drawn over the old one.
    operations_.clear();
    picture_ = path;
    pictureWidthPixels_ = info->widthPixels;
    pictureHeightPixels_ = info->heightPixels;
    Move(Left(), Top(), static_cast<float>(info->WidthTwips()),
         static_cast<float>(info->HeightTwips()));
    Notify(Aspect::Drawing);
    return true;
}

void PictureSurface::Cls() {
    operations_.clear();
    currentX_ = 0;
    currentY_ = 0;
    Notify(Aspect::Drawing);
}

void PictureSurface::Record(DrawOp op) {
    op.fillColor = fillColor_;
    op.fillStyle = fillStyle_;
    op.drawWidth = drawWidth_;
    operations_.push_back(std::move(op));
    Notify(Aspect::Drawing);
}

void PictureSurface::Circle(float x, float y, float radius, Colour colour) {
    DrawOp op;
    op.kind = DrawKind::Circle;
    op.x1 = x;
    op.y1 = y;
    op.radius = radius;
    op.pen = colour < 0 ? ForeColor() : colour;
    currentX_ = x;
    currentY_ = y;
    Record(std::move(op));
}

void PictureSurface::RecordSpan(DrawKind kind, float x1, float y1, float x2, float y2,
                                Colour colour, bool filled) {
    DrawOp op;
    op.kind = kind;
    op.x1 = x1;
    op.y1 = y1;
    op.x2 = x2;
    op.y2 = y2;
    op.pen = colour < 0 ? ForeColor() : colour;
    currentX_ = x2;
    currentY_ = y2;
    Record(op);
    // A filled box is solid in its own pen colour, whatever the surface's fill.
    if (filled) {
        operations_.back().fillColor = op.pen;
        operations_.back().fillStyle = kFillSolid;
    }
}

void PictureSurface::Line(float x1, float y1, float x2, float y2, Colour colour) {
    RecordSpan(DrawKind::Line, x1, y1, x2, y2, colour, false);
}

void PictureSurface::Box(float x1, float y1, float x2, float y2, Colour colour, bool filled) {
    RecordSpan(DrawKind::Box, x1, y1, x2, y2, colour, filled);
}

void PictureSurface::Print(const std::string& text, bool newLine) {
    DrawOp op;
    op.kind = DrawKind::Text;
    op.x1 = currentX_;
    op.y1 = currentY_;
    op.pen = ForeColor();
    op.text = text;
    if (newLine) {
        currentX_ = 0;
        currentY_ += TextHeight(text);
    } else {
        currentX_ += TextWidth(text);
    }
    Record(std::move(op));
}

void PictureSurface::SetFillStyle(int style) {
    if (style != kFillSolid && style != kFillTransparent) Raise(kErrInvalidProperty);
    fillStyle_ = style;
}

void PictureSurface::SetDrawWidth(int width) {
    if (width < 1) Raise(kErrInvalidProperty);
    drawWidth_ = width;
}

float PictureSurface::TextWidth(const std::string& text) const {
    if (measureWidth) return measureWidth(text);
    return kCharWidth * static_cast<float>(text.size());
}

float PictureSurface::TextHeight(const std::string& text) const {
    if (measureHeight) return measureHeight(text);
    return kLineHeight;
}

void PictureSurface::ListEvents(std::vector<NamedEvent>& out) const {
    Control::ListEvents(out);
    out.push_back({"Paint", &Paint});
}

}  // namespace tarvex
