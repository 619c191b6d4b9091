// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <sstream>

#include "install/old_scripts.h"
#include "tests/install/addin_world.h"

// Every operation on files of an install and of a removal goes wrong once, in each way in which it can. After each:
// what the user is told, what the box shows, what the next start shows, and that nothing outside the install folder was
// touched.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;
using namespace addin_keys;
using Operation = FaultyFiles::Operation;
using Use = FaultyFiles::Use;
using Perform = std::function<Result<>()>;

enum class Fault {
  fullDisk,
  forbidden,
  vanishedFolder,
  vanishedItem,
  linkInTheWay,
  deadLinkInTheWay,
  fileInTheWay,
  folderBecomesLink
};
constexpr Fault everyFault[] = {Fault::fullDisk,     Fault::forbidden,        Fault::vanishedFolder,
                                Fault::vanishedItem, Fault::linkInTheWay,     Fault::deadLinkInTheWay,
                                Fault::fileInTheWay, Fault::folderBecomesLink};
const char* nameOf(Fault fault) {
  switch (fault) {
    case Fault::fullDisk: return "full disk";
    case Fault::forbidden: return "forbidden";
    case Fault::vanishedFolder: return "vanished install folder";
    case Fault::vanishedItem: return "vanished script folder";
    case Fault::linkInTheWay: return "link in the way";
    case Fault::deadLinkInTheWay: return "dead link in the way";
    case Fault::fileInTheWay: return "plain file in the way";
    case Fault::folderBecomesLink: return "script folder replaced by a link";
  }
  return "";
}

// Files of this process cannot grow beyond a few bytes while it lives.
class FullDisk {
 public:
  FullDisk() : before_(::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &limit_);
    const rlimit small{16, limit_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &limit_);
    ::signal(SIGXFSZ, before_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

 private:
  sighandler_t before_;
  rlimit limit_{};
};

std::string contentOf(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  std::ostringstream out;
  out << stream.rdbuf();
  return out.str();
}

// Everything below a folder with kind, mode and content, but for one subtree.
std::map<std::string, std::string> everythingBut(const std::string& folder, const std::string& subtree) {
  std::map<std::string, std::string> all;
  for (auto entry = fs::recursive_directory_iterator(folder); entry != fs::recursive_directory_iterator(); ++entry) {
    if (entry->path() == subtree) {
      entry.disable_recursion_pending();
      continue;
    }
    const fs::file_status status = entry->symlink_status();
    std::string what = std::to_string(static_cast<int>(status.type())) + " " +
                       std::to_string(static_cast<unsigned>(status.permissions())) + " ";
    if (fs::is_regular_file(status)) what += contentOf(entry->path());
    all[entry->path().string()] = what;
  }
  return all;
}

// One kind of add-in: an Office macro or a folder of mail scripts.
struct Kind {
  bool isMail;
  const char* prefix() const { return isMail ? "Mail" : "Office"; }
  AddinEntry entry() const { return isMail ? appleMail() : word2011(); }
};

class Trial {
 public:
  Trial(Kind kind, bool on) : kind_(kind), on_(on) {
    const std::string large(4096, 'x');
    world_.resource("Macros/2011/Tarvo.dotm", large);
    world_.resource("Mail/Tarvo/a.scpt", large);
    world_.resource("Mail/Tarvo/b.scpt", large);
    world_.resource("Mail/Tarvo/sub/c.scpt", large);
    world_.folder.write("elsewhere/a.scpt", "the user's");
    world_.folder.write("elsewhere/Tarvo.dotm", "the user's");
    world_.folder.write("elsewhere/sub/c.scpt", "the user's");
    world_.ship({kind.entry()});
    world_.setUp({kind.entry()});
    EXPECT_TRUE(world_.lists.searchOfficeApplication());
    if (!on) table().userTick(0, true);
    world_.log.clear();
    before_ = outside();
  }

  // The operations of an undisturbed run.
  std::vector<Use> uses() {
    world_.files.forget();
    table().userTick(0, on_);
    return world_.files.uses();
  }

  // Whether this fault can befall this operation.
  static bool befalls(Fault fault, const Use& use, bool isLast, Kind kind) {
    switch (fault) {
      case Fault::fullDisk: return use.operation == Operation::copy || use.operation == Operation::makeFolder;
      case Fault::forbidden:
      case Fault::vanishedFolder: return true;
      case Fault::linkInTheWay:
      case Fault::deadLinkInTheWay:
      case Fault::fileInTheWay:
        return use.operation != Operation::list && use.operation != Operation::removeEmptyFolder;
      case Fault::vanishedItem: return kind.isMail;
      case Fault::folderBecomesLink: return kind.isMail && !isLast;
    }
    return false;
  }

