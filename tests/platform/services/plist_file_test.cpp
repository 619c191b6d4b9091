// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/plist_file.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "tests/support/memory_files.h"

namespace tarvo {
namespace {

using test::MemoryFiles;
using Operation = MemoryFiles::Operation;

const std::string path = "/家/My Styles.plist";
const std::string kept = path + ".unreadable";

Dictionary sample(int number) {
  Dictionary dictionary;
  dictionary.set("number", number);
  return dictionary;
}

TEST(PlistFile, readsWhatItWrote) {
  MemoryFiles files;
  files.makeFolder("/家");
  PlistFile file(files, path);
  EXPECT_EQ(file.read(), std::nullopt);
  EXPECT_TRUE(file.write(sample(1)));
  EXPECT_EQ(file.read(), sample(1));
  EXPECT_EQ(files.bytes(path), writePropertyList(sample(1)));
  EXPECT_EQ(files.paths(), (std::vector<std::string>{"/家", path}));
}

TEST(PlistFile, keepsBytesThatItCouldNotReadBeforeTheFirstReplacement) {
  for (const std::string& bytes : {std::string("garbage"), std::string(), writePropertyList(Array{})}) {
    MemoryFiles files;
    files.put(path, bytes);
    PlistFile file(files, path);
    EXPECT_EQ(file.read(), std::nullopt);
    EXPECT_FALSE(files.exists(kept));
    EXPECT_TRUE(file.write(sample(1)));
    EXPECT_EQ(files.bytes(kept), bytes);
    EXPECT_TRUE(file.write(sample(2)));
    EXPECT_EQ(file.read(), sample(2));
    EXPECT_TRUE(file.write(sample(3)));
    EXPECT_FALSE(files.exists(kept + ".2"));
  }
}

TEST(PlistFile, keepsAFileThatRefusesToBeRead) {
  MemoryFiles files;
  files.put(path, writePropertyList(sample(1)));
  files.refuse(Operation::read);
  PlistFile file(files, path);
  EXPECT_EQ(file.read(), std::nullopt);
  EXPECT_TRUE(file.write(sample(2)));
  EXPECT_EQ(files.bytes(kept), writePropertyList(sample(1)));
}

TEST(PlistFile, writesNothingWhenTheBytesCannotBeKeptAndTriesAgain) {
  MemoryFiles files;
  files.put(path, "garbage");
  files.refuse(Operation::keepUnreadable);
  PlistFile file(files, path);
  EXPECT_EQ(file.read(), std::nullopt);
  EXPECT_FALSE(file.write(sample(1)));
  EXPECT_FALSE(file.write(sample(1)));
  EXPECT_EQ(files.bytes(path), "garbage");
  files.allowAll();
  EXPECT_TRUE(file.write(sample(2)));
  EXPECT_EQ(files.bytes(kept), "garbage");
  EXPECT_EQ(file.read(), sample(2));
}

TEST(PlistFile, writesThatFailDoNotHeapUpKeptCopies) {
  MemoryFiles files;
  files.put(path, "garbage");
  files.refuse(Operation::write);
  PlistFile file(files, path);
  EXPECT_EQ(file.read(), std::nullopt);
  EXPECT_FALSE(file.write(sample(1)));
  EXPECT_FALSE(file.write(sample(1)));
  EXPECT_EQ(files.bytes(path), "garbage");
  files.allowAll();
  EXPECT_TRUE(file.write(sample(1)));
  EXPECT_EQ(files.paths(), (std::vector<std::string>{"/家", path, kept}));
}

TEST(PlistFile, keepsNothingOfAFileThatIsGoneOrNoFile) {
  MemoryFiles files;
  files.put(path, "garbage");
  PlistFile file(files, path);
  EXPECT_EQ(file.read(), std::nullopt);
  files.remove(path);
  EXPECT_TRUE(file.write(sample(1)));
  EXPECT_FALSE(files.exists(kept));

  files.remove(path);
  files.putOther(path);
  EXPECT_EQ(file.read(), std::nullopt);
  EXPECT_FALSE(file.write(sample(1)));
  EXPECT_FALSE(files.exists(kept));
}

TEST(PlistFile, aFileThatWasNeverReadIsReplacedAsItIs) {
  MemoryFiles files;
  files.put(path, "an older set");
  PlistFile file(files, path);
  EXPECT_TRUE(file.write("new bytes"));
  EXPECT_EQ(files.bytes(path), "new bytes");
  EXPECT_FALSE(files.exists(kept));
}

}  // namespace
}  // namespace tarvo
