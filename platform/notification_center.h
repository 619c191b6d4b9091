// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Notifications by name, delivered synchronously in the order of registration.
namespace tarvo {

struct Notification {
  std::string name;
  std::string object;  // who posted it ("style", "picker") or a text that it carries; see hasObject
  bool hasObject = false;
};

class NotificationCenter {
 public:
  using Observer = std::function<void(const Notification&)>;
  // owner: an address that removeObserver names; not used otherwise.
  void addObserver(const void* owner, std::string name, Observer observer);
  void removeObserver(const void* owner);
  void removeObserver(const void* owner, std::string_view name);
  void post(const std::string& name);
  void post(const std::string& name, std::string object);
  std::function<void(const Notification&)> onPost;  // told of every post before its observers

 private:
  struct Entry {
    const void* owner;
    std::string name;
    Observer observer;
  };
  void deliver(const Notification& notification);
  std::vector<Entry> entries_;
};

}  // namespace tarvo
