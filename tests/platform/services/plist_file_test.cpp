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
  ASSERT_TRUE(files.makeFolder(DiskPath("/家")));
  PlistFile file(files, DiskPath(path));
  EXPECT_FALSE(file.read());
  EXPECT_TRUE(file.write(sample(1)));
  EXPECT_EQ(file.read(), sample(1));
  EXPECT_EQ(files.bytes(path), writePropertyList(sample(1)));
  EXPECT_EQ(files.paths(), (std::vector<std::string>{"/家", path}));
}

TEST(PlistFile, keepsBytesThatItCouldNotReadBeforeTheFirstReplacement) {
  for (const std::string& bytes : {std::string("garbage"), std::string(), writePropertyList(Array{})}) {
    MemoryFiles files;
    files.put(path, bytes);
    PlistFile file(files, DiskPath(path));
    EXPECT_FALSE(file.read());
    EXPECT_FALSE(files.isThere(DiskPath(kept)));
    EXPECT_TRUE(file.write(sample(1)));
    EXPECT_EQ(files.bytes(kept), bytes);
    EXPECT_TRUE(file.write(sample(2)));
    EXPECT_EQ(file.read(), sample(2));
    EXPECT_TRUE(file.write(sample(3)));
    EXPECT_FALSE(files.isThere(DiskPath(kept + ".2")));
  }
}

TEST(PlistFile, keepsAFileThatRefusesToBeRead) {
  MemoryFiles files;
  files.put(path, writePropertyList(sample(1)));
  files.refuse(Operation::read);
  PlistFile file(files, DiskPath(path));
  EXPECT_FALSE(file.read());
  EXPECT_TRUE(file.write(sample(2)));
  EXPECT_EQ(files.bytes(kept), writePropertyList(sample(1)));
}

TEST(PlistFile, takesNoListThatIsTooLargeAndKeepsItBesideLikeADamagedOne) {
  const std::string large = writePropertyList(sample(1)) + std::string(largestListFile, ' ');
  MemoryFiles files;
  files.put(path, large);
  PlistFile file(files, DiskPath(path));
  EXPECT_EQ(file.read().error(), (Failure{path, Attempt::read, Reason::overLimit}));
  EXPECT_TRUE(file.write(sample(2)));
  EXPECT_EQ(files.bytes(kept).size(), large.size());
  files.put(path, large.substr(0, largestListFile));
  EXPECT_EQ(file.read(), sample(1)) << "that much is taken";
}

TEST(PlistFile, takesNoListThatGrewTooLargeWhileItWasLookedAt) {
  MemoryFiles files;
  files.put(path, std::string(largestListFile + 1, ' '));
  files.refuse(Operation::look);
  EXPECT_EQ(readDictionary(files, DiskPath(path)).error().cause, Reason::overLimit);
}

TEST(PlistFile, saysWhyItCouldNotBeRead) {
  const struct {
    const char* bytes;
    std::error_code cause;
    std::size_t line = 0, column = 0;
  } rows[] = {{"garbage", Reason::noPropertyList},
              {"<plist>\n<dict><key>", Reason::noPropertyList, 2, 12},
              {"bplist00", Reason::noPropertyList},
              {"<plist version=\"1.0\"><array/></plist>", Reason::noDictionary}};
  for (const auto& row : rows) {
    MemoryFiles files;
    files.put(path, row.bytes);
    EXPECT_EQ(PlistFile(files, DiskPath(path)).read().error(),
              (Failure{path, Attempt::read, row.cause, row.line, row.column}));
  }
  MemoryFiles files;
  EXPECT_TRUE(isAbsence(PlistFile(files, DiskPath(path)).read().error()));
  files.put(path, "");
  files.refuse(Operation::read, path, std::errc::too_many_files_open);
  const Failure failure = PlistFile(files, DiskPath(path)).read().error();
  EXPECT_EQ(failure.cause, std::errc::too_many_files_open);
  EXPECT_FALSE(isAbsence(failure));
}

TEST(PlistFile, neverReplacesAFileThatCannotBeLookedAtWithoutAKeptCopy) {
  MemoryFiles files;
  files.put(path, writePropertyList(sample(1)));
  files.refuse(Operation::read);
  files.refuse(Operation::look);
  files.refuse(Operation::keepUnreadable);
  PlistFile file(files, DiskPath(path));
  EXPECT_FALSE(file.read());
  EXPECT_EQ(file.write(sample(2)).error().attempt, Attempt::keep);
  EXPECT_EQ(files.bytes(path), writePropertyList(sample(1)));
  files.allowAll();
  EXPECT_TRUE(file.write(sample(2)));
  EXPECT_EQ(files.bytes(kept), writePropertyList(sample(1)));
}

TEST(PlistFile, writesNothingWhenTheBytesCannotBeKeptAndTriesAgain) {
  MemoryFiles files;
  files.put(path, "garbage");
  files.refuse(Operation::keepUnreadable);
  PlistFile file(files, DiskPath(path));
  EXPECT_FALSE(file.read());
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
  PlistFile file(files, DiskPath(path));
  EXPECT_FALSE(file.read());
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
  PlistFile file(files, DiskPath(path));
  EXPECT_FALSE(file.read());
  ASSERT_TRUE(files.remove(DiskPath(path)));
  EXPECT_TRUE(file.write(sample(1)));
  EXPECT_FALSE(files.isThere(DiskPath(kept)));

  ASSERT_TRUE(files.remove(DiskPath(path)));
  files.putOther(path);
  EXPECT_FALSE(file.read());
  EXPECT_FALSE(file.write(sample(1)));
  EXPECT_FALSE(files.isThere(DiskPath(kept)));
}

TEST(PlistFile, aFileThatWasNeverReadIsReplacedAsItIs) {
  MemoryFiles files;
  files.put(path, "an older set");
  PlistFile file(files, DiskPath(path));
  EXPECT_TRUE(file.write("new bytes"));
  EXPECT_EQ(files.bytes(path), "new bytes");
  EXPECT_FALSE(files.isThere(DiskPath(kept)));
}

}  // namespace
}  // namespace tarvo
