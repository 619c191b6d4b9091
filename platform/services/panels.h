// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/text/paths.h"

namespace tarvo {

class Window;

struct Alert {
  std::string title, message;
  std::vector<std::string> buttons;  // the first is the default
  std::string details;               // more than the message says, for who asks; may be empty
  int cancelButton = -1;             // the one that Escape presses; -1: the last
};
struct OpenPanel {
  std::string title;
  std::vector<std::string> types;  // extensions, compared ignoring case; empty: any
  bool foldersOnly = false;
};
struct SavePanel {
  std::string title, requiredType;
  DiskPath folder;
  std::string name;
};

// Alerts, file panels and the beep. What begins as a sheet returns at once; its handler is told once. The host has no
// other sheet: who opens one has asked Covers.
class Panels {
 public:
  virtual ~Panels() = default;
  virtual void beep() = 0;
  // A line for whoever wants to know why nothing happened; it asks for no answer. A shell prints it on standard error;
  // the program shows it in the window besides.
  virtual void tell(const std::string& text) = 0;
  virtual int runAlertPanel(const Alert&) = 0;  // blocks; index of the button
  virtual void beginAlertSheet(Window& host, const Alert&, std::function<void(int button)>) = 0;
  virtual std::optional<DiskPath> runOpenPanel(const OpenPanel&) = 0;  // blocks; nothing: cancelled
  virtual void beginSavePanel(Window& host, const SavePanel&, std::function<void(int code, const DiskPath& path)>) = 0;
};

}  // namespace tarvo
