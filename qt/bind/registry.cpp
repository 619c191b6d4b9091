// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/registry.h"

#include <QObject>

#include "platform/controls/controls.h"

namespace tarvo {

void Registry::enter(const Control& control, QObject& shown) { entries_[control.name()] = {&control, &shown}; }

void Registry::leave(const Control& control, const QObject& shown) {
  const auto entry = entries_.find(control.name());
  if (entry != entries_.end() && entry->second.shown == &shown) entries_.erase(entry);
}

QObject* Registry::find(std::string_view name) const {
  const auto entry = entries_.find(name);
  return entry == entries_.end() ? nullptr : entry->second.shown;
}

}  // namespace tarvo
