#include "qt/view_scale.h"

#include <QVariant>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace tarvex::qt {

namespace {
constexpr double kScaleStep = 1.0 / 16;
constexpr double kZoomStep = 1.25;
constexpr double kSmallest = 0.5;
constexpr double kLargest = 8.0;
const char* const kScaleProperty = "tarvexScale";
}  // namespace

double ScaleOf(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget()) {
        const QVariant scale = widget->property(kScaleProperty);
        if (scale.isValid()) return scale.toDouble();
    }
    return 1.0;
}

void SetViewScale(QWidget* root, double scale) {
    root->setProperty(kScaleProperty, scale);
}

double FitScale(double roomWidth, double roomHeight, double formWidth, double formHeight) {
    if (formWidth <= 0 || formHeight <= 0) return 1.0;
    const double fit = std::min(roomWidth / formWidth, roomHeight / formHeight);
    // A hair's rounding must not cost a whole step.
    const double stepped = std::floor(fit / kScaleStep + 1e-9) * kScaleStep;
    return std::clamp(stepped, kSmallest, kLargest);
}

double NextZoom(double zoom, int steps) {
    const double next = std::clamp(zoom * std::pow(kZoomStep, steps), kSmallest, kLargest);
    // Steps in and back out come home to the normal size exactly.
    return std::abs(next - 1.0) < 1e-9 ? 1.0 : next;
}

}  // namespace tarvex::qt
