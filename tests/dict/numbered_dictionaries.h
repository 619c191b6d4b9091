// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "tests/dict/dictionary_world.h"

namespace tarvo::test {

inline Names numbered(int count, const char* extension = ".TRet") {
  Names names;
  for (int i = 0; i < count; ++i) names.push_back((i < 10 ? "d0" : "d") + std::to_string(i) + extension);
  return names;
}

inline void putAll(const DictionaryWorld& world, const Names& names) {
  for (const std::string& name : names) world.put({name.c_str()});
}

inline DictController loaded(DictionaryWorld& world, const Names& names) {
  DictController controller = world.list();
  controller.updateDictionary(names);
  return controller;
}

}  // namespace tarvo::test
