// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>

namespace tarvo {

// The time that all requests of one operation share, on the clock that nobody sets.
class Deadline {
 public:
  using Milliseconds = std::chrono::milliseconds;

  explicit Deadline(Milliseconds limit) : end_(Clock::now() + limit) {}
  Milliseconds left() const {
    return std::max(Milliseconds(0), std::chrono::duration_cast<Milliseconds>(end_ - Clock::now()));
  }
  bool isOver() const { return left().count() == 0; }

 private:
  using Clock = std::chrono::steady_clock;
  Clock::time_point end_;
};

}  // namespace tarvo
