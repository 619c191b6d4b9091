// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace tarvo {

using Times = std::vector<double>;

template <class Work>
double milliseconds(Work&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double median(Times times) {
  std::sort(times.begin(), times.end());
  return times.at(times.size() / 2);
}

}  // namespace tarvo
