// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "tests/dict/picker_world.h"

namespace tarvo::test {

inline Names technicalNames(int count) {
  Names names;
  for (int i = 0; i < count; ++i) names.push_back(std::string(1, static_cast<char>('a' + i)) + ".TRet");
  return names;
}

// The picker is open on further dictionaries while the test's lines run.
struct LoadingWorld : PickerWorld {
  LoadingWorld(const Names& loaded, std::initializer_list<const char*> further) {
    openWithLists(loaded, {});
    put(further);
  }
  void withPicker(const std::function<void()>& lines, int direction = 0) {
    host.whileModal = [&](Window&) {
      lines();
      if (picker.myWindow.isShown()) loading.dicWindowCancel();
    };
    loading.loadTD(direction);
  }
};

}  // namespace tarvo::test
