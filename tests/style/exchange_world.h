// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plist/plist_writer.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "style/own_files.h"
#include "style/pane_alerts.h"
#include "style/style_exchange.h"
#include "style/style_store.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {

struct PaneOutlets : Outlets {
  PopUpButton stylePopup{*this, "stylePopup"};
  Window myWindow{*this, "myWindow"};
  PaneOutlets() : Outlets("style") {}
};

// A complete style as it comes in a file, with a key that the manager does not know.
inline Dictionary importedStyle() {
  Dictionary ej, je, style;
  for (const char* key : {"Opt1", "Opt2", "Opt3"}) ej.set(key, 1);
  ej.set("TD", Array{"d.TRet"});
  for (const char* key : {"TOpt1", "TOpt2", "TOpt3"}) je.set(key, 2);
  je.set("TOpt4", false);
  je.set("TOpt5", 1);
  je.set("TD", Array{"j3.TRet"});
  je.set("PARS_SAHEN", "past");
  style.set("Name", "Imported");
  style.set("ID", 99);
  style.set("EJ", ej);
  style.set("JE", je);
  style.set("K", "v");
  return style;
}

// Import and export over a disk in memory, after the start; the product's root is "/product", the home below it.
struct ExchangeWorld {
  void open(const Dictionary& root) {
    files.put("/styles.plist", writePropertyList(root));
    EXPECT_TRUE(store.readUserStyles());
    store.setAwakening(false);
    std::vector<PopUpButton::Item> items;
    if (const Array* styles = root.array("Style")) {
      for (const PropertyList& style : *styles) items.push_back({*style.dictionary()->string("Name"), 0});
    }
    pane.stylePopup.setItems(std::move(items));
  }

  // As the import command does it, for a file that is known.
  bool import(const std::string& path, int index, const std::string& title) {
    std::optional<Dictionary> record = exchange.readForImport(DiskPath(path));
    return record && exchange.install(std::move(*record), index, title);
  }

  Log log;
  MemoryFiles files;
  FakeEngine engine{log};
  FakePanels panels{log};
  FakeHost host;
  FakeRunLoop runLoop;
  Texts texts;
  Locations locations{"/product", "/product/Users/taro"};
  UserDefaults defaults{files, DiskPath("/defaults.plist")};
  StyleStore store{files, engine, defaults, DiskPath("/styles.plist"), DiskPath("/seed.plist")};
  PaneOutlets pane;
  ExportOutlets outlets;
  PaneAlerts alerts{panels, texts};
  Windows windows{host, runLoop};
  OwnFiles ownFiles{files, {DiskPath("/styles.plist"), DiskPath("/defaults.plist")}, DiskPath("/Earlier")};
  StyleExchange exchange{
      {outlets, pane.stylePopup, pane.myWindow, store, files, locations, panels, alerts, windows, texts, ownFiles}};
};

}  // namespace tarvo::test
