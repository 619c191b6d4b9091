// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/windows.h"

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

bool Windows::beginSheet(Window& sheet, Window& host, EndHandler handler) {
  if (covers_.hasSheet(host)) return false;
  covers_.beginSheet(host, &sheet);
  handlers_[&sheet] = std::move(handler);
  sheet.shown_ = true;
  host_.show(sheet);
  tell(Event::sheet, sheet);
  return true;
}

void Windows::endSheet(Window& sheet, int returnCode) {
  const Window* host = hostOf(sheet);
  if (host == nullptr) return;
  const EndHandler handler = std::move(handlers_.extract(&sheet).mapped());
  sheet.shown_ = false;
  host_.hide(sheet);
  covers_.endSheet(*host, &sheet, [&] {
    tell(Event::sheetEnded, sheet, returnCode);
    if (handler) handler(returnCode);
  });
}

int Windows::runModalForWindow(Window& window) {
  returnCodes_.push_back(0);
  window.shown_ = true;
  {
    const Covers::ModalRun run(covers_, &window);
    tell(Event::modal, window);
    host_.runModal(window);
  }
  const int code = returnCodes_.back();
  returnCodes_.pop_back();
  tell(Event::modalEnded, window, code);
  return code;
}

void Windows::stopModal(int code) {
  if (returnCodes_.empty()) return;
  returnCodes_.back() = code;
  host_.stopModal(*modalWindow());
}

Window* Windows::hostOf(const Window& sheet) const {
  for (const Covers::Sheet& entry : covers_.sheets()) {
    if (entry.window == &sheet) return entry.host;
  }
  return nullptr;
}

Window* Windows::sheetOver(const Window& host) const {
  for (const Covers::Sheet& entry : covers_.sheets()) {
    if (entry.host == &host) return entry.window;
  }
  return nullptr;
}

bool Windows::isReachable(const Control& control) const {
  if (!control.isEnabled() || (control.isHidden() && control.isLaidOut())) return false;
  const Window* modal = modalWindow();
  if (control.kind() == Control::Kind::menu) {
    return modal == nullptr && static_cast<const MenuItem&>(control).isValid();
  }
  const Window* window = control.window();
  if (window == nullptr || !window->isShown() || !control.isOnShownPage()) return false;
  if (covers_.hasSheet(*window)) return false;
  const Window* host = hostOf(*window);
  return modal == nullptr || window == modal || host == modal;
}

}  // namespace tarvo
