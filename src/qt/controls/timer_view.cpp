#include "qt/controls/timer_view.h"

#include <QObject>
#include <QTimer>

namespace tagwright {
namespace {

class TimerView : public QObject, public ControlView {
 public:
  explicit TimerView(Timer& timer) : timer_(timer) {
    connect(&clock_, &QTimer::timeout, this, [this] { timer_.Elapsed(); });
    timer_.AttachView(this);
    Changed(timer_, Aspect::kValue);
  }

  void Changed(const Control&, Aspect) override {
    if (!timer_.Enabled() || timer_.Interval() == 0) return clock_.stop();
    clock_.start(timer_.Interval());
  }

 private:
  Timer& timer_;
  QTimer clock_;
};

}  // namespace

std::unique_ptr<ControlView> MakeTimerView(Timer& timer) {
  return std::make_unique<TimerView>(timer);
}

}  // namespace tagwright
