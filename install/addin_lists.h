// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "install/addin_entry.h"
#include "platform/services/result.h"

// The applications that can take an add-in.
// Duty: read the shipped and the remembered records, find the applications among them that are installed, hold the rows
// of both tables, remember them at the end. Not: showing them; installing; telling the user that there are no records.
// The rows are built once a run. A record that was not listed at the last exit stays forgotten as long as the settings
// hold a list: users who removed an application do not get it back with the next version of the shipped list. Only
// Outlook and Entourage join a remembered list.
namespace tarvo {

class Bundle;
class FileService;
class Locations;
class MailScriptInstaller;
class UserDefaults;

// A row of the tables: whose it is, and which.
struct AddinPlace {
  AddinKind kind = AddinKind::office;
  int row = 0;
  friend auto operator<=>(const AddinPlace&, const AddinPlace&) = default;
};

class AddinLists {
 public:
  struct Services {
    FileService& files;
    const Bundle& bundle;
    UserDefaults& defaults;
    const Locations& locations;
  };
  using SharedEntry = std::shared_ptr<AddinEntry>;
  AddinLists(Services services, const MailScriptInstaller& mailScripts);
  AddinPlaces placesOf(const AddinEntry& entry) const;

  // Builds the candidates. Fails with neither a remembered nor a shipped list: nothing can be done.
  Result<> loadAddinPlist();
  // Apple Mail's script folder, without which Mail is not listed: a start makes it before it looks.
  enum class MailFolder { asItIs, asAStartMakesIt };
  // Builds both tables' rows from the candidates. Fails as loadAddinPlist.
  Result<> searchOfficeApplication(MailFolder mailFolder = MailFolder::asItIs);
  // Shipped records that are no candidates, though their applications are there: a remembered list leaves out what was
  // not there at the end of an earlier run.
  std::vector<AddinEntry> forgotten() const;
  // Whether the item lies in its install folder: a file or a folder. Where it cannot be looked at, what was known last.
  bool getInstallStatus(const AddinEntry& entry) const;
  // In what that item differs from the product's (addin_diagnosis.h).
  std::vector<Failure> faultsOf(const AddinEntry& entry) const;
  // The rows become the candidates and are remembered in the settings, Office rows first.
  void storeRows();

  // The shipped records; nothing when there is no such list. Candidates that come from it are the same records, so
  // that a path made absolute in one is absolute in both.
  const std::optional<std::vector<SharedEntry>>& fDefaultOfficeSetArray() const { return fDefaultOfficeSetArray_; }
  const std::vector<SharedEntry>& fOfficeArray() const { return fOfficeArray_; }  // candidates
  // The rows of both tables, copies of their own.
  const std::vector<AddinEntry>& fOfficeAddinArray() const { return fOfficeAddinArray_; }
  const std::vector<AddinEntry>& fMailAddinArray() const { return fMailAddinArray_; }
  const std::vector<AddinEntry>& rowsOf(AddinKind kind) const;
  // One row more at the end; the tables show it when they are reloaded.
  void addOfficeRow(AddinEntry row) { fOfficeAddinArray_.push_back(std::move(row)); }
  void addMailRow(AddinEntry row) { fMailAddinArray_.push_back(std::move(row)); }
  // What the box of a row shows from now on. The row must be there.
  void setInstallStatus(AddinPlace place, bool installed);
  // The boxes of the mail rows show what the disk holds now.
  void lookAtMailRows();

 private:
  Result<std::vector<SharedEntry>> readShipped() const;
  bool hasScriptFolder(const AddinEntry& entry, MailFolder mailFolder) const;
  void joinOutlook();
  void prefixHome(AddinEntry& entry) const;
  Services services_;
  const MailScriptInstaller& mailScripts_;
  std::optional<std::vector<SharedEntry>> fDefaultOfficeSetArray_;
  std::vector<SharedEntry> fOfficeArray_;
  std::vector<AddinEntry> fOfficeAddinArray_;
  std::vector<AddinEntry> fMailAddinArray_;
};

}  // namespace tarvo
