// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <system_error>
#include <thread>

// Reading that does not take a fault of an instant for the state of the disk.
namespace tarvo {

// Whether a moment later it may work after all: a fault of the disk or its server, too many open files, no memory, a
// permission that is on its way.
bool mayPass(const std::error_code& cause);

// What read (answering a Result) says; asked up to three times within 200 ms where the cause may pass. Blocks as long.
template <typename Read>
auto readPatiently(Read read) {
  constexpr int triesMore = 2;
  constexpr std::chrono::milliseconds betweenTries{80};
  auto found = read();
  for (int again = 0; again < triesMore && !found && mayPass(found.error().cause); ++again) {
    std::this_thread::sleep_for(betweenTries);
    found = read();
  }
  return found;
}

}  // namespace tarvo
