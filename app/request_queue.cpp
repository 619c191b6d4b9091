// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/request_queue.h"

#include <utility>

#include "app/app_controller.h"
#include "app/style_file_opening.h"
#include "platform/services/run_loop.h"

namespace tarvo {

void RequestQueue::event(std::optional<std::string> bytes, RequestPlace place) {
  add([this, bytes = std::move(bytes)] { styles_.handleAppleEvent(bytes); }, std::move(place));
}

void RequestQueue::eventText(std::string code, RequestPlace place) {
  add([this, code = std::move(code)] { styles_.handleCallerCode(code); }, std::move(place));
}

void RequestQueue::openStyleFile(DiskPath path, RequestPlace place) {
  add([this, path = std::move(path)] { opening_.openStyleFile(path); }, std::move(place));
}

void RequestQueue::activate(RequestPlace place) {
  add(
      [this] {
        if (bringForward) bringForward();
      },
      std::move(place));
}

void RequestQueue::launchDidEnd() {
  launched_ = true;
  wake();
}

void RequestQueue::close() {
  closed_ = true;
  waiting_.clear();
}

void RequestQueue::add(std::function<void()> request, RequestPlace place) {
  if (closed_) return;
  waiting_.push_back({std::move(request), std::move(place)});
  wake();
}

void RequestQueue::wake() {
  if (!launched_ || handling_ || awake_ || waiting_.empty()) return;
  awake_ = true;
  runLoop_.post([this, alive = std::weak_ptr<bool>(alive_)] {
    if (!alive.expired()) handleNext();
  });
}

void RequestQueue::handleNext() {
  awake_ = false;
  if (waiting_.empty()) return;
  const std::function<void()> request = std::move(waiting_.front().request);
  waiting_.pop_front();
  handling_ = true;
  const std::weak_ptr<bool> alive = alive_;
  request();
  if (alive.expired()) return;  // the request ended the program
  handling_ = false;
  wake();
}

}  // namespace tarvo
