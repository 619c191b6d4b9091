// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <string>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// Folders of dictionaries that are there and could not be read.
// Duty: what stands in a table instead of the rows of such a folder, and sentences that tell of it: of each folder once
// for as long as it cannot be read for the same reason, and of each edit that is refused because of it. Not: reading.
namespace tarvo {

class DictController;
class TableView;
class Texts;

class UnreadFolders {
 public:
  explicit UnreadFolders(const Texts& texts) : texts_(texts) {}
  // After each scan of the list that the table shows.
  void scanned(const DictController& list, TableView& table);
  // A list was not changed because of this.
  void refused(const Failure& why) const;
  std::function<void(const std::string& sentence)> tell;

 private:
  std::string sentence(std::string_view key, const Failure& why) const;
  const Texts& texts_;
  std::map<DiskPath, Failure> told_;  // by folder
};

}  // namespace tarvo
