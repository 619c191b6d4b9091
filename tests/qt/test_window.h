// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QEventLoop>
#include <QTimer>
#include <functional>
#include <optional>

#include "app/app_controller.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/plist_file.h"
#include "qt/bind/in_step.h"
#include "qt/shell.h"
#include "qt/window/main_window.h"
#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

// The whole program in its window, on a copy of the sample product.
class TestWindow {
 public:
  TestWindow() { outputOf(test::quoted(TARVO_SOURCE_DIR "/sample/install") + " " + test::quoted(root())); }
  ~TestWindow() { end(); }

  std::string root() const { return folder / "root"; }
  // Without the question about the style service, unless settings are on the disk or asksAboutTheService is set.
  void start(const std::string& language = "en") {
    product.emplace(ProductOptions{.root = root(),
                                   .home = root() + "/Users/taro",
                                   .language = language,
                                   .resources = TARVO_SOURCE_DIR "/resources",
                                   .engine = engine});
    if (!asksAboutTheService && !folder.exists(settings)) {
      Dictionary answered;
      answered.set("ConnectServer", true);
      folder.write(settings, writePropertyList(answered));
    }
    shell.emplace(*product, *qApp, [] { return std::vector<ProductPath>(); });
    if (prepare) prepare();
    started = shell->start();
    settle();
  }
  void end() {
    if (shell) shell->program().quit();
    shell.reset();
    product.reset();
  }
  // Lets events and the window's settling pass.
  static void settle(int milliseconds = 20) {
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
  }

  MainWindow& window() { return *shell->windows().mainWindow(); }
  Interface& interface() { return shell->program().interface(); }
  template <class W>
  W& widget(std::string_view name) {
    return *shell->registry().find<W>(name);
  }
  std::string inStep() { return outOfStep(shell->registry()); }
  Dictionary defaults() {
    return PlistFile(product->files(), userDefaultsPath(product->locations())).read().value_or(Dictionary());
  }

  static constexpr const char* settings =
      "root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist";  // in the folder
  TemporaryFolder folder;
  std::optional<Product> product;
  std::optional<Shell> shell;
  std::function<void()> prepare;      // called before the start, when the shell is there
  std::optional<std::string> engine;  // what the command line says of the style service
  bool started = false, asksAboutTheService = false;
};

}  // namespace tarvo::test
