// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/services/user_defaults.h"
#include "style/style_store.h"
#include "tests/support/fake_shell.h"
#include "tests/support/sample_styles.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

class StyleStoreTest : public testing::Test {
 protected:
  StyleStoreTest()
      : locations_("/", folder_.path()), files_(locations_), defaults_(files_, folder_.at("defaults.plist")) {}
  StyleStore makeStore() { return {files_, engine_, defaults_, folder_.at("styles.plist"), folder_.at("seed.plist")}; }
  StyleStore storeOf(const Dictionary& root) {
    folder_.write("styles.plist", writePropertyList(root));
    StyleStore store = makeStore();
    EXPECT_TRUE(store.readUserStyles());
    store.setCurrentID("MG");
    return store;
  }
  Dictionary onDisk() const {
    const auto read = readPropertyList(folder_.read("styles.plist"));
    return read && read->dictionary() != nullptr ? *read->dictionary() : Dictionary();
  }

  TemporaryFolder folder_;
  Log log_;
  Locations locations_;
  PosixFiles files_;
  FakeEngine engine_{log_};
  UserDefaults defaults_;
};

}  // namespace tarvo::test
