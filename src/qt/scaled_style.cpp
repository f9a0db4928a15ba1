#include "qt/scaled_style.h"

#include <QApplication>

#include "qt/binding.h"

namespace tarvex::qt {

int ScaledStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    const int base = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
        case PM_ExclusiveIndicatorWidth:
        case PM_ExclusiveIndicatorHeight:
        case PM_CheckBoxLabelSpacing:
        case PM_RadioButtonLabelSpacing:
        case PM_ScrollBarExtent:
        case PM_ScrollBarSliderMin:
        case PM_ButtonMargin:
        case PM_MenuButtonIndicator:
        case PM_ButtonIconSize:
        case PM_SmallIconSize:
            return qRound(base * ScaleOf(widget));
        default:
            return base;
    }
}

void UseScaledStyle() {
    if (dynamic_cast<ScaledStyle*>(QApplication::style())) return;
    QApplication::setStyle(new ScaledStyle(QApplication::style()->name()));
}

}  // namespace tarvex::qt
