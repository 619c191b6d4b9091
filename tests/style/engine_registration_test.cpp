// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/engine_registration.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/user_defaults.h"
#include "style/style_store.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

Array twoStyles() {
  Dictionary first, second;
  first.set("Name", "One");
  second.set("Name", "Two");
  return {first, second};
}

constexpr StyleStore::Reconciled kept = StyleStore::Reconciled::kept;

class EngineRegistrationTest : public testing::Test {
 protected:
  StyleStore storeOf(const Dictionary& root) {
    files_.put("/styles.plist", writePropertyList(root));
    StyleStore store(files_, engine_, defaults_, DiskPath("/styles.plist"), DiskPath("/seed.plist"));
    EXPECT_TRUE(store.readUserStyles());
    store.setCurrentID("MG");
    store.setAwakening(false);
    return store;
  }
  const std::string* stamp() const { return defaults_.string("LastUpdate"); }

  Log log_;
  MemoryFiles files_;
  FakeEngine engine_{log_};
  UserDefaults defaults_{files_, DiskPath("/defaults.plist")};
};

TEST_F(EngineRegistrationTest, sendsEveryRecordAndNothingBeside) {
  engine_.online = true;
  defaults_.set("LastUpdate", "U0");
  StyleStore store = storeOf(sampleRoot());
  store.setSelection(1);
  EXPECT_EQ(PropertyList(engine_.registered), PropertyList(*sampleRoot().array("Style")));
  EXPECT_EQ(engine_.stampsHandedIn, std::vector<std::string>{""}) << "never the former stamp";
  EXPECT_EQ(*stamp(), "U1");
}

TEST_F(EngineRegistrationTest, sendsAllChangesOnceTheEngineIsBack) {
  StyleStore store = storeOf(sampleRoot());
  for (const int index : {0, 1, 3}) {
    Dictionary record = *store.getStyleAtIndex(index);
    record.set("Changed", true);
    store.setStyle(index, record);
  }
  EXPECT_EQ(log_, (Log{"unreachable", "unreachable", "unreachable"}));
  EXPECT_EQ(stamp(), nullptr);
  engine_.online = true;
  store.setSelection(3);
  for (const std::size_t index : {0U, 1U, 3U}) {
    EXPECT_TRUE(engine_.registered[index].dictionary()->contains("Changed"));
  }
}

TEST_F(EngineRegistrationTest, handsOverASetOfItsOwnMoment) {
  engine_.online = true;
  StyleStore store = storeOf(sampleRoot());
  store.setSelection(1);
  const Array first = engine_.registered;
  Dictionary record = *store.getStyleAtIndex(1);
  record.dictionary("EJ")->set("Opt1", 2);
  store.setStyle(1, record);
  EXPECT_EQ(first[1].dictionary()->dictionary("EJ")->integerValue("Opt1"), 1);
  EXPECT_EQ(engine_.registered[1].dictionary()->dictionary("EJ")->integerValue("Opt1"), 2);
}

TEST_F(EngineRegistrationTest, storesAStampThatTheEngineLeftEmpty) {
  engine_.online = true;
  engine_.answersStamp = false;
  defaults_.set("LastUpdate", "U0");
  storeOf(sampleRoot()).setSelection(0);
  ASSERT_NE(stamp(), nullptr);
  EXPECT_EQ(*stamp(), "");
}

TEST_F(EngineRegistrationTest, registersAlsoWhenTheFileCouldNotBeWritten) {
  engine_.online = true;
  StyleStore store = storeOf(sampleRoot());
  files_.refuse(MemoryFiles::Operation::write, "/styles.plist");
  store.setSelection(1);
  EXPECT_EQ(log_, (Log{"reachable", "register 4"}));
}

TEST_F(EngineRegistrationTest, neverSendsAFileWithoutStyles) {
  engine_.online = true;
  defaults_.set("LastUpdate", "U0");
  StyleStore store = storeOf({});
  store.setSelection(0);
  EXPECT_EQ(log_, Log{"reachable"});
  log_.clear();
  EXPECT_EQ(store.reconcile(), kept);
  EXPECT_EQ(log_, Log{"holds none"});
  EXPECT_EQ(*stamp(), "U0");
  Dictionary odd;
  odd.set("Style", "no array");
  StyleStore other = storeOf(odd);
  other.setSelection(0);
  EXPECT_EQ(other.reconcile(), kept);
  EXPECT_EQ(*stamp(), "U0");
}

