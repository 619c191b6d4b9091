// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "tests/dict/picker_world.h"

namespace tarvo::test {

class NewDictionaryTest : public testing::Test {
 protected:
  NewDictionaryTest() {
    world_.openWithLists({"t.TRet"}, {"u.TRet"});
    world_.userLists.setUp();
    world_.takeLog();
  }
  void create(int tag, const std::string& name) {
    world_.newDictionary.newUD(tag);
    world_.sheet.NewDicNameField.userType(name);
    world_.takeLog();
    world_.newDictionary.newDicOKButtonAction();
  }
  bool isThere(const std::string& path) const { return world_.files.isThere(DiskPath(path)); }
  PickerWorld world_;
};

}  // namespace tarvo::test