  void run(std::size_t use, Fault fault) {
    world_.files.disturb(use, [this, fault](const Use& disturbed, const Perform& perform) {
      wasDisturbed_ = true;
      return suffer(fault, disturbed, perform);
    });
    table().userTick(0, on_);
    EXPECT_TRUE(wasDisturbed_);
    world_.files.forget();
  }

  bool succeeded() const { return text() == addinText(kind_.entry(), appName) + message("IsSuccessed"); }
  bool failed() const { return text() == addinText(kind_.entry(), appName) + message("IsFailed"); }
  bool beeped() const { return world_.log == Log{"beep"}; }
  bool saysWhy() const {
    return !(kind_.isMail ? world_.outlets.mailReasonField : world_.outlets.officeReasonField).stringValue().empty();
  }
  bool isSilent() const { return world_.log.empty(); }
  bool status() { return *table().cell("Value", 0).checked; }
  // What the box would show after another start; nothing when the row would not be listed.
  std::optional<bool> nextStatus() {
    UserDefaults fresh(world_.disk, DiskPath("/nowhere.plist"));
    AddinOutlets outlets;
    AddinLists lists({world_.disk, world_.bundle, fresh, world_.locations}, world_.mailScripts, outlets);
    EXPECT_TRUE(lists.searchOfficeApplication());
    const std::vector<AddinEntry>& rows = kind_.isMail ? lists.fMailAddinArray : lists.fOfficeAddinArray;
    return rows.empty() ? std::nullopt : std::optional(isMarkedInstalled(rows[0]));
  }
  bool isOutsideUntouched() const { return before_ == outside(); }

 private:
  TableView& table() { return kind_.isMail ? world_.outlets.mailTableView : world_.outlets.officeTableView; }
  std::string text() const { return kind_.isMail ? world_.mailText() : world_.officeText(); }
  std::string message(const char* end) const {
    return std::string("«") + kind_.prefix() + (on_ ? "Install" : "UnInstall") + end + "»";
  }
  std::string installFolder() const { return world_.real(AddinWorld::installFolder(kind_.entry())).text(); }
  std::map<std::string, std::string> outside() const { return everythingBut(world_.folder.path(), installFolder()); }

  Result<> suffer(Fault fault, const Use& use, const Perform& perform) const {
    const std::string& target = use.path;
    switch (fault) {
      case Fault::fullDisk: {
        if (use.operation == Operation::makeFolder) return FaultyFiles::forbid(use, perform);
        const FullDisk full;
        return perform();
      }
      case Fault::forbidden: return FaultyFiles::forbid(use, perform);
      case Fault::vanishedFolder: fs::remove_all(installFolder()); return perform();
      case Fault::vanishedItem: fs::remove_all(world_.folder / world_.item(kind_.entry())); return perform();
      case Fault::linkInTheWay:
        fs::remove_all(target);
        fs::create_symlink(world_.folder / "elsewhere", target);
        return perform();
      case Fault::deadLinkInTheWay:
        fs::remove_all(target);
        fs::create_symlink(world_.folder / "made-through-a-link", target);
        return perform();
      case Fault::fileInTheWay: {
        fs::remove_all(target);
        std::ofstream(target) << "in the way";
        return perform();
      }
      case Fault::folderBecomesLink: {
        Result<> done = perform();
        const std::string item = (world_.folder / world_.item(kind_.entry()));
        fs::remove_all(item);
        fs::create_symlink(world_.folder / "elsewhere", item);
        return done;
      }
    }
    return FaultyFiles::forbid(use, perform);
  }

