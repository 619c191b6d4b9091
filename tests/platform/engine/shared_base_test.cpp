// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/shared_base.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/encoded_styles.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

using test::EncodedStyles;

class BaseFileTest : public testing::Test {
 protected:
  BaseFile file(const std::string& address = "https://example/taro.plist") { return {files, path, address}; }
  static EncodedSet set(const std::string& name) { return EncodedSet(EncodedStyles({name}).records); }
  static SetStamp stamp(std::uint64_t revision) { return {revision, std::string(64, 'a')}; }
  static std::string nameOf(const std::optional<SharedBase>& base) {
    return base ? *base->set.styles[0].dictionary()->string("Name") : "none";
  }
  const test::TemporaryFolder folder;
  const Locations locations{"/", folder.path()};
  PosixFiles files{locations};
  const DiskPath path = folder.at("家 library/shared");
};

TEST_F(BaseFileTest, holdsWhatWasKeptLastAlsoInTheNextRun) {
  EXPECT_EQ(nameOf(file().holding(stamp(3))), "none");
  {
    BaseFile base = file();
    ASSERT_TRUE(base.keep({stamp(3), set("a")}));
    ASSERT_TRUE(base.keep({stamp(4), set("特許 & <b>")}));
  }
  const std::optional<SharedBase> held = file().holding(stamp(9));
  ASSERT_TRUE(held);
  EXPECT_EQ(nameOf(held), "特許 & <b>");
  EXPECT_EQ(held->shown, stamp(4));
  EXPECT_EQ(held->set.hash(), set("特許 & <b>").hash());
}

TEST_F(BaseFileTest, whatIsPromisedHoldsOnlyWhenItIsShown) {
  BaseFile base = file();
  ASSERT_TRUE(base.promise({stamp(3), set("first")}));
  EXPECT_EQ(nameOf(base.holding(stamp(2))), "none");
  EXPECT_EQ(nameOf(file().holding(stamp(3))), "first");
  ASSERT_TRUE(base.keep({stamp(3), set("first")}));
  ASSERT_TRUE(base.promise({stamp(4), set("second")}));
  ASSERT_TRUE(base.promise({stamp(5), set("third")}));
  EXPECT_EQ(nameOf(file().holding(stamp(5))), "third");
  EXPECT_EQ(nameOf(file().holding(stamp(4))), "second");
  EXPECT_EQ(nameOf(file().holding(stamp(3))), "first");
  EXPECT_EQ(nameOf(file().holding(stamp(9))), "first") << "nobody knows what became of the others";
}

TEST_F(BaseFileTest, whatWasPromisedSinceIsKnownUntilSomethingIsKept) {
  BaseFile base = file();
  ASSERT_TRUE(base.keep({stamp(3), set("first")}));
  ASSERT_TRUE(base.promise({stamp(4), set("second")}));
  ASSERT_TRUE(base.promise({stamp(5), set("third")}));
  const auto since = [this](std::uint64_t revision) {
    std::string names;
    for (const Array& styles : file().promisedSince(stamp(revision))) {
      names += *styles[0].dictionary()->string("Name") + " ";
    }
    return names;
  };
  EXPECT_EQ(since(9), "second third ");
  EXPECT_EQ(since(4), "third ");
  EXPECT_EQ(since(5), "");
  ASSERT_TRUE(base.keep({stamp(6), set("fourth")}));
  EXPECT_EQ(since(9), "");
  for (int i = 0; i < 20; ++i) ASSERT_TRUE(base.promise({stamp(10), set("p" + std::to_string(i))}));
  EXPECT_EQ(since(9), "p12 p13 p14 p15 p16 p17 p18 p19 ") << "each is a whole set";
  EXPECT_EQ(nameOf(file().holding(stamp(9))), "fourth");
}

TEST_F(BaseFileTest, onlyItsUserReadsIt) {
  ASSERT_TRUE(file().keep({stamp(3), set("a")}));
  struct stat status{};
  ASSERT_EQ(::stat(path.text().c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, 0600U);
}

TEST_F(BaseFileTest, ofAnotherAddressIsNone) {
  ASSERT_TRUE(file().keep({stamp(3), set("a")}));
  EXPECT_EQ(nameOf(file("https://example/hanako.plist").holding(stamp(3))), "none");
  EXPECT_EQ(nameOf(file().holding(stamp(3))), "a");
}

TEST_F(BaseFileTest, damagedAnywhereIsNone) {
  ASSERT_TRUE(file().keep({stamp(3), set("a")}));
  const std::string whole = *files.read(path);
  for (std::size_t size = 0; size < whole.size(); size += 7) {
    ASSERT_TRUE(files.write(path, whole.substr(0, size)));
    EXPECT_EQ(nameOf(file().holding(stamp(3))), "none") << size;
  }
  for (std::size_t place = 0; place < whole.size(); ++place) {
    std::string bytes = whole;
    bytes[place] = static_cast<char>(bytes[place] ^ 1);
    ASSERT_TRUE(files.write(path, bytes));
    const std::optional<SharedBase> held = file().holding(stamp(3));
    // A stamp that reads as another one is that of a set which the service never showed.
    EXPECT_TRUE(!held || held->shown != stamp(3) || nameOf(held) == "a") << place;
  }
  ASSERT_TRUE(files.write(path, whole + "x"));
  EXPECT_EQ(nameOf(file().holding(stamp(3))), "none");
}

TEST_F(BaseFileTest, withoutAPathItIsKeptForThisRun) {
  BaseFile base(files, {}, "https://example/taro.plist");
  EXPECT_TRUE(base.keep({stamp(3), set("a")}));
  EXPECT_EQ(nameOf(base.holding(stamp(3))), "a");
}

TEST_F(BaseFileTest, whatTheDiskRefusesIsKeptForThisRun) {
  ASSERT_TRUE(files.makeFolder(path));
  BaseFile base = file();
  EXPECT_FALSE(base.keep({stamp(3), set("a")}));
  EXPECT_EQ(nameOf(base.holding(stamp(3))), "a");
}

}  // namespace
}  // namespace tarvo
