// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>

#include "dict/dict_controller.h"
#include "style/direction.h"

// Whether technical dictionaries of a direction have their files, at one moment.
// Duty: look for each name once, however many styles it stands in. Not: following what changes meanwhile. Only reads.
namespace tarvo {

class DictionaryPresence {
 public:
  DictionaryPresence(const DictController::Services& services, Direction direction);
  bool isKnown() const { return !list_.unread(); }  // else the folder cannot be read, and nobody knows
  bool has(const std::string& fileName);            // letter case aside

 private:
  DictController list_;
  std::map<std::string, bool> known_;  // by folded names
};

}  // namespace tarvo
