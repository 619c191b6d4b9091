// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/text/paths.h"

namespace tarvo {

class AddinTable;
class OfficeFolderSearch;
class Panels;
class Texts;

// The button that lets the user point at an Office elsewhere: asks for the folder, has it searched, shows the rows and
// tells what was found.
class OfficeFolderChoice {
 public:
  // Not owned.
  OfficeFolderChoice(Panels& panels, const Texts& texts, OfficeFolderSearch& search, AddinTable& table)
      : panels_(panels), texts_(texts), search_(search), table_(table) {}
  void SelectOfficeFolder();
  std::function<void(const std::string& sentence)> tell;

 private:
  std::string outcomeOf(const DiskPath& folder, const std::vector<std::string>& added) const;
  Panels& panels_;
  const Texts& texts_;
  OfficeFolderSearch& search_;
  AddinTable& table_;
};

}  // namespace tarvo
