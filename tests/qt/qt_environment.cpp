// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "qt/look/tarvo_style.h"

// One application object for all tests of this program, without a display and in the look of the product.
namespace {

class QtEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    qunsetenv("TARVO_SCHEME");
    qunsetenv("TARVO_FONT_SCALE");
    qunsetenv("QT_SCALE_FACTOR");
    application_ = std::make_unique<QApplication>(count_, arguments_);
    tarvo::applyLook(tarvo::Scheme::light, "en");
  }
  void TearDown() override { application_.reset(); }

 private:
  char name_[8] = "test_qt", option_[10] = "-platform", platform_[10] = "offscreen";
  char* arguments_[4] = {name_, option_, platform_, nullptr};
  int count_ = 3;
  std::unique_ptr<QApplication> application_;
};

[[maybe_unused]] testing::Environment* const environment = testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace
