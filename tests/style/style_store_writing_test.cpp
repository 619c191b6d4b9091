// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_store.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/plist/plist_writer.h"
#include "tests/style/style_store_fixture.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

TEST_F(StyleStoreTest, registersNothingDuringStartUp) {
  engine_.online = true;
  StyleStore store = storeOf(sampleRoot());
  store.setSelection(1);
  EXPECT_TRUE(log_.empty());
}

TEST_F(StyleStoreTest, registersAllStylesAfterEachWriteAndKeepsTheStamp) {
  engine_.online = true;
  StyleStore store = storeOf(sampleRoot());
  store.setAwakening(false);
  store.setSelection(1);
  EXPECT_EQ(log_, (Log{"reachable", "register 4"}));
  EXPECT_EQ(engine_.registered, *store.getAllStyle());
  EXPECT_EQ(*defaults_.string("LastUpdate"), "U1");
}

TEST_F(StyleStoreTest, leavesTheStampAloneWhenTheEngineIsAway) {
  defaults_.set("LastUpdate", "U0");
  StyleStore store = storeOf(sampleRoot());
  store.setAwakening(false);
  store.setSelection(1);
  EXPECT_EQ(log_, Log{"unreachable"});
  EXPECT_EQ(*defaults_.string("LastUpdate"), "U0");
}

TEST_F(StyleStoreTest, neverRegistersAFileWithoutStyles) {
  engine_.online = true;
  StyleStore store = storeOf({});
  store.setAwakening(false);
  store.setSelection(0);
  EXPECT_EQ(log_, Log{"reachable"});
  EXPECT_EQ(defaults_.find("LastUpdate"), nullptr);
}

TEST_F(StyleStoreTest, registersAnEmptyListAsItIs) {
  engine_.online = true;
  Dictionary root;
  root.set("Style", Array{});
  StyleStore store = storeOf(root);
  store.setAwakening(false);
  store.setSelection(0);
  EXPECT_EQ(log_, (Log{"reachable", "register 0"}));
}

// An engine that can be reached but gives no stamp.
struct StamplessEngine : FakeEngine {
  using FakeEngine::FakeEngine;
  void sendRegistStyle(const StyleSet&, std::string& updateString) override { EXPECT_EQ(updateString, ""); }
};

TEST_F(StyleStoreTest, keepsAnEmptyStampToo) {
  StamplessEngine engine(log_);
  engine.online = true;
  defaults_.set("LastUpdate", "U0");
  StyleStore store(files_, engine, defaults_, folder_.at("styles.plist"), folder_.at("seed.plist"));
  store.replaceStyles(*sampleRoot().array("Style"));
  store.setAwakening(false);
  store.setSelection(1);
  ASSERT_NE(defaults_.string("LastUpdate"), nullptr);
  EXPECT_EQ(*defaults_.string("LastUpdate"), "");
}

TEST_F(StyleStoreTest, asksTheEngineEvenAfterAFailedWriteAndWritesEverythingLater) {
  StyleStore store = storeOf(sampleRoot());
  store.setAwakening(false);
  ASSERT_TRUE(files_.remove(folder_.at("styles.plist")));
  folder_.makeFolder("styles.plist/in the way");
  Dictionary record = *store.getStyleAtIndex(0);
  record.dictionary("EJ")->set("Opt1", 2);
  store.setStyle(0, record);
  EXPECT_FALSE(store.isSaved());
  EXPECT_EQ(store.unsaved()->cause, std::errc::is_a_directory);
  EXPECT_EQ(log_, Log{"unreachable"});
  ASSERT_TRUE(files_.remove(folder_.at("styles.plist")));
  record.dictionary("EJ")->set("Opt2", 2);
  store.setStyle(0, record);
  EXPECT_TRUE(store.isSaved());
  const Dictionary* ej = onDisk().array("Style")->at(0).dictionary()->dictionary("EJ");
  EXPECT_EQ(onDisk(), store.root());
  EXPECT_NE(ej, nullptr);
}

TEST_F(StyleStoreTest, readsTheBinaryFormAndWritesTheReadableOne) {
  // A dictionary {"Extra": "keep"} in the binary form.
  const std::string binary = std::string(
                                 "bplist00\xD1\x01\x02"
                                 "UExtraTkeep\x08\x0B\x11",
                                 25) +
                             std::string(6, '\0') + std::string("\x01\x01", 2) + std::string(7, '\0') + "\x03" +
                             std::string(8, '\0') + std::string(7, '\0') + "\x16";
  folder_.write("styles.plist", binary);
  StyleStore store = makeStore();
  ASSERT_TRUE(store.readUserStyles());
  EXPECT_EQ(*store.root().string("Extra"), "keep");
  store.writeTarvoStylePlist();
  EXPECT_EQ(folder_.read("styles.plist").substr(0, 5), "<?xml");
}

