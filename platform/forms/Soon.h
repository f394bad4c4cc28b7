// A call that comes with the next events. For the sources of this room only.
#pragma once

#include <QBasicTimer>
#include <QObject>

namespace Forms {

class Soon : public QObject {
 public:
  explicit Soon(void (*call)()) : call_(call) {}
  /// Several times before the call comes are one call.
  void Set_Off() {
    if (!timer_.isActive()) timer_.start(0, this);
  }

 protected:
  void timerEvent(QTimerEvent*) override {
    timer_.stop();
    call_();
  }

 private:
  void (*call_)();
  QBasicTimer timer_;
};

}  // namespace Forms
