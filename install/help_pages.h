// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/controls/controls.h"

// The help of the program and the maker's pages. No address is built in: they come from the paths' configuration and
// the text tables, and a command without one does nothing.
namespace tarvo {

class Bundle;
class ProductPaths;
class Texts;
class Workspace;

struct HelpOutlets : Outlets {
  MenuItem helpMenu{*this, "helpMenu"}, homepageMenu{*this, "homepageMenu"}, supportMenu{*this, "supportMenu"},
      oldTechMenu{*this, "oldTechMenu"};
  HelpOutlets() : Outlets("manager") {}
};

class HelpPages {
 public:
  HelpPages(const Bundle& bundle, const ProductPaths& paths, const Texts& texts, Workspace& workspace)
      : bundle_(bundle), paths_(paths), texts_(texts), workspace_(workspace) {}
  // Opens the help that comes with the program.
  void showHelp();
  void GotoRegiandSupportPage();
  void GotoWordhavenPage();
  // The page about the older English-to-Japanese technical dictionary; its address is the text of "oldEJTech".
  void aboutOldEtoJTech();
  // Opens an address in the user's browser; a text that does not begin with a scheme is none.
  void showIndicatePage(const std::string& address);

 private:
  const Bundle& bundle_;
  const ProductPaths& paths_;
  const Texts& texts_;
  Workspace& workspace_;
};

}  // namespace tarvo
