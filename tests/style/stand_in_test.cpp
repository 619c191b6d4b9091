// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "platform/services/user_defaults.h"
#include "style/style_history.h"
#include "style/style_store.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"
#include "tests/support/sample_styles.h"

// Styles of the product in the place of the user's, which could not be read.
namespace tarvo::test {
namespace {

// One that leaves the set that it holds alone, as those of the product do.
class KeepingEngine : public FakeEngine {
 public:
  using FakeEngine::FakeEngine;
  void setStandIn(bool standsIn) override { keeps_ = standsIn && holds; }
  Result<> didRegister() const override {
    if (!keeps_) return {};
    return Failure{"service", Attempt::store, std::make_error_code(std::errc::file_exists)};
  }

 private:
  bool keeps_ = false;
};

class StandIn : public testing::Test {
 protected:
  StyleStore start() { return {files_, engine_, defaults_, DiskPath("/styles.plist"), DiskPath("/seed.plist")}; }
  static void beginWithTheSeed(StyleStore& store) {
    EXPECT_FALSE(store.readUserStyles());
    EXPECT_TRUE(store.readSeedStyles());
    store.beginStandIn();
    store.setAwakening(false);
  }
  static void edit(StyleStore& store) {
    Dictionary record = *store.getStyleAtIndex(0);
    record.set("Changed", true);
    store.setStyle(0, record);
  }
  StandIn() {
    files_.put("/styles.plist", "damaged");
    files_.put("/seed.plist", writePropertyList(sampleRoot()));
    engine_.online = engine_.holds = true;
  }
  Log log_;
  MemoryFiles files_;
  KeepingEngine engine_{log_};
  UserDefaults defaults_{files_, DiskPath("/defaults.plist")};
};

TEST_F(StandIn, isRememberedOverRunsOnceTheStylesAreInTheFile) {
  StyleStore store = start();
  beginWithTheSeed(store);
  defaults_.synchronize();
  EXPECT_EQ(UserDefaults(files_, DiskPath("/defaults.plist")).find("StylesStandIn"), nullptr);
  edit(store);
  EXPECT_TRUE(store.wasLeftAlone());
  const UserDefaults later(files_, DiskPath("/defaults.plist"));
  EXPECT_NE(later.find("StylesStandIn"), nullptr);
}

TEST_F(StandIn, endsWithASetThatTheUserBringsBack) {
  StyleStore store = start();
  beginWithTheSeed(store);
  restoreStyles(store, sampleRoot());
  EXPECT_FALSE(store.isStandIn()) << "also when nothing else changed";
  edit(store);
  EXPECT_TRUE(store.registration()->has_value());
}

TEST_F(StandIn, outlivesASingleStyleThatTheUserBringsBack) {
  StyleStore store = start();
  beginWithTheSeed(store);
  EXPECT_TRUE(restoreStyle(store, 1, sampleRoot(), ""));
  EXPECT_TRUE(store.isStandIn());
  EXPECT_TRUE(store.wasLeftAlone());
}

TEST_F(StandIn, endsWithTheSetOfTheService) {
  StyleStore store = start();
  beginWithTheSeed(store);
  engine_.isNewer = true;
  engine_.held = *sampleRoot().array("Style");
  EXPECT_EQ(store.reconcile(), StyleStore::Reconciled::replaced);
  EXPECT_FALSE(store.isStandIn());
}

TEST_F(StandIn, endsWhereTheServiceHeldNoSet) {
  StyleStore store = start();
  beginWithTheSeed(store);
  engine_.holds = false;
  edit(store);
  EXPECT_FALSE(store.isStandIn());
  EXPECT_FALSE(store.wasLeftAlone());
}

}  // namespace
}  // namespace tarvo::test