TEST_F(EngineRegistrationTest, sendsAnEmptySet) {
  engine_.online = true;
  Dictionary root;
  root.set("Style", Array{});
  storeOf(root).setSelection(0);
  EXPECT_EQ(log_, (Log{"reachable", "register 0"}));
}

TEST_F(EngineRegistrationTest, givesAnEmptyEngineTheStylesWithoutAskingWhetherItCanBeReached) {
  for (const char* former : {"", "U0"}) {
    log_.clear();
    if (*former != '\0') defaults_.set("LastUpdate", former);
    StyleStore store = storeOf(sampleRoot());
    const int writes = files_.writes();
    EXPECT_EQ(store.reconcile(), kept);
    EXPECT_EQ(log_, (Log{"holds none", "register 4"}));
    EXPECT_EQ(files_.writes() - writes, 1) << "the settings alone";
    ASSERT_EQ(engine_.encoded.size(), 4U);
    std::string record;
    appendValue(record, sampleRoot().array("Style")->at(3), 2);
    EXPECT_EQ(engine_.encoded[3], record) << "encoded although nothing was written yet";
  }
}

TEST_F(EngineRegistrationTest, asksWithTheStampOfTheLastExchange) {
  engine_.holds = true;
  engine_.held = twoStyles();
  engine_.heldStamp = "P9";
  StyleStore store = storeOf(sampleRoot());
  EXPECT_EQ(store.reconcile(), kept);
  defaults_.set("LastUpdate", "");
  EXPECT_EQ(store.reconcile(), kept);
  defaults_.set("LastUpdate", "U0");
  EXPECT_EQ(store.reconcile(), kept);
  defaults_.set("LastUpdate", 7);
  EXPECT_EQ(store.reconcile(), kept);
  EXPECT_EQ(log_, (Log{"holds", "request \"\"", "holds", "request \"\"", "holds", "request \"U0\"", "holds",
                       "request \"\""}));
  EXPECT_EQ(*defaults_.find("LastUpdate"), PropertyList(7));
  EXPECT_EQ(store.root(), sampleRoot()) << "what came with a \"no\" counts for nothing";
}

TEST_F(EngineRegistrationTest, takesANewerSetWholeAndLeavesTheRest) {
  engine_.holds = engine_.isNewer = true;
  engine_.held = twoStyles();
  engine_.heldStamp = "P9";
  StyleStore store = storeOf(sampleRoot());
  EXPECT_EQ(store.reconcile(), StyleStore::Reconciled::replaced);
  Dictionary expected = sampleRoot();
  expected.set("Style", twoStyles());
  EXPECT_EQ(store.root(), expected);
  EXPECT_EQ(*stamp(), "P9");
  EXPECT_EQ(readPropertyList(files_.bytes("/styles.plist")), PropertyList(sampleRoot())) << "written by nobody yet";
  store.setSelection(0);
  EXPECT_EQ(readPropertyList(files_.bytes("/styles.plist")), PropertyList(store.root()));
}

TEST_F(EngineRegistrationTest, neverTakesWhatIsNoSetOfStyles) {
  PropertyList deep = true;
  for (int level = 1; level < plistMaximumDepth - 2; ++level) deep = Array{deep};
  Dictionary tooDeep;
  tooDeep.set("Name", "Deep");
  tooDeep.set("Lists", deep);
  const std::vector<Array> answers{{"text"}, {Dictionary(), Array{}}, {Dictionary(), 1}, {Dictionary(), tooDeep}};
  engine_.holds = engine_.isNewer = true;
  engine_.heldStamp = "P9";
  for (const Array& answer : answers) {
    engine_.held = answer;
    defaults_.set("LastUpdate", "U0");
    StyleStore store = storeOf(sampleRoot());
    const auto taken = store.reconcile();
    ASSERT_FALSE(taken);
    EXPECT_EQ(taken.error(), (Failure{"", Attempt::fetch, Reason::damaged}));
    EXPECT_EQ(store.root(), sampleRoot());
    EXPECT_EQ(*stamp(), "U0");
  }
}

}  // namespace
}  // namespace tarvo::test
