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

// The folder is the product's root; at("/x") lies in it.
class PosixFilesTest : public testing::Test {
 protected:
  test::TemporaryFolder folder;
  Locations locations{folder.path(), folder / "Users/taro"};
  PosixFiles files{locations};
  DiskPath at(const std::string& path) const { return DiskPath(path.starts_with('/') ? folder.path() + path : path); }
};

TEST_F(PosixFilesTest, doesWhatItIsAskedFor) {
  EXPECT_TRUE(files.makeFolder(at("/Library/Application Support")));
  EXPECT_TRUE(files.write(at("/Library/a.txt"), "x"));
  EXPECT_EQ(folder.read("Library/a.txt"), "x");
  EXPECT_EQ(files.read(at("/Library/a.txt")), "x");
  EXPECT_TRUE(files.copy(at("/Library"), at("/Copy")));
  EXPECT_EQ(files.list(at("/Copy")), (Names{"Application Support", "a.txt"}));
  EXPECT_TRUE(files.keepUnreadable(at("/Copy/a.txt")));
  EXPECT_EQ(folder.read("Copy/a.txt.unreadable"), "x");
  EXPECT_TRUE(files.removeEmptyFolder(at("/Copy/Application Support/")));
  EXPECT_TRUE(files.remove(at("/Copy")));
  EXPECT_EQ(folder.names(), Names{"Library"});
}

TEST_F(PosixFilesTest, aPathThatIsNotAbsoluteNamesNothing) {
  folder.write("a", "x");
  const test::TemporaryFolder before;
  fs::current_path(folder.path());
  for (const std::string& path : {std::string("a"), std::string(""), std::string("./a"), std::string("/a\0b", 4)}) {
    EXPECT_EQ(files.kind(at(path)), FileService::Kind::absent);
    EXPECT_FALSE(files.read(at(path)));
    EXPECT_FALSE(files.write(at(path), "y"));
    EXPECT_FALSE(files.keepUnreadable(at(path)));
    EXPECT_FALSE(files.list(at(path)));
    EXPECT_FALSE(files.makeFolder(at(path)));
    EXPECT_FALSE(files.copy(at(path), at("/b")));
    EXPECT_FALSE(files.copy(at("/a"), at(path)));
    EXPECT_FALSE(files.remove(at(path)));
    EXPECT_FALSE(files.removeEmptyFolder(at(path)));
    EXPECT_FALSE(files.typeCode(at(path)));
    EXPECT_FALSE(files.setCodes(at(path), 1, 2));
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
    EXPECT_EQ(files.kind(at("/" + std::string(row.target))), row.kind) << row.target;
    EXPECT_EQ(files.kind(at("/" + std::string(row.link))), row.kind) << row.link;
    EXPECT_EQ(files.isThere(at("/" + std::string(row.link))), row.kind != FileService::Kind::absent);
    EXPECT_EQ(files.isAbsent(at("/" + std::string(row.link))), row.kind == FileService::Kind::absent);
    EXPECT_EQ(files.ownKind(at("/" + std::string(row.link))), FileService::Kind::link);
  }
  EXPECT_EQ(files.kind(at("/folder///")), FileService::Kind::folder);
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
    const Result<FileService::Kind> kind = files.kind(at(row.path));
    ASSERT_FALSE(kind) << row.path;
    EXPECT_EQ(kind.error(), (Failure{folder.path() + row.path, Attempt::look, std::make_error_code(row.cause)}));
    EXPECT_FALSE(files.isThere(at(row.path)));
    EXPECT_FALSE(files.isAbsent(at(row.path)));
  }
  EXPECT_EQ(files.kind(at("/missing")), FileService::Kind::absent);
  EXPECT_EQ(files.kind(at("/file/below")), FileService::Kind::absent);
  EXPECT_TRUE(existsIgnoringCase(files, at("/loop"))) << "nothing may be made over it";
}

TEST_F(PosixFilesTest, failuresSayPathAttemptAndCause) {
  folder.write("file", "x");
  const std::string file = folder / "file";
  const auto cause = [](std::errc error) { return std::make_error_code(error); };
  EXPECT_EQ(files.read(at("/none")).error(),
            (Failure{folder / "none", Attempt::read, cause(std::errc::no_such_file_or_directory)}));
  EXPECT_EQ(files.read(at("/")).error(), (Failure{folder.path(), Attempt::read, Reason::noRegularFile}));
  EXPECT_EQ(files.list(at("/file")).error(), (Failure{file, Attempt::list, cause(std::errc::not_a_directory)}));
  EXPECT_EQ(files.copy(at("/file"), at("/file")).error(),
            (Failure{file, Attempt::create, cause(std::errc::file_exists)}));
  EXPECT_EQ(files.write(at("/none/file"), "").error(),
            (Failure{folder / "none", Attempt::write, cause(std::errc::no_such_file_or_directory)}));
  EXPECT_EQ(files.makeFolder(at("/file/a/b")).error(),
            (Failure{file, Attempt::makeFolder, cause(std::errc::not_a_directory)}));
  EXPECT_EQ(files.remove(at("/none")).error(),
            (Failure{folder / "none", Attempt::remove, cause(std::errc::no_such_file_or_directory)}));
  EXPECT_EQ(files.remove(at("/")).error(), (Failure{folder.path(), Attempt::remove, Reason::wholeProduct}));
  EXPECT_EQ(files.removeEmptyFolder(at("/file")).error(),
            (Failure{file, Attempt::remove, cause(std::errc::not_a_directory)}));
  EXPECT_EQ(files.read(at("file")).error(), (Failure{"file", Attempt::read, Reason::noPath}));
}

