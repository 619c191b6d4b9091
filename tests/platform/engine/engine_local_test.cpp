// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_local.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/memory_files.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {
namespace fs = std::filesystem;

PropertyList style(std::string name) {
  Dictionary record, direction;
  direction.set("Opt1", 2);
  direction.set("TD", Array{PropertyList("医学.TRet"), PropertyList("<&>")});
  record.set("Name", std::move(name));
  record.set("EJ", std::move(direction));
  return record;
}

std::string stampOf(const char* counter) { return std::string(counter) + " 2026-01-02T03:04:05Z"; }

class EngineLocalTest : public testing::Test {
 protected:
  std::string registered(EngineLocal& engine, const Array& records, std::string stamp = "") {
    std::vector<std::string> encoded;
    for (const PropertyList& record : records) appendValue(encoded.emplace_back(), record, 2);
    engine.sendRegistStyle({records, encoded}, stamp);
    return stamp;
  }
  // The set that an engine started anew hands over for a local stamp.
  std::optional<Array> newerThan(std::string stamp) {
    Array styles;
    const bool newer = EngineLocal(files, path).requestStyle(styles, stamp);
    return newer ? std::optional(styles) : std::nullopt;
  }
  void hold(PropertyList styles, PropertyList stamp) {
    Dictionary root;
    root.set("Style", std::move(styles));
    root.set("Stamp", std::move(stamp));
    folder.write(file, writePropertyList(root));
  }
  const std::string file = "Library/Application Support/Wordhaven/TarvoEngine.plist";
  test::TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
  const DiskPath path = folder.at(file);
  const Array two{style("標準"), style("特許")}, one{style("E-mail")};
};

TEST_F(EngineLocalTest, isAlwaysReachableAndHoldsNothingAtFirst) {
  EngineLocal engine(files, path);
  Array styles = one;
  std::string stamp = "mine";
  EXPECT_TRUE(engine.checkConnectionWithCurl());
  EXPECT_FALSE(engine.checkStyle());
  EXPECT_FALSE(engine.requestStyle(styles, stamp));
  EXPECT_EQ(styles, one);
  EXPECT_EQ(stamp, "mine");
  EXPECT_FALSE(folder.exists("Library")) << "asking makes no folder";
}

TEST_F(EngineLocalTest, aRegistrationStoresTheWholeSetForLaterRuns) {
  {
    EngineLocal engine(files, path);
    registered(engine, two);
  }
  EngineLocal again(files, path);
  EXPECT_TRUE(again.checkStyle());
  EXPECT_EQ(newerThan(""), two);
  registered(again, one);
  EXPECT_EQ(newerThan(""), one);
  registered(again, {});
  EXPECT_TRUE(again.checkStyle()) << "an empty set is a set";
  EXPECT_EQ(newerThan(""), Array{});
  EXPECT_EQ(folder.mode("Library/Application Support/Wordhaven"), 0777U);
}

TEST_F(EngineLocalTest, theFileIsWhatAWholeEncodingWouldGive) {
  EngineLocal engine(files, path);
  const std::string stamp = registered(engine, two);
  Dictionary root;
  root.set("Style", two);
  root.set("Stamp", stamp);
  EXPECT_EQ(folder.read(file), writePropertyList(root));
}

TEST_F(EngineLocalTest, stampsGrowByOneAndTellTheTime) {
  std::vector<std::string> stamps;
  for (int run = 0; run < 2; ++run) {
    EngineLocal engine(files, path);
    for (int i = 0; i < 6; ++i) stamps.push_back(registered(engine, one, "old"));
  }
  for (std::size_t i = 0; i < stamps.size(); ++i) {
    const std::string counter = std::to_string(i + 1);
    ASSERT_EQ(stamps[i].substr(0, 20), std::string(20 - counter.size(), '0') + counter);
    ASSERT_EQ(stamps[i].size(), 41U);
    ASSERT_EQ(stamps[i].find_first_not_of("0123456789-:TZ "), std::string::npos);
    EXPECT_GE(stamps[i].substr(21, 4), "2026");
  }
}

TEST_F(EngineLocalTest, aSetIsNewerWhenItsCounterIsGreater) {
  const struct {
    const char* held;
    const char* local;
    bool newer;
  } rows[] = {
      {"00000000000000000009", "00000000000000000010", false},
      {"00000000000000000010", "00000000000000000010", false},
      {"00000000000000000010", "00000000000000000009", true},
      {"00000000000000000001", "", true},
      {"18446744073709551615", "00000000000000000001", true},
      {"18446744073709551616", "", false},
      {"00000000000000000000", "", false},
      {"1", "", false},
  };
  for (const auto& row : rows) {
    hold(two, stampOf(row.held));
    const std::string local = *row.local == '\0' ? "" : stampOf(row.local);
    EXPECT_EQ(newerThan(local).has_value(), row.newer) << row.held << " | " << row.local;
  }
}

TEST_F(EngineLocalTest, foreignStampsCountAsNothing) {
  hold(two, stampOf("00000000000000000001"));
  for (const char* foreign :
       {"U1", "P9", "00000000000000000009", "00000000000000000009 ", "0000000000000000000x 2026-01-02T03:04:05Z",
        "00000000000000000009 2026-01-02T03:04:05", "00000000000000000009 2026-01-02 03:04:05Z",
        "-0000000000000000009 2026-01-02T03:04:05Z"}) {
    EXPECT_EQ(newerThan(foreign), two) << foreign;
    hold(one, foreign);
    EXPECT_EQ(newerThan(""), std::nullopt) << foreign;
    hold(two, stampOf("00000000000000000001"));
  }
  hold(two, 7);
  EXPECT_EQ(newerThan(""), std::nullopt);
}

