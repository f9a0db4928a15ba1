#include "qt/timer_binding.h"

#include <QTimer>

#include "qt/binding.h"

namespace tarvex::qt {

QTimer* BindTimer(TimerControl& timer, QObject* owner) {
    auto* qtimer = new QTimer(owner);
    const auto sync = [qtimer, &timer] {
        if (timer.Running()) {
            if (!qtimer->isActive() || qtimer->interval() != timer.Interval())
                qtimer->start(timer.Interval());
        } else {
            qtimer->stop();
        }
    };
    const int id = timer.AddListener([sync](Aspect) { sync(); });
    QObject::connect(qtimer, &QObject::destroyed, [&timer, id] { timer.RemoveListener(id); });
    QObject::connect(qtimer, &QTimer::timeout, [&timer, sync] {
        Guarded([&] { timer.Fire(); });
        sync();
    });
    sync();
    return qtimer;
}

}  // namespace tarvex::qt
