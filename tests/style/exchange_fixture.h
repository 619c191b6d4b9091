// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/plist/plist_writer.h"
#include "tests/style/exchange_world.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {

inline const std::string importFailed = "alert ImportPlistErrorHeader / ImportPlistErrorMessage";
inline const std::string exportFailed = "alert ExportPlistErrorHeader / ExportPlistErrorMessage";

class StyleExchangeTest : public testing::Test {
 protected:
  StyleExchangeTest() { world_.open(sampleRoot()); }
  bool import(const PropertyList& style, int index = 1, const std::string& title = "Alpha") {
    world_.files.put("/in.whstyle", writePropertyList(style));
    world_.log.clear();
    return world_.import("/in.whstyle", index, title);
  }
  void expectRefusal(const PropertyList& style, int index = 1) {
    EXPECT_FALSE(import(style, index));
    EXPECT_EQ(world_.log, Log{importFailed});
    EXPECT_EQ(world_.files.writes(), 0);
    EXPECT_EQ(world_.store.root(), sampleRoot());
  }
  Dictionary record(int index) { return *world_.store.getStyleAtIndex(index); }
  // Presses the button of the panel that is up.
  void save(const std::string& path) { world_.panels.endSavePanel(1, path); }

  ExchangeWorld world_;
};

}  // namespace tarvo::test
