// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "install/addin_edits.h"
#include "install/addin_lists.h"
#include "install/macro_installer.h"
#include "install/mail_script_installer.h"
#include "platform/services/result.h"
#include "platform/services/user_defaults.h"

namespace tarvo {

class Product;

// The applications that take add-ins, for one verb.
// Duty: the rows as the next start would show them; the operations on them; remembering the rows. Not: the lock;
// telling. No style is read, no window program runs, and nothing is made before an operation, not even Apple Mail's
// script folder.
class AddinSession {
 public:
  explicit AddinSession(Product& product);

  // Fails with neither a remembered nor a shipped list: a start would end at once.
  Result<> read();
  const AddinLists& lists() const { return lists_; }
  const UserDefaults& settings() const { return defaults_; }

  Result<> setInstalled(AddinPlace place, bool on);
  // Answers what was passed over because it could not be read.
  Result<std::vector<Failure>> searchFolder(const DiskPath& folder);
  // Keeps the rows for the next start.
  Result<> store();

 private:
  Product& product_;
  UserDefaults defaults_;
  MailScriptInstaller mailScripts_;
  MacroInstaller macros_;
  AddinLists lists_;
};

}  // namespace tarvo
