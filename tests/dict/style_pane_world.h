// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "dict/dictionary_list_editing.h"
#include "dict/dictionary_table.h"
#include "dict/running_application_guard.h"
#include "dict/unread_folders.h"
#include "platform/engine/engine_none.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/plist_file.h"
#include "platform/services/user_defaults.h"
#include "style/style_keys.h"
#include "style/style_store.h"
#include "tests/dict/dictionary_world.h"
#include "tests/support/fake_shell.h"

namespace tarvo::test {

inline Array arrayOf(const Names& names) { return {names.begin(), names.end()}; }

// The style file, a style menu and the outlets of the list pages over a world of dictionaries.
struct StylePaneWorld : DictionaryWorld {
  struct MenuOutlets : Outlets {
    MenuOutlets() : Outlets("style") {}
    PopUpButton stylePopup{*this, "stylePopup"};
  };

  StylePaneWorld() {
    for (const char* key : {"EJTab", "JETab", "TDTab", "UDTab", "UTMATab"}) setText(key, "«" + std::string(key) + "»");
    folder.makeFolder("japanese");
    outlets.jeTDTable.setTag(1);
    for (TableView* shown : {&outlets.ejTDTable, &outlets.jeTDTable}) {
      shown->setDataSource(&table);
      shown->setDelegate(&table);
      shown->setAllowsMultipleSelection(true);
      shown->registerForDraggedTypes({"row"});
    }
    store.didWrite = [this] { ++writes; };
    guard.observer = [this](int kind) { changedKinds.push_back(kind); };
  }

  // Makes this the style file's content and shows its first style's lists.
  void open(const Array& styles) {
    Dictionary root;
    root.set(keyNameStyle, styles);
    ASSERT_TRUE(PlistFile(files, stylePath).write(root));
    ASSERT_TRUE(store.readUserStyles());
    std::vector<PopUpButton::Item> items(styles.size());
    menu.stylePopup.setItems(items);
  }
  // One style with both bothDirections, the given dictionaries on disk and loaded.
  void openWithLists(const Names& english, const Names& japanese) {
    for (const std::string& name : english) folder.write("dictionaries/" + name, "");
    for (const std::string& name : japanese) folder.write("japanese/" + name, "");
    Dictionary ej, je, style;
    ej.set("Opt1", 1);
    ej.set("Foo", "kept");
    if (!english.empty()) ej.set(keyNameTD, arrayOf(english));
    je.set("TOpt4", true);
    if (!japanese.empty()) je.set(keyNameTD, arrayOf(japanese));
    style.set(keyNameName, "Standard");
    style.set(keyNameEJ, ej);
    style.set(keyNameJE, je);
    open({style});
    showLists(english, japanese);
  }
  void showLists(const Names& english, const Names& japanese) {
    editing.ejTDController().initializeDictController(technical, dictionaryFolder(), EJ);
    editing.jeTDController().initializeDictController(technical, folder.at("japanese"), JE);
    editing.ejTDController().updateDictionary(english);
    editing.jeTDController().updateDictionary(japanese);
    outlets.ejTDTable.reloadData();
    outlets.jeTDTable.reloadData();
    for (const Direction direction : bothDirections) editing.updateButton(direction);
    writes = 0;
  }

  // The first style as another program reads it from the disk.
  Dictionary styleOnDisk() {
    const auto root = PlistFile(files, stylePath).read();
    const Array* styles = root ? root->array(keyNameStyle) : nullptr;
    return styles != nullptr && !styles->empty() ? *styles->front().dictionary() : Dictionary{};
  }
  Dictionary halfOnDisk(std::string_view direction) {
    const Dictionary style = styleOnDisk();
    const Dictionary* half = style.dictionary(direction);
    return half != nullptr ? *half : Dictionary{};
  }
  // The stored list; "(absent)" alone when there is none.
  Array listOnDisk(std::string_view direction) {
    const Dictionary half = halfOnDisk(direction);
    const Array* list = half.array(keyNameTD);
    return list != nullptr ? *list : Array{"(absent)"};
  }

  DiskPath stylePath = folder.at("styles.plist");
  EngineNone engine;
  UserDefaults defaults{files, folder.at("defaults.plist")};
  StyleStore store{files, engine, defaults, stylePath, folder.at("seed.plist")};
  MenuOutlets menu;
  FakeWorkspace workspace;
  ListOutlets outlets;
  RunningApplicationGuard guard{workspace, paths};
  UnreadFolders unread{texts};
  DictionaryListEditing editing{store, menu.stylePopup, outlets, texts, services(), guard, unread};
  DictionaryTable table{editing, texts};
  int writes = 0;
  std::vector<int> changedKinds;  // of the lists that were told to have changed
};

}  // namespace tarvo::test
