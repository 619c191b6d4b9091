// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
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

// A place among the requests that wait; it is free again when its last copy is gone.
using RequestPlace = std::shared_ptr<const void>;

// How many requests of other programs may wait to be handled.
// Duty: give out places, from any thread. Not: the requests. Copies count together.
class RequestPlaces {
 public:
  static constexpr int most = 64;

  // Null: all places are taken.
  RequestPlace take() {
    if (taken_->fetch_add(1) >= most) {
      taken_->fetch_sub(1);
      return nullptr;
    }
    return {this, [taken = taken_](const void*) { taken->fetch_sub(1); }};
  }

 private:
  std::shared_ptr<std::atomic<int>> taken_ = std::make_shared<std::atomic<int>>(0);
};

// Requests from outside the program, in the order in which they came.
// Duty: hold them until the launch has ended, then hand them over on the main loop, one at a time, also while a modal
// window is up; one that asks the user something ends before the next begins. None is dropped or joined with another.
// Not: receiving them. Every call returns at once. A place that a request comes with is free when it is handled.
class RequestQueue {
 public:
  // Not owned.
  RequestQueue(RunLoop& runLoop, AppController& styles, StyleFileOpening& opening)
      : runLoop_(runLoop), styles_(styles), opening_(opening) {}
  RequestQueue(const RequestQueue&) = delete;
  RequestQueue& operator=(const RequestQueue&) = delete;

  // The raw bytes of a caller's request; nothing for a request without a first item.
  void event(std::optional<std::string> bytes, RequestPlace place = nullptr);
  // A caller's code as text, UTF-8.
  void eventText(std::string code, RequestPlace place = nullptr);
  void openStyleFile(DiskPath path, RequestPlace place = nullptr);
  // The user wants to see the window.
  void activate(RequestPlace place = nullptr);
  std::function<void()> bringForward;  // the shell's: what activate() does

  // Of the requests that come from other programs.
  const RequestPlaces& places() const { return places_; }

  void launchDidEnd();
  void close();  // the program ends: what waits is dropped, and so is what comes

 private:
  struct Waiting {
    std::function<void()> request;
    RequestPlace place;
  };
  void add(std::function<void()> request, RequestPlace place);
  void wake();
  void handleNext();
  RunLoop& runLoop_;
  AppController& styles_;
  StyleFileOpening& opening_;
  std::deque<Waiting> waiting_;
  RequestPlaces places_;
  bool launched_ = false, closed_ = false, handling_ = false, awake_ = false;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);  // the loop may outlive the queue
};

}  // namespace tarvo
