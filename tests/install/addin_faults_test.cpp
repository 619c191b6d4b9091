// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <map>
#include <optional>

#include "install/old_scripts.h"
#include "tests/install/addin_trial.h"

// Every operation on files of an install and of a removal goes wrong once, in each way in which it can. After each:
// what the user is told, what the box shows, what the next start shows, and that nothing outside the install folder was
// touched.
namespace tarvo::test {
namespace {

using Operation = FaultyFiles::Operation;
using Use = FaultyFiles::Use;
using Perform = std::function<Result<>()>;

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

Outcome expected(AddinKind kind, bool on, const Use& use, Fault fault) {
  if (kind == AddinKind::office && on) return {false, leavesSomething(fault)};
  if (kind == AddinKind::office) return fault == Fault::forbidden ? Outcome{false, true} : Outcome{true, false};
  if (!on && isReplaced(fault)) return {true, false};  // what bears the name goes, not what a link leads to
  if (on && (use.operation == Operation::list || use.operation == Operation::makeFolderOf)) {
    if (fault == Fault::vanishedFolder || fault == Fault::vanishedItem) return {true, true};  // it is made anew
    // Scripts that cannot be had, or copied, leave a folder without them.
    return {false, use.operation == Operation::list || fault == Fault::fullDisk || leavesSomething(fault)};
  }
  if (fault == Fault::vanishedFolder) return {false, std::nullopt};
  if (fault == Fault::vanishedItem) return {false, false};
  return {false, true};  // the folder of scripts is there, whole or not
}

struct Trial {
  AddinKind kind;
  bool on, intoFolder;
};

class FaultyAddins : public testing::TestWithParam<Trial> {};

TEST_P(FaultyAddins, sayWhatHappenedAndTouchNothingElse) {
  const auto [kind, on, intoFolder] = GetParam();
  const std::vector<Use> uses = AddinTrial(kind, on, intoFolder).uses();
  int faults = 0, differing = 0;
  for (std::size_t i = 0; i < uses.size(); ++i) {
    for (const Fault fault : everyFault) {
      if (!AddinTrial::befalls(fault, uses[i], i + 1 == uses.size(), kind)) continue;
      SCOPED_TRACE(std::string(nameOf(fault)) + " at operation " + std::to_string(i + 1) + " on " + uses[i].path);
      AddinTrial trial(kind, on, intoFolder);
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
  std::printf("%s of %s%s: %zu operations, %d faults, %d of them seen otherwise by the next start\n",
              on ? "install" : "removal", kind == AddinKind::mail ? "scripts" : "a macro",
              intoFolder ? " into their folder" : "", uses.size(), faults, differing);
}

INSTANTIATE_TEST_SUITE_P(Everywhere, FaultyAddins,
                         testing::Values(Trial{AddinKind::office, true, false}, Trial{AddinKind::office, false, false},
                                         Trial{AddinKind::mail, true, false}, Trial{AddinKind::mail, true, true},
                                         Trial{AddinKind::mail, false, false}));

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
    ASSERT_TRUE(world.start());
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
    EXPECT_EQ(isMarkedInstalled(world.lists.fMailAddinArray().at(0)), world.folder.exists(item)) << use;
    EXPECT_EQ(world.log.empty(), wasDisturbed) << use;
    if (!wasDisturbed) break;
    ++faults;
  }
  EXPECT_EQ(faults, 5) << "list, three items, the folder";
  std::printf("removal of old scripts: %d faults\n", faults);
}

}  // namespace
}  // namespace tarvo::test
