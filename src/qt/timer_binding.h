#pragma once
// A real timer behind a timer model: it runs while the model runs and fires the model's event.
#include "shell/controls/timer.h"

class QObject;
class QTimer;

namespace tarvex::qt {

QTimer* BindTimer(TimerControl& timer, QObject* owner);

}  // namespace tarvex::qt
