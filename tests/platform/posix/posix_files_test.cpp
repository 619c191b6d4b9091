// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/posix_files.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/services/locations.h"
#include "platform/text/text_rules.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {
namespace fs = std::filesystem;

using Names = std::vector<std::string>;

// The folder is the product's root; paths below are the core's spelling.
class PosixFilesTest : public testing::Test {
 protected:
  test::TemporaryFolder folder;
  Locations locations{folder.path(), folder / "Users/taro"};
  PosixFiles files{locations};
};

TEST_F(PosixFilesTest, everyPathGoesBelowTheRoot) {
  EXPECT_TRUE(files.makeFolder("/Library/Application Support"));
  EXPECT_TRUE(files.write("/Library/a.txt", "x"));
  EXPECT_EQ(folder.read("Library/a.txt"), "x");
  EXPECT_EQ(files.read("/Library/a.txt"), "x");
  EXPECT_EQ(files.read(folder / "Library/a.txt"), "x") << "a real path below the root stays";
  EXPECT_TRUE(files.copy("/Library", "/Copy"));
  EXPECT_EQ(files.list("/Copy"), (Names{"Application Support", "a.txt"}));
  EXPECT_TRUE(files.keepUnreadable("/Copy/a.txt"));
  EXPECT_EQ(folder.read("Copy/a.txt.unreadable"), "x");
  EXPECT_TRUE(files.removeEmptyFolder("/Copy/Application Support/"));
  EXPECT_TRUE(files.remove("/Copy"));
  EXPECT_EQ(folder.names(), Names{"Library"});
}

TEST_F(PosixFilesTest, aPathThatIsNotAbsoluteNamesNothing) {
  folder.write("a", "x");
  const test::TemporaryFolder before;
  fs::current_path(folder.path());
  for (const std::string& path : {std::string("a"), std::string(""), std::string("./a"), std::string("/a\0b", 4)}) {
    EXPECT_EQ(files.kind(path), FileService::Kind::absent);
    EXPECT_FALSE(files.read(path));
    EXPECT_FALSE(files.write(path, "y"));
    EXPECT_FALSE(files.keepUnreadable(path));
    EXPECT_FALSE(files.list(path));
    EXPECT_FALSE(files.makeFolder(path));
    EXPECT_FALSE(files.copy(path, "/b"));
    EXPECT_FALSE(files.copy("/a", path));
    EXPECT_FALSE(files.remove(path));
    EXPECT_FALSE(files.removeEmptyFolder(path));
    EXPECT_FALSE(files.typeCode(path));
    EXPECT_FALSE(files.setCodes(path, 1, 2));
  }
  fs::current_path("/");
  EXPECT_EQ(folder.names(), Names{"a"});
  EXPECT_EQ(folder.read("a"), "x");
}

TEST_F(PosixFilesTest, kindFollowsLinks) {
  folder.write("file", "");
  folder.makeFolder("folder");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
  const struct {
    const char *target, *link;
    FileService::Kind kind;
  } rows[] = {
      {"file", "to file", FileService::Kind::file},
      {"folder", "to folder", FileService::Kind::folder},
      {"pipe", "to pipe", FileService::Kind::other},
      {"missing", "dangling", FileService::Kind::absent},
  };
  for (const auto& row : rows) {
    fs::create_symlink(row.target, folder / row.link);
    EXPECT_EQ(files.kind("/" + std::string(row.target)), row.kind) << row.target;
    EXPECT_EQ(files.kind("/" + std::string(row.link)), row.kind) << row.link;
    EXPECT_EQ(files.isThere("/" + std::string(row.link)), row.kind != FileService::Kind::absent);
    EXPECT_EQ(files.isAbsent("/" + std::string(row.link)), row.kind == FileService::Kind::absent);
    EXPECT_EQ(files.ownKind("/" + std::string(row.link)), FileService::Kind::link);
  }
  EXPECT_EQ(files.kind("/folder///"), FileService::Kind::folder);
}

TEST_F(PosixFilesTest, whatCannotBeLookedAtIsNeitherThereNorAbsent) {
  folder.write("file", "");
  fs::create_symlink("loop", folder / "loop");
  const struct {
    std::string path;
    std::errc cause;
  } rows[] = {{"/loop", std::errc::too_many_symbolic_link_levels},
              {"/" + std::string(300, 'x'), std::errc::filename_too_long}};
  for (const auto& row : rows) {
    const Result<FileService::Kind> kind = files.kind(row.path);
    ASSERT_FALSE(kind) << row.path;
    EXPECT_EQ(kind.error(), (Failure{folder.path() + row.path, Attempt::look, std::make_error_code(row.cause)}));
    EXPECT_FALSE(files.isThere(row.path));
    EXPECT_FALSE(files.isAbsent(row.path));
  }
  EXPECT_EQ(files.kind("/missing"), FileService::Kind::absent);
  EXPECT_EQ(files.kind("/file/below"), FileService::Kind::absent);
  EXPECT_TRUE(existsIgnoringCase(files, "/loop")) << "nothing may be made over it";
}