  Kind kind_;
  bool on_;
  AddinWorld world_;
  std::map<std::string, std::string> before_;
  bool wasDisturbed_ = false;
};

struct Outcome {
  bool success;
  std::optional<bool> next;  // what the next start shows; nothing: the row is not listed
};

bool leavesSomething(Fault fault) {
  return fault == Fault::linkInTheWay || fault == Fault::fileInTheWay || fault == Fault::folderBecomesLink;
}

bool isReplaced(Fault fault) {
  return fault == Fault::linkInTheWay || fault == Fault::deadLinkInTheWay || fault == Fault::fileInTheWay;
}

Outcome expected(Kind kind, bool on, const Use& use, Fault fault) {
  if (!kind.isMail && on) return {false, leavesSomething(fault)};
  if (!kind.isMail) return fault == Fault::forbidden ? Outcome{false, true} : Outcome{true, false};
  if (!on && isReplaced(fault)) return {true, false};  // what bears the name goes, not what a link leads to
  if (on && use.operation == Operation::makeFolder) {
    const bool isMadeAnew = fault == Fault::vanishedFolder || fault == Fault::vanishedItem;
    return isMadeAnew ? Outcome{true, true} : Outcome{false, leavesSomething(fault)};
  }
  if (fault == Fault::vanishedFolder) return {false, std::nullopt};
  if (fault == Fault::vanishedItem) return {false, false};
  return {false, true};  // the folder of scripts is there, whole or not
}

class FaultyAddins : public testing::TestWithParam<std::pair<bool, bool>> {};

TEST_P(FaultyAddins, sayWhatHappenedAndTouchNothingElse) {
  const Kind kind{GetParam().first};
  const bool on = GetParam().second;
  const std::vector<Use> uses = Trial(kind, on).uses();
  int faults = 0, differing = 0;
  for (std::size_t i = 0; i < uses.size(); ++i) {
    for (const Fault fault : everyFault) {
      if (!Trial::befalls(fault, uses[i], i + 1 == uses.size(), kind)) continue;
      SCOPED_TRACE(std::string(nameOf(fault)) + " at operation " + std::to_string(i + 1) + " on " + uses[i].path);
      Trial trial(kind, on);
      trial.run(i, fault);
      const Outcome outcome = expected(kind, on, uses[i], fault);
      EXPECT_EQ(trial.succeeded(), outcome.success);
      EXPECT_EQ(trial.failed(), !outcome.success);
      EXPECT_EQ(trial.saysWhy(), !outcome.success);
      EXPECT_TRUE(outcome.success ? trial.isSilent() : trial.beeped());
      EXPECT_EQ(trial.status(), outcome.success == on) << "a failure leaves the box as it was";
      EXPECT_EQ(trial.nextStatus(), outcome.next);
      EXPECT_TRUE(trial.isOutsideUntouched());
      ++faults;
      if (trial.nextStatus() != std::optional(trial.status())) ++differing;
    }
  }
  EXPECT_GE(faults, 5);
  std::printf("%s of %s: %zu operations, %d faults, %d of them seen otherwise by the next start\n",
              on ? "install" : "removal", kind.isMail ? "scripts" : "a macro", uses.size(), faults, differing);
}

INSTANTIATE_TEST_SUITE_P(Everywhere, FaultyAddins,
                         testing::Values(std::pair(false, true), std::pair(false, false), std::pair(true, true),
                                         std::pair(true, false)));

// Scripts of an earlier generation: what cannot be removed is not told, and the row shows what the disk holds.
TEST(FaultyOldScripts, areSilentAndLeaveTheRowTrue) {
  int faults = 0;
  for (std::size_t use = 0;; ++use) {
    AddinWorld world;
    world.ship({appleMail()});
    world.setUp({appleMail()});
    const std::string item = world.item(appleMail());
    for (const char* name : {"/a", "/b", "/sub/c"}) world.folder.write(item + name, "old");
    world.folder.makeFolder(item + "/../«MailTarvoFolderName»");
    ASSERT_TRUE(world.lists.searchOfficeApplication());
    const std::string installFolder = world.real(AddinWorld::installFolder(appleMail())).text();
    const auto before = everythingBut(world.folder.path(), installFolder);
    bool wasDisturbed = false;
    world.files.disturb(use, [&](const Use& disturbed, const Perform& perform) {
      wasDisturbed = true;
      return FaultyFiles::forbid(disturbed, perform);
    });
    OldScripts({world.files, world.panels, world.texts}, world.lists, world.mailScripts, world.locations.home())
        .OldscriptUninstall();
    EXPECT_EQ(before, everythingBut(world.folder.path(), installFolder)) << use;
    EXPECT_EQ(isMarkedInstalled(world.lists.fMailAddinArray.at(0)), world.folder.exists(item)) << use;
    EXPECT_EQ(world.log.empty(), wasDisturbed) << use;
    if (!wasDisturbed) break;
    ++faults;
  }
  EXPECT_EQ(faults, 5) << "list, three items, the folder";
  std::printf("removal of old scripts: %d faults\n", faults);
}

}  // namespace
}  // namespace tarvo::test
