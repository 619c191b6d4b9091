// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "install/addin_lists.h"
#include "install/addin_outlets.h"
#include "install/addin_table.h"
#include "install/macro_installer.h"
#include "install/mail_script_installer.h"
#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/bundle.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "tests/support/fake_shell.h"
#include "tests/support/faulty_files.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

inline AddinEntry entryOf(const char* name, const char* creator, const char* version, const char* path,
                          const char* macro, const char* folderPath, const char* folderName) {
  AddinEntry entry;
  entry.set(addin_keys::appName, name);
  entry.set(addin_keys::appCreator, creator);
  entry.set(addin_keys::appVersion, version);
  entry.set(addin_keys::appPath, path);
  entry.set(addin_keys::installMacroName, macro);
  entry.set(addin_keys::installFolderPath, folderPath);
  entry.set(addin_keys::installFolderName, folderName);
  return entry;
}

inline AddinEntry word2011() {
  return entryOf("Word 2011", "MSWD", "2011", "/Applications/O11/Word.app", "Macros/2011/Tarvo.dotm",
                 "/Applications/O11/Office/Startup/Word", "Office/Startup/Word");
}
inline AddinEntry excel2011() {
  return entryOf("Excel 2011", "XCEL", "2011", "/Applications/O11/Excel.app", "Macros/2011/Tarvo.xlam",
                 "/Applications/O11/Office/Startup/Excel", "Office/Startup/Excel");
}
inline AddinEntry word2008() {
  return entryOf("Word 2008", "MSWD", "2008", "/Applications/O08/Word.app", "Macros/2008/Tarvo.dotm",
                 "/Applications/O08/Office/Startup/Word", "Office/Startup/Word");
}
inline AddinEntry appleMail() {
  return entryOf("Mail", "emal", "4", "/Applications/Mail.app", "Mail/Tarvo", "Library/Scripts/Applications/Mail",
                 "Library/Scripts/Applications/Mail");
}
inline AddinEntry outlook2011() {
  return entryOf("Outlook 2011", "OPIM", "2011", "/Applications/O11/Outlook.app", "Outlook/Tarvo",
                 "Library/Scripts/Outlook", "Library/Scripts/Outlook");
}
inline AddinEntry entourage2004() {
  return entryOf("Entourage 2004", "OPIM", "2004", "/Applications/O04/Entourage.app", "Entourage/Tarvo",
                 "Library/Scripts/Entourage", "Library/Scripts/Entourage");
}
inline AddinEntry with(AddinEntry entry, const char* key, PropertyList value) {
  entry.set(key, std::move(value));
  return entry;
}

// Applications, install folders and the product's resources on a real disk, and the rooms that work with them. The home
// is "/Users/taro"; each text is its key between « and ».
struct AddinWorld {
  static constexpr const char* home = "/Users/taro";
  static constexpr const char* settings = "/Users/taro/Library/Preferences/manager.plist";

  AddinWorld() {
    folder.makeFolder("root/Users/taro");
    folder.makeFolder("resources");
    panes.tab.setPages({{"StyleManager", "1"}, {"OA", "2"}, {"MT", "3"}});
    outlets.officeTableView.setTag(rowOf(AddinKind::office).tag);
    outlets.mailTableView.setTag(rowOf(AddinKind::mail).tag);
    for (TableView* view : {&outlets.officeTableView, &outlets.mailTableView}) {
      view->setColumns({{.identifier = "Value", .checkBox = true}, {"AppName"}, {"Version"}});
      view->setDataSource(&table);
      view->setDelegate(&table);
    }
    for (const char* key : {"OfficeInstallIsSuccessed",
                            "OfficeInstallIsFailed",
                            "OfficeUnInstallIsSuccessed",
                            "OfficeUnInstallIsFailed",
                            "MailInstallIsSuccessed",
                            "MailInstallIsFailed",
                            "MailUnInstallIsSuccessed",
                            "MailUnInstallIsFailed",
                            "OfficeisInstalled",
                            "OfficeisNotInstalled",
                            "MailisInstalled",
                            "MailisNotInstalled",
                            "AlertClose",
                            "MailTarvoFolderName",
                            "Outlook2011TarvoFolderName",
                            "Entourage2004TarvoFolderName",
                            "OldMailScriptIsDelete",
                            "OldOut2011ScriptIsDelete",
                            "OldEnt2004ScriptIsDelete",
                            "OldScriptIsDelete",
                            "OldScriptIsDeleteHeader",
                            "SelectOfficeFolder"}) {
      setText(key, "«" + std::string(key) + "»");
    }
  }

  void setText(const std::string& key, const std::string& text) {
    Dictionary overlay;
    overlay.set(key, text);
    texts.overlay(overlay);
  }
  DiskPath real(const std::string& path) const { return locations.onDisk(ProductPath(path)); }
  static std::string inRoot(const std::string& path) { return "root" + path; }  // for folder
  // The rows as a start shows them; false where there is no list.
  bool start() {
    const bool started = lists.searchOfficeApplication().has_value();
    if (started) table.reloadTables();
    return started;
  }
  // Where a record, shipped or loaded, installs to.
  static std::string installFolder(const AddinEntry& entry) {
    const std::string path = addinText(entry, addin_keys::installFolderPath);
    return path.starts_with('/') ? path : std::string(home) + "/" + path;
  }
  std::string item(const AddinEntry& entry) const { return inRoot(installFolder(entry) + "/" + addinItemName(entry)); }

  void ship(std::initializer_list<AddinEntry> entries) const {
    Dictionary root;
    root.set("Office", Array(entries.begin(), entries.end()));
    folder.write("resources/DefaultAddin.plist", writePropertyList(root));
  }
  void remember(std::initializer_list<AddinEntry> entries) {
    defaults.set("Office", Array(entries.begin(), entries.end()));
  }
  // The application and its install folder.
  void setUp(std::initializer_list<AddinEntry> entries) const {
    for (const AddinEntry& entry : entries) {
      folder.makeFolder(inRoot(addinText(entry, addin_keys::appPath)));
      folder.makeFolder(inRoot(installFolder(entry)));
    }
  }
  void resource(const std::string& path, const std::string& bytes) const { folder.write("resources/" + path, bytes); }

  static std::vector<std::string> names(const std::vector<AddinEntry>& rows) {
    std::vector<std::string> all;
    for (const AddinEntry& row : rows) all.push_back(addinText(row, addin_keys::appName));
    return all;
  }
  std::string officeText() const { return outlets.officeInfoField.stringValue(); }
  std::string mailText() const { return outlets.mailinfoField.stringValue(); }

  struct Panes : Outlets {
    Panes() : Outlets("manager") {}
    TabView tab{*this, "myTabView"};
  };

  TemporaryFolder folder;
  Locations locations{folder / "root", folder / "root/Users/taro"};
  PosixFiles disk{locations};
  FaultyFiles files{disk};
  Bundle bundle{files, folder.at("resources"), {"en"}};
  Texts texts;
  UserDefaults defaults{files, real(settings)};
  AddinOutlets outlets;
  Panes panes;
  Log log;
  FakePanels panels{log};
  MailScriptInstaller mailScripts{files, bundle, locations};
  MacroInstaller macros{files, bundle, locations};
  AddinLists lists{{files, bundle, defaults, locations}, mailScripts};
  AddinTable table{{panels, texts}, lists, macros, mailScripts, outlets, panes.tab};
};

using Rows = std::vector<std::string>;

}  // namespace tarvo::test
