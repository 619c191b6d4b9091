// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/notification_center.h"

#include <utility>

namespace tarvo {

void NotificationCenter::addObserver(const void* owner, std::string name, Observer observer) {
  entries_.push_back(std::make_shared<Entry>(Entry{owner, std::move(name), std::move(observer)}));
}

template <class Matches>
void NotificationCenter::removeWhere(Matches matches) {
  std::erase_if(entries_, [&](const std::shared_ptr<Entry>& entry) { return entry->removed = matches(*entry); });
}

void NotificationCenter::removeObserver(const void* owner) {
  removeWhere([owner](const Entry& entry) { return entry.owner == owner; });
}

void NotificationCenter::removeObserver(const void* owner, std::string_view name) {
  removeWhere([owner, name](const Entry& entry) { return entry.owner == owner && entry.name == name; });
}

void NotificationCenter::post(const std::string& name) { deliver({name, {}, false}); }

void NotificationCenter::post(const std::string& name, std::string object) { deliver({name, std::move(object), true}); }

void NotificationCenter::deliver(const Notification& notification) {
  if (onPost) onPost(notification);
  const auto present = entries_;
  for (const auto& entry : present) {
    if (!entry->removed && entry->name == notification.name) entry->observer(notification);
  }
}

}  // namespace tarvo
