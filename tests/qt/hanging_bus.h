// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <atomic>
#include <thread>

namespace tarvo::test {

// What calls itself a session bus and never answers a call: silent from the beginning, or after it has let a caller in
// by the words of D-Bus's authentication.
class HangingBus {
 public:
  explicit HangingBus(bool letsIn);
  ~HangingBus();
  HangingBus(const HangingBus&) = delete;
  HangingBus& operator=(const HangingBus&) = delete;
  QByteArray address() const { return "unix:abstract=" + name_; }
  bool wasAsked() const { return wasAsked_; }

 private:
  void serve(bool letsIn);
  QByteArray name_;
  int listener_ = -1;
  std::atomic<bool> wasAsked_ = false, isEnding_ = false;
  std::thread thread_;
};

}  // namespace tarvo::test
