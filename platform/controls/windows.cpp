// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/windows.h"

#include <algorithm>
#include <utility>

namespace tarvo {

void Window::setTitle(std::string title) {
  title_ = std::move(title);
  changed(Change::look);
}

void Window::setFrame(const Rect& frame) {
  if (setFrameInPlace(frame) && didMove) didMove();
}

bool Window::setFrameInPlace(const Rect& frame) {
  const bool moved = frame.x != frame_.x || frame.y != frame_.y;
  frame_ = frame;
  changed(Change::value);
  return moved;
}

void Window::userMove(float x, float y) { setFrame({x, y, frame_.width, frame_.height}); }

void Window::userClose() {
  if (close) close();
}

void Windows::tell(Event event, Window& window, int code) {
  if (observer) observer(event, window, code);
}

void Windows::orderFront(Window& window) {
  window.shown_ = true;
  host_.show(window);
  tell(Event::shown, window);
}

void Windows::orderOut(Window& window) {
  if (!std::exchange(window.shown_, false)) return;
  host_.hide(window);
  tell(Event::hidden, window);
}

void Windows::setFrame(Window& window, const Rect& frame) {
  const bool moved = window.setFrameInPlace(frame);
  host_.applyFrame(window, true);
  tell(Event::framed, window);
  if (moved && window.didMove) window.didMove();
}

void Windows::beginSheet(Window& sheet, Window& host, EndHandler handler) {
  if (sheetOver(host) != nullptr) return;
  sheets_.push_back({&sheet, &host, std::move(handler)});
  sheet.shown_ = true;
  host_.show(sheet);
  tell(Event::sheet, sheet);
}

void Windows::endSheet(Window& sheet, int returnCode) {
  const auto entry =
      std::find_if(sheets_.begin(), sheets_.end(), [&](const Sheet& candidate) { return candidate.window == &sheet; });
  if (entry == sheets_.end()) return;
  const EndHandler handler = std::move(entry->handler);
  sheet.shown_ = false;
  host_.hide(sheet);
  sheets_.erase(entry);
  tell(Event::sheetEnded, sheet, returnCode);
  if (handler) handler(returnCode);
}

int Windows::runModalForWindow(Window& window) {
  modal_.push_back({&window, 0});
  window.shown_ = true;
  tell(Event::modal, window);
  host_.runModal(window);
  const int code = modal_.back().code;
  modal_.pop_back();
  tell(Event::modalEnded, window, code);
  return code;
}

void Windows::stopModal(int code) {
  if (modal_.empty()) return;
  modal_.back().code = code;
  host_.stopModal(*modal_.back().window);
}

Window* Windows::hostOf(const Window& sheet) const {
  for (const Sheet& entry : sheets_) {
    if (entry.window == &sheet) return entry.host;
  }
  return nullptr;
}

Window* Windows::sheetOver(const Window& host) const {
  for (const Sheet& entry : sheets_) {
    if (entry.host == &host) return entry.window;
  }
  return nullptr;
}

bool Windows::isReachable(const Control& control) const {
  if (!control.isEnabled() || control.isHidden()) return false;
  const Window* modal = modalWindow();
  if (control.kind() == Control::Kind::menu) {
    return modal == nullptr && static_cast<const MenuItem&>(control).isValid();
  }
  const Window* window = control.window();
  if (window == nullptr || !window->isShown() || !control.isOnShownPage()) return false;
  if (sheetOver(*window) != nullptr) return false;
  const Window* host = hostOf(*window);
  return modal == nullptr || window == modal || host == modal;
}

}  // namespace tarvo