TEST_F(EngineLocalTest, aNewerSetComesWithItsStamp) {
  hold(two, stampOf("00000000000000000005"));
  EngineLocal engine(files, path);
  Array styles = one;
  std::string stamp = stampOf("00000000000000000004");
  EXPECT_TRUE(engine.requestStyle(styles, stamp));
  EXPECT_EQ(styles, two);
  EXPECT_EQ(stamp, stampOf("00000000000000000005"));
  EXPECT_FALSE(engine.requestStyle(styles, stamp)) << "now they are equal";
}

TEST_F(EngineLocalTest, aSetWithADateThatOtherProgramsRefuseIsNotTaken) {
  Dictionary record;
  record.set("when", Date{"----"});
  hold(Array{record}, stampOf("00000000000000000009"));
  EngineLocal engine(files, path);
  Array styles;
  std::string stamp;
  EXPECT_FALSE(engine.requestStyle(styles, stamp));
  EXPECT_EQ(engine.couldRead().error().cause, Reason::damaged);
  EXPECT_EQ(stamp, "");
}

TEST_F(EngineLocalTest, registrationsDoNotReadTheOldFileAgain) {
  EngineLocal engine(files, path);
  registered(engine, one);
  folder.write(file, "changed behind the engine's back");
  EXPECT_EQ(registered(engine, two).substr(0, 20), "00000000000000000002");
  EXPECT_EQ(newerThan(""), two);
}

TEST_F(EngineLocalTest, aFileWithoutASetIsNone) {
  for (const PropertyList& styles : {PropertyList("text"), PropertyList(Dictionary{})}) {
    hold(styles, stampOf("00000000000000000005"));
    EXPECT_FALSE(EngineLocal(files, path).checkStyle());
    EXPECT_EQ(newerThan(""), std::nullopt);
  }
  EngineLocal engine(files, path);
  EXPECT_EQ(registered(engine, two).substr(0, 20), "00000000000000000006") << "its counter still counts";
}

TEST_F(EngineLocalTest, bytesThatCannotBeReadAreKept) {
  folder.write(file, "garbage");
  EngineLocal engine(files, path);
  EXPECT_FALSE(engine.checkStyle());
  EXPECT_EQ(registered(engine, two).substr(0, 20), "00000000000000000001");
  EXPECT_EQ(newerThan(""), two);
  EXPECT_EQ(folder.read(file + ".unreadable"), "garbage");
}

TEST_F(EngineLocalTest, aFailedWriteLeavesTheFileAndItsOldSetDoesNotCountAsNewer) {
  EngineLocal engine(files, path);
  registered(engine, one);
  fs::rename(folder / "Library", folder / "moved");
  folder.write("Library", "in the way");
  const std::string stamp = registered(engine, two, "mine");
  EXPECT_EQ(stamp.substr(0, 20), "00000000000000000002");
  fs::remove(folder / "Library");
  fs::rename(folder / "moved", folder / "Library");
  EXPECT_EQ(newerThan(""), one);
  EXPECT_EQ(newerThan(stamp), std::nullopt);
  EXPECT_EQ(registered(engine, two).substr(0, 20), "00000000000000000002");
}

TEST_F(EngineLocalTest, aSetThatCannotBeLookedAtDoesNotComeBackOverWhatItDidNotTake) {
  hold(two, stampOf("00000000000000000005"));
  test::MemoryFiles disk;
  disk.put(path.text(), folder.read(file));
  using Operation = test::MemoryFiles::Operation;
  for (const Operation operation : {Operation::read, Operation::keepUnreadable}) disk.refuse(operation, path.text());
  EngineLocal engine(disk, path);
  std::string stamp = registered(engine, one);
  EXPECT_FALSE(engine.didRegister());
  disk.allowAll();
  Array styles;
  EXPECT_FALSE(EngineLocal(disk, path).requestStyle(styles, stamp)) << "the old set would replace newer styles";
  EXPECT_TRUE(registered(engine, one).starts_with("00000000000000000006 ")) << "the file is read again";
  EXPECT_TRUE(engine.didRegister());
}

TEST_F(EngineLocalTest, afterTheLastCounterTheFirstOneFollows) {
  hold(two, stampOf("18446744073709551615"));
  EngineLocal engine(files, path);
  EXPECT_EQ(registered(engine, one).substr(0, 20), "00000000000000000001");
}

TEST_F(EngineLocalTest, aFileThatTheDiskDoesNotLetReadIsNotKnownToHoldNothing) {
  test::MemoryFiles disk;
  EngineLocal engine(disk, DiskPath("/engine.plist"));
  registered(engine, two);
  disk.refuse(test::MemoryFiles::Operation::read, "/engine.plist");
  EXPECT_TRUE(engine.checkStyle());
  Array styles;
  std::string stamp;
  EXPECT_FALSE(engine.requestStyle(styles, stamp));
  EXPECT_FALSE(engine.couldRead());
  disk.allowAll();
  disk.put("/engine.plist", "no set");
  EXPECT_FALSE(engine.checkStyle());
}

}  // namespace
}  // namespace tarvo