TEST_F(PosixFilesTest, onlyRegularFilesAreReadAndNoneBlocks) {
  folder.write("empty", "");
  folder.makeFolder("folder");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
  fs::create_symlink("/dev/zero", folder / "device");
  EXPECT_EQ(files.read(at("/empty")), "");
  for (const char* path : {"/folder", "/pipe", "/device", "/missing", "/empty/x"}) {
    EXPECT_FALSE(files.read(at(path))) << path;
  }
}

TEST_F(PosixFilesTest, aFileBeyondAllMeasureIsNotRead) {
  folder.write("sparse", "");
  fs::resize_file(folder / "sparse", std::uintmax_t{1} << 40);
  EXPECT_FALSE(files.read(at("/sparse")));
}

TEST_F(PosixFilesTest, aFolderIsListedAscendingByBytesWithHiddenNames) {
  for (const char* name : {"b", "B", "a", ".h", "é", "あ", "a\nb", "10", "9"}) folder.write(name, "");
  EXPECT_EQ(files.list(at("/")), (Names{".h", "10", "9", "B", "a", "a\nb", "b", "é", "あ"}));
  EXPECT_FALSE(files.list(at("/b")));
  EXPECT_FALSE(files.list(at("/missing")));
}

TEST_F(PosixFilesTest, theWholeProductIsNeverRemoved) {
  folder.write("a", "x");
  EXPECT_FALSE(files.remove(at("/")));
  EXPECT_FALSE(files.remove(at("//")));
  EXPECT_EQ(folder.read("a"), "x");
}

TEST_F(PosixFilesTest, onlyAnEmptyFolderGoesWithoutItsContent) {
  folder.write("folder/a", "x");
  folder.makeFolder("empty");
  EXPECT_FALSE(files.removeEmptyFolder(at("/folder")));
  EXPECT_FALSE(files.removeEmptyFolder(at("/folder/a")));
  EXPECT_TRUE(files.removeEmptyFolder(at("/empty")));
  EXPECT_EQ(folder.read("folder/a"), "x");
}

TEST_F(PosixFilesTest, aFolderOfItemsIsMadeWithTheFoldersAboveIt) {
  folder.write("from/a", "x");
  const mode_t before = ::umask(077);
  EXPECT_TRUE(files.makeFolderOf({at("/from/a")}, at("/above/folder/")));
  ::umask(before);
  EXPECT_EQ(folder.read("above/folder/a"), "x");
  EXPECT_EQ(folder.mode("above"), 0777U);
  EXPECT_EQ(folder.mode("above/folder"), 0777U);
  EXPECT_FALSE(files.makeFolderOf({at("/from/a")}, at("/above/folder")));
  EXPECT_FALSE(files.makeFolderOf({at("/from/a")}, at("relative")));
  EXPECT_EQ(files.makeFolderOf({}, at("/from/a/folder")).error().attempt, Attempt::makeFolder);
}

TEST_F(PosixFilesTest, codesGoWithCopiesAndStayWithReplacedFiles) {
  const std::string place = test::placeForAttributes();
  if (place.empty()) GTEST_SKIP() << "this disk keeps no extended attributes";
  const test::TemporaryFolder root(place);
  const Locations there(root.path(), root.path());
  PosixFiles disk(there);
  root.write("template", "x");
  EXPECT_TRUE(disk.setCodes(root.at("template"), fourCharCode("TReu"), fourCharCode("    ")));
  EXPECT_TRUE(disk.copy(root.at("template"), root.at("copy")));
  EXPECT_TRUE(disk.write(root.at("template"), "y"));
  EXPECT_EQ(disk.typeCode(root.at("copy")), fourCharCode("TReu"));
  EXPECT_TRUE(disk.copyAs(root.at("template"), root.at("other"), FinderCodes{fourCharCode("TRju"), 0}));
  EXPECT_EQ(disk.typeCode(root.at("other")), fourCharCode("TRju"));
  EXPECT_EQ(disk.typeCode(root.at("template")), fourCharCode("TReu"));
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
  for (const auto& row : rows) EXPECT_EQ(existsIgnoringCase(files, at(row.path)), row.exists) << row.path;
}

}  // namespace
}  // namespace tarvo