TEST_F(PosixFilesTest, failuresSayPathAttemptAndCause) {
  folder.write("file", "x");
  const std::string file = folder / "file";
  const auto cause = [](std::errc error) { return std::make_error_code(error); };
  EXPECT_EQ(files.read("/none").error(),
            (Failure{folder / "none", Attempt::read, cause(std::errc::no_such_file_or_directory)}));
  EXPECT_EQ(files.read("/").error(), (Failure{folder.path(), Attempt::read, Reason::noRegularFile}));
  EXPECT_EQ(files.list("/file").error(), (Failure{file, Attempt::list, cause(std::errc::not_a_directory)}));
  EXPECT_EQ(files.copy("/file", "/file").error(), (Failure{file, Attempt::create, cause(std::errc::file_exists)}));
  EXPECT_EQ(files.write("/none/file", "").error(),
            (Failure{folder / "none", Attempt::write, cause(std::errc::no_such_file_or_directory)}));
  EXPECT_EQ(files.makeFolder("/file/a/b").error(),
            (Failure{file, Attempt::makeFolder, cause(std::errc::not_a_directory)}));
  EXPECT_EQ(files.remove("/none").error(),
            (Failure{folder / "none", Attempt::remove, cause(std::errc::no_such_file_or_directory)}));
  EXPECT_EQ(files.remove("/").error(), (Failure{folder.path(), Attempt::remove, Reason::wholeProduct}));
  EXPECT_EQ(files.removeEmptyFolder("/file").error(),
            (Failure{file, Attempt::remove, cause(std::errc::not_a_directory)}));
  EXPECT_EQ(files.read("file").error(), (Failure{"file", Attempt::read, Reason::noPath}));
}

TEST_F(PosixFilesTest, onlyRegularFilesAreReadAndNoneBlocks) {
  folder.write("empty", "");
  folder.makeFolder("folder");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
  fs::create_symlink("/dev/zero", folder / "device");
  EXPECT_EQ(files.read("/empty"), "");
  for (const char* path : {"/folder", "/pipe", "/device", "/missing", "/empty/x"}) {
    EXPECT_FALSE(files.read(path)) << path;
  }
}

TEST_F(PosixFilesTest, aFileBeyondAllMeasureIsNotRead) {
  folder.write("sparse", "");
  fs::resize_file(folder / "sparse", std::uintmax_t{1} << 40);
  EXPECT_FALSE(files.read("/sparse"));
}

TEST_F(PosixFilesTest, aFolderIsListedAscendingByBytesWithHiddenNames) {
  for (const char* name : {"b", "B", "a", ".h", "é", "あ", "a\nb", "10", "9"}) folder.write(name, "");
  EXPECT_EQ(files.list("/"), (Names{".h", "10", "9", "B", "a", "a\nb", "b", "é", "あ"}));
  EXPECT_FALSE(files.list("/b"));
  EXPECT_FALSE(files.list("/missing"));
}

TEST_F(PosixFilesTest, theWholeProductIsNeverRemoved) {
  folder.write("a", "x");
  EXPECT_FALSE(files.remove("/"));
  EXPECT_FALSE(files.remove("//"));
  EXPECT_FALSE(files.remove(folder.path() + "/"));
  EXPECT_EQ(folder.read("a"), "x");
}

TEST_F(PosixFilesTest, onlyAnEmptyFolderGoesWithoutItsContent) {
  folder.write("folder/a", "x");
  folder.makeFolder("empty");
  EXPECT_FALSE(files.removeEmptyFolder("/folder"));
  EXPECT_FALSE(files.removeEmptyFolder("/folder/a"));
  EXPECT_TRUE(files.removeEmptyFolder("/empty"));
  EXPECT_EQ(folder.read("folder/a"), "x");
}

TEST_F(PosixFilesTest, codesGoWithCopiesAndStayWithReplacedFiles) {
  const std::string place = test::placeForAttributes();
  if (place.empty()) GTEST_SKIP() << "this disk keeps no extended attributes";
  const test::TemporaryFolder root(place);
  const Locations there(root.path(), root.path());
  PosixFiles disk(there);
  root.write("template", "x");
  EXPECT_TRUE(disk.setCodes("/template", fourCharCode("TReu"), fourCharCode("    ")));
  EXPECT_TRUE(disk.copy("/template", "/copy"));
  EXPECT_TRUE(disk.write("/template", "y"));
  EXPECT_EQ(disk.typeCode("/copy"), fourCharCode("TReu"));
  EXPECT_EQ(disk.typeCode("/template"), fourCharCode("TReu"));
}

TEST_F(PosixFilesTest, namesExistIgnoringCaseInTheirLastComponent) {
  folder.write("Dic/Medical.TRet", "");
  folder.write("Dic/医学Ａ.jud", "");
  fs::create_symlink("nowhere", folder / "Dic/Gone.TRet");
  const struct {
    const char* path;
    bool exists;
  } rows[] = {
      {"/Dic/Medical.TRet", true}, {"/Dic/mEDICAL.tret", true}, {"/dic/Medical.TRet", false},
      {"/Dic/医学ａ.JUD", true},   {"/Dic/医学A.jud", false},   {"/Dic/gone.tret", false},
      {"/Dic/Medical", false},     {"Dic/Medical.TRet", false}, {"", false},
      {"/missing/x", false},
  };
  for (const auto& row : rows) EXPECT_EQ(existsIgnoringCase(files, row.path), row.exists) << row.path;
}

}  // namespace
}  // namespace tarvo
