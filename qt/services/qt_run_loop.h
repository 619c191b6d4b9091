// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <map>

#include "platform/services/run_loop.h"

class QTimer;

namespace tarvo {

// The toolkit's event loop. Needs the application object. Calls that have not run when it dies never run.
class QtRunLoop : public RunLoop {
 public:
  void post(std::function<void()> call) override;
  Timer after(double seconds, std::function<void()> call) override;
  void cancel(Timer timer) override;

 private:
  QObject context_;
  std::map<Timer, QTimer*> timers_;  // the ones that still run; owned by context_
  Timer last_ = 0;
};

}  // namespace tarvo
