// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/text/paths.h"

namespace tarvo {

class AppController;
class ConnectionCheck;
class Interface;
class Panels;
class TManagerController;
class Texts;
class Windows;

// A style file that came from outside: opened in the file manager, dropped on the window, named on the command line.
// Duty: ask before a style is replaced, and only where the file can replace one. Not: checking the file.
class StyleFileOpening {
 public:
  // Who works together here. Not owned.
  struct Collaborators {
    Interface& interface;
    AppController& styles;
    TManagerController& manager;
    Panels& panels;
    const ConnectionCheck& connection;
    Windows& windows;
    const Texts& texts;
  };
  explicit StyleFileOpening(const Collaborators& with) : with_(with) {}
  // Brings the style pane forward, reads and checks the file, and asks whether the chosen style is to be replaced by
  // what was read; a file that is no style is told as by the import command, without a question.
  // While another question or window waits for the user there is only a beep; a file that comes upon the launch's own
  // question is kept for afterwards.
  void openStyleFile(const DiskPath& path);
  // The file that was kept last, once.
  std::optional<DiskPath> takeKept();

 private:
  bool mayReplace(const DiskPath& path);
  Collaborators with_;
  std::optional<DiskPath> kept_;
};

}  // namespace tarvo
