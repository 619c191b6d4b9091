// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/install/addin_trial.h"

#include <signal.h>
#include <sys/resource.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace tarvo::test {
namespace {

namespace fs = std::filesystem;
using namespace addin_keys;
using Operation = FaultyFiles::Operation;
using Perform = std::function<Result<>()>;

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

}  // namespace

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

AddinTrial::AddinTrial(AddinKind kind, bool on, bool intoFolder) : kind_(kind), on_(on) {
  const std::string large(4096, 'x');
  world_.resource("Macros/2011/Tarvo.dotm", large);
  world_.resource("Mail/Tarvo/a.scpt", large);
  world_.resource("Mail/Tarvo/b.scpt", large);
  world_.resource("Mail/Tarvo/sub/c.scpt", large);
  world_.folder.write("elsewhere/a.scpt", "the user's");
  world_.folder.write("elsewhere/Tarvo.dotm", "the user's");
  world_.folder.write("elsewhere/sub/c.scpt", "the user's");
  world_.ship({exampleOf(kind)});
  world_.setUp({exampleOf(kind)});
  EXPECT_TRUE(world_.start());
  if (!on) table().userTick(0, true);
  if (intoFolder) world_.folder.makeFolder(world_.item(exampleOf(kind)));
  world_.log.clear();
  before_ = outside();
}

std::vector<AddinTrial::Use> AddinTrial::uses() {
  world_.files.forget();
  table().userTick(0, on_);
  return world_.files.uses();
}

bool AddinTrial::befalls(Fault fault, const Use& use, bool isLast, AddinKind kind) {
  switch (fault) {
    case Fault::fullDisk: return use.operation == Operation::copy || use.operation == Operation::makeFolderOf;
    case Fault::forbidden:
    case Fault::vanishedFolder: return true;
    case Fault::linkInTheWay:
    case Fault::deadLinkInTheWay:
    case Fault::fileInTheWay: return use.operation != Operation::list && use.operation != Operation::removeEmptyFolder;
    case Fault::vanishedItem: return kind == AddinKind::mail;
    case Fault::folderBecomesLink: return kind == AddinKind::mail && !isLast;
  }
  return false;
}

void AddinTrial::run(std::size_t use, Fault fault) {
  world_.files.disturb(use, [this, fault](const Use& disturbed, const Perform& perform) {
    wasDisturbed_ = true;
    return suffer(fault, disturbed, perform);
  });
  table().userTick(0, on_);
  EXPECT_TRUE(wasDisturbed_);
  world_.files.forget();
}

bool AddinTrial::succeeded() const { return text() == addinText(exampleOf(kind_), appName) + message("IsSuccessed"); }

bool AddinTrial::failed() const { return text() == addinText(exampleOf(kind_), appName) + message("IsFailed"); }

bool AddinTrial::saysWhy() const {
  return !(isMail() ? world_.outlets.mailReasonField : world_.outlets.officeReasonField).stringValue().empty();
}

std::optional<bool> AddinTrial::nextStatus() {
  UserDefaults fresh(world_.disk, DiskPath("/nowhere.plist"));
  AddinLists lists({world_.disk, world_.bundle, fresh, world_.locations}, world_.mailScripts);
  EXPECT_TRUE(lists.searchOfficeApplication());
  const std::vector<AddinEntry>& rows = isMail() ? lists.fMailAddinArray() : lists.fOfficeAddinArray();
  return rows.empty() ? std::nullopt : std::optional(isMarkedInstalled(rows[0]));
}

std::string AddinTrial::message(const char* end) const {
  return "«" + std::string(rowOf(kind_).textsPrefix) + (on_ ? "Install" : "UnInstall") + end + "»";
}

Result<> AddinTrial::suffer(Fault fault, const Use& use, const Perform& perform) const {
  const std::string& target = use.path;
  switch (fault) {
    case Fault::fullDisk: {
      const FullDisk full;
      return perform();
    }
    case Fault::forbidden: return FaultyFiles::forbid(use, perform);
    case Fault::vanishedFolder: fs::remove_all(installFolder()); return perform();
    case Fault::vanishedItem: fs::remove_all(world_.folder / world_.item(exampleOf(kind_))); return perform();
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
      const std::string item = (world_.folder / world_.item(exampleOf(kind_)));
      fs::remove_all(item);
      fs::create_symlink(world_.folder / "elsewhere", item);
      return done;
    }
  }
  return FaultyFiles::forbid(use, perform);
}

}  // namespace tarvo::test
