// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/covers.h"

#include <algorithm>
#include <utility>

#include "platform/controls/windows.h"
#include "platform/services/run_loop.h"

namespace tarvo {

bool Covers::hasSheet(const Window& host) const {
  return std::any_of(sheets_.begin(), sheets_.end(), [&host](const Sheet& sheet) { return sheet.host == &host; });
}

bool Covers::isFree(const Window& host) const {
  const auto waitsForHost = [&host](const Waiting& waiting) { return waiting.host == &host; };
  return !hasSheet(host) && std::none_of(waiting_.begin(), waiting_.end(), waitsForHost);
}

Window* Covers::modalWindow() const {
  const auto innermost = std::find_if(modal_.rbegin(), modal_.rend(), [](const Window* run) { return run != nullptr; });
  return innermost != modal_.rend() ? *innermost : nullptr;
}

void Covers::whenFree(Window& host, std::function<void()> operation) {
  if (closed_) return;
  if (isFree(host)) return operation();
  waiting_.push_back({&host, host.shownPage(), std::move(operation)});
}

void Covers::close() {
  closed_ = true;
  waiting_.clear();
}

void Covers::endSheet(const Window& host, const Window* window, const std::function<void()>& handler) {
  const auto ended = std::find_if(sheets_.begin(), sheets_.end(),
                                  [&](const Sheet& sheet) { return sheet.host == &host && sheet.window == window; });
  if (ended == sheets_.end()) return;
  sheets_.erase(ended);
  const std::weak_ptr<bool> alive = alive_;
  handler();
  if (!alive.expired()) wake();
}

void Covers::wake() {
  if (awake_ || waiting_.empty()) return;
  awake_ = true;
  runLoop_.post([this, alive = std::weak_ptr<bool>(alive_)] {
    if (!alive.expired()) serve();
  });
}

void Covers::serve() {
  awake_ = false;
  if (std::exchange(serving_, true)) return;  // an operation asks the user something: the others follow when it ends
  const std::weak_ptr<bool> alive = alive_;
  while (true) {
    const auto next = std::find_if(waiting_.begin(), waiting_.end(),
                                   [this](const Waiting& waiting) { return !hasSheet(*waiting.host); });
    if (next == waiting_.end()) break;
    const Waiting turn = std::move(*next);
    waiting_.erase(next);
    if (turn.host->isShown() && turn.host->shownPage() == turn.page) turn.operation();
    if (alive.expired()) return;
  }
  serving_ = false;
}

}  // namespace tarvo
