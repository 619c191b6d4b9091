// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "tests/install/addin_world.h"

namespace tarvo::test {

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
inline constexpr Fault everyFault[] = {Fault::fullDisk,     Fault::forbidden,        Fault::vanishedFolder,
                                       Fault::vanishedItem, Fault::linkInTheWay,     Fault::deadLinkInTheWay,
                                       Fault::fileInTheWay, Fault::folderBecomesLink};
const char* nameOf(Fault fault);

// Everything below a folder with kind, mode and content, but for one subtree.
std::map<std::string, std::string> everythingBut(const std::string& folder, const std::string& subtree);

// One of that kind.
inline AddinEntry exampleOf(AddinKind kind) { return kind == AddinKind::mail ? appleMail() : word2011(); }

// One install or removal by the box of its row, on a disk that can go wrong at one operation.
class AddinTrial {
 public:
  using Use = FaultyFiles::Use;

  // intoFolder: the folder of scripts is there before an install.
  AddinTrial(AddinKind kind, bool on, bool intoFolder = false);

  // The operations of an undisturbed run.
  std::vector<Use> uses();
  // Whether this fault can befall this operation.
  static bool befalls(Fault fault, const Use& use, bool isLast, AddinKind kind);
  void run(std::size_t use, Fault fault);

  bool succeeded() const;
  bool failed() const;
  bool beeped() const { return world_.log == Log{"beep"}; }
  bool saysWhy() const;
  bool isSilent() const { return world_.log.empty(); }
  bool status() { return *table().cell("Value", 0).checked; }
  // What the box would show after another start; nothing when the row would not be listed.
  std::optional<bool> nextStatus();
  bool isOutsideUntouched() const { return before_ == outside(); }

 private:
  bool isMail() const { return kind_ == AddinKind::mail; }
  TableView& table() { return isMail() ? world_.outlets.mailTableView : world_.outlets.officeTableView; }
  std::string text() const { return isMail() ? world_.mailText() : world_.officeText(); }
  std::string message(const char* end) const;
  std::string installFolder() const { return world_.real(AddinWorld::installFolder(exampleOf(kind_))).text(); }
  std::map<std::string, std::string> outside() const { return everythingBut(world_.folder.path(), installFolder()); }
  Result<> suffer(Fault fault, const Use& use, const std::function<Result<>()>& perform) const;

  AddinKind kind_;
  bool on_;
  AddinWorld world_;
  std::map<std::string, std::string> before_;
  bool wasDisturbed_ = false;
};

}  // namespace tarvo::test