TEST_F(StyleStoreTest, keepsTheBytesThatItCouldNotReadBesideTheNewFile) {
  folder_.write("styles.plist", "not a property list");
  folder_.write("seed.plist", writePropertyList(sampleRoot()));
  StyleStore store = makeStore();
  EXPECT_FALSE(store.readUserStyles());
  EXPECT_EQ(store.unread()->cause, Reason::noPropertyList);
  EXPECT_TRUE(store.readSeedStyles());
  store.writeTarvoStylePlist();
  EXPECT_EQ(onDisk(), sampleRoot());
  EXPECT_EQ(folder_.read("styles.plist.unreadable"), "not a property list");
}

// A disk whose folders cannot be synced for a while.
class UnsyncedFiles : public PosixFiles {
 public:
  using PosixFiles::PosixFiles;
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override {
    Result<Replaced> replaced = PosixFiles::replace(path, bytes, keeping);
    if (replaced && fails) replaced->unsynced = Failure{path.text(), Attempt::write, Reason::damaged};
    return replaced;
  }
  bool fails = false;
};

TEST_F(StyleStoreTest, tellsOfAnotherProgramsStylesAlsoWhenTheWriteThatReplacedThemWasNotSynced) {
  folder_.write("styles.plist", writePropertyList(sampleRoot()));
  UnsyncedFiles files(locations_);
  EarlierStyles earlier(files, folder_.at("Earlier"));
  StyleStore store(files, engine_, defaults_, folder_.at("styles.plist"), folder_.at("seed.plist"), &earlier);
  ASSERT_TRUE(store.readUserStyles());
  const auto writeElsewhere = [this](int value) {
    Dictionary theirs = sampleRoot();
    theirs.set("Elsewhere", value);
    folder_.write("styles.plist", writePropertyList(theirs));
  };
  writeElsewhere(1);
  files.fails = true;
  Dictionary record = *store.getStyleAtIndex(0);
  record.set("k", 1);
  store.setStyle(0, record);
  EXPECT_FALSE(store.isSaved());
  ASSERT_TRUE(store.foreign());
  EXPECT_EQ(store.foreign()->number, 1);
  EXPECT_EQ(store.foreign()->base, sampleRoot());
  EXPECT_EQ(store.lastStored(), store.root()) << "it stands there, synced or not";
  files.fails = false;
  record.set("k", 2);
  store.setStyle(0, record);
  EXPECT_TRUE(store.isSaved());
  EXPECT_EQ(store.foreign()->number, 1);
  writeElsewhere(2);
  store.writeTarvoStylePlist();
  EXPECT_EQ(store.foreign()->number, 2);
}

TEST_F(StyleStoreTest, joinsTheSameBytesAsAWholeEncodingAfterAnyEdits) {
  StyleStore store = storeOf(sampleRoot());
  std::mt19937 random(20260321);
  for (int edit = 0; edit < 300; ++edit) {
    const int index = static_cast<int>(random() % 4);
    Dictionary record = *store.getStyleAtIndex(index);
    record.set("k" + std::to_string(random() % 3), static_cast<int>(random() % 100));
    switch (random() % 4) {
      case 0: store.setSelection(index); break;
      case 1: store.replaceStyles(*store.getAllStyle()); break;
      default: store.setStyle(index, std::move(record));
    }
    if (random() % 4 != 1) store.writeTarvoStylePlist();
    store.writeTarvoStylePlist();
    ASSERT_EQ(folder_.read("styles.plist"), writePropertyList(store.root())) << edit;
  }
}

TEST_F(StyleStoreTest, handsTheEngineEachRecordAsItStandsInTheFile) {
  engine_.online = true;
  StyleStore store = storeOf(sampleRoot());
  store.setAwakening(false);
  store.setSelection(1);
  const std::string file = folder_.read("styles.plist");
  ASSERT_EQ(engine_.encoded.size(), 4U);
  for (const std::string& record : engine_.encoded) EXPECT_NE(file.find(record), std::string::npos);
}

}  // namespace
}  // namespace tarvo::test
