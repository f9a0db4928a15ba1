#pragma once
// The desktop's style with its fixed measures (check marks, option dots, scroll bars) grown
// with the scale of the form view a widget lies in, so that a scaled form scales whole.
#include <QProxyStyle>

namespace tarvex::qt {

class ScaledStyle : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;
    int pixelMetric(PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
};

// Puts the scaled style under the application once.
void UseScaledStyle();

}  // namespace tarvex::qt
