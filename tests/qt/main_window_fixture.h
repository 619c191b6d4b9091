// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "tests/qt/test_window.h"

namespace tarvo::test {

struct MainWindowTest : testing::Test, TestWindow {
  MainWindowTest() { qputenv("TARVO_NO_ANIMATION", "1"); }
  Window& core() { return interface().manager.myWindow; }
  QPoint corner() { return window().frameGeometry().topLeft(); }
  void settleFrame() { settle(700); }  // until the decorations are known
  QWidget& pane() { return widget<QWidget>("manager.myTabView"); }
};

}  // namespace tarvo::test
