// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

class AddinTable;
class OfficeFolderSearch;
class Panels;
class Texts;

// The button that lets the user point at an Office elsewhere: asks for the folder, has it searched, shows the rows.
class OfficeFolderChoice {
 public:
  // Not owned.
  OfficeFolderChoice(Panels& panels, const Texts& texts, OfficeFolderSearch& search, AddinTable& table)
      : panels_(panels), texts_(texts), search_(search), table_(table) {}
  void SelectOfficeFolder();

 private:
  Panels& panels_;
  const Texts& texts_;
  OfficeFolderSearch& search_;
  AddinTable& table_;
};

}  // namespace tarvo
