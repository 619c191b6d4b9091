// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/text/paths.h"

namespace tarvo {

class AppController;
class RunLoop;
class StyleFileOpening;

// Requests from outside the program, in the order in which they came.
// Duty: hold them until the launch has ended, then hand them over on the main loop, one at a time, also while a modal
// window is up; one that asks the user something ends before the next begins. Not: receiving them. Every call returns
// at once.
class RequestQueue {
 public:
  // Not owned.
  RequestQueue(RunLoop& runLoop, AppController& styles, StyleFileOpening& opening)
      : runLoop_(runLoop), styles_(styles), opening_(opening) {}
  RequestQueue(const RequestQueue&) = delete;
  RequestQueue& operator=(const RequestQueue&) = delete;

  // The raw bytes of a caller's request; nothing for a request without a first item.
  void event(std::optional<std::string> bytes);
  // A caller's code as text, UTF-8.
  void eventText(std::string code);
  void openStyleFile(DiskPath path);
  // The user wants to see the window.
  void activate();
  std::function<void()> bringForward;  // the shell's: what activate() does

  void launchDidEnd();
  void close();  // the program ends: what waits is dropped, and so is what comes

 private:
  void add(std::function<void()> request);
  void wake();
  void handleNext();
  RunLoop& runLoop_;
  AppController& styles_;
  StyleFileOpening& opening_;
  std::deque<std::function<void()>> waiting_;
  bool launched_ = false, closed_ = false, handling_ = false, awake_ = false;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);  // the loop may outlive the queue
};

}  // namespace tarvo
