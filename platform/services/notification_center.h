// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// Notifications by name, delivered synchronously in the order of registration. Observers may post, register and remove
// (also themselves) while one is delivered: who is removed hears no more of it, who is added hears the next one.
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
    bool removed = false;
  };
  void deliver(const Notification& notification);
  template <class Matches>
  void removeWhere(Matches matches);
  std::vector<std::shared_ptr<Entry>> entries_;  // shared with deliveries under way
};

}  // namespace tarvo
