// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/controls/controls.h"

// The help of the program and the maker's pages. No address is built in: they come from the paths' configuration and
// the text tables. What cannot be opened is told (platform/services/opener.h).
namespace tarvo {

class Bundle;
class Opener;
class ProductPaths;
class Texts;

struct HelpOutlets : Outlets {
  MenuItem helpMenu{*this, "helpMenu"}, homepageMenu{*this, "homepageMenu"}, supportMenu{*this, "supportMenu"},
      oldTechMenu{*this, "oldTechMenu"};
  HelpOutlets() : Outlets("manager") {}
};

class HelpPages {
 public:
  HelpPages(const Bundle& bundle, const ProductPaths& paths, const Texts& texts, const Opener& opener)
      : bundle_(bundle), paths_(paths), texts_(texts), opener_(opener) {}
  // Opens the help that comes with the program.
  void showHelp();
  void GotoRegiandSupportPage();
  void GotoWordhavenPage();
  // The page about the older English-to-Japanese technical dictionary; its address is the text of "oldEJTech".
  void aboutOldEtoJTech();
  // Opens an address in the user's browser; a text that does not begin with a scheme is none, which is told of the
  // address, or of the menu item that stands for it.
  void showIndicatePage(const std::string& address) { showPage(address, address); }

 private:
  void showPage(const std::string& address, const std::string& name);
  const Bundle& bundle_;
  const ProductPaths& paths_;
  const Texts& texts_;
  const Opener& opener_;
};

}  // namespace tarvo
