// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <string_view>

class QObject;

// Which control is shown by which object of the window.
// Duty: name to widget (an action for menu items), for the in-step check, the tour and the tests. Not: owning either. A
// control that no built page shows is not in it.
namespace tarvo {

class Control;

class Registry {
 public:
  struct Entry {
    const Control* control;
    QObject* shown;
  };
  void enter(const Control& control, QObject& shown);
  void leave(const Control& control, const QObject& shown);

  // Null for a control that is not shown. W: the widget's class, null for another one.
  QObject* find(std::string_view name) const;
  template <class W>
  W* find(std::string_view name) const {
    return dynamic_cast<W*>(find(name));
  }
  const std::map<std::string, Entry, std::less<>>& entries() const { return entries_; }  // by name

 private:
  std::map<std::string, Entry, std::less<>> entries_;
};

}  // namespace tarvo
