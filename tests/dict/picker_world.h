// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "dict/dictionary_loading.h"
#include "dict/new_dictionary.h"
#include "dict/tech_dic_controller.h"
#include "dict/user_list_rows.h"
#include "dict/user_lists.h"
#include "platform/services/notification_center.h"
#include "platform/services/notification_names.h"
#include "platform/services/opener.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"
#include "tests/dict/style_pane_world.h"

namespace tarvo::test {

// The picker, both new-dictionary sheets and the user's lists over the style pane's world. What happens is noted in
// order: beeps, alerts, reloads, writes, windows, sheets and their ends.
struct PickerWorld : StylePaneWorld {
  // userFiles: where the user's two folders lie; the disk when nothing else is given.
  explicit PickerWorld(FileService* otherFiles = nullptr) : userFiles(otherFiles != nullptr ? *otherFiles : files) {
    store.didWrite = [this] { log.emplace_back("wrote"); };
    windows.observer = [this](Windows::Event event, Window& window, int code) { note(event, window, code); };
    notifications.addObserver(this, newDicNotification, [this](const Notification& notification) {
      log.push_back("posted " + notification.object);
      if (createsOnNotification) newDictionary.newDicWindowOKAction(notification.object);
    });
    newDictionary.didFail = [this](const Failure& failure) { failures.push_back(failure); };
    int tag = UserListRows::firstTag;
    for (Control* control : tables.controls()) watch(static_cast<TableView&>(*control), tag++, &userRows);
    watch(picker.techDicTable, 0, &controller);
    watch(picker.UserDicTable, 1, &controller);
    watch(picker.UserTMATable, 2, &controller);
    picker.techDicTable.setColumns({{.identifier = "Value", .checkBox = true}, {.identifier = "dicName"}});
    picker.filterField.didChange = [this] { controller.filterDidChange(); };
    for (TableView* list : {&outlets.ejTDTable, &outlets.jeTDTable}) watch(*list, list->tag(), nullptr);
  }

  void watch(TableView& watched, int tag, TableDataSource* source) {
    watched.setTag(tag);
    if (source != nullptr) watched.setDataSource(source);
    watched.view = [this, &watched](Control::Change change) {
      if (change == Control::Change::reload) log.push_back("reload " + watched.name());
      if (change == Control::Change::scroll) {
        log.push_back("scroll " + watched.name() + " " + std::to_string(watched.scrolledRow()));
      }
    };
  }
  void note(Windows::Event event, const Window& window, int code) {
    switch (event) {
      case Windows::Event::hidden: log.push_back("hidden " + window.name()); break;
      case Windows::Event::modal: log.push_back("modal " + window.name()); break;
      case Windows::Event::modalEnded: log.emplace_back("modal ended"); break;
      case Windows::Event::sheet: log.push_back("sheet " + window.name()); break;
      case Windows::Event::sheetEnded: log.push_back("sheet ended " + std::to_string(code)); break;
      default: break;
    }
  }
  Log takeLog() { return std::exchange(log, {}); }
  void tick(std::initializer_list<int> rows) {
    for (const int row : rows) picker.techDicTable.userTick(row, true);
  }
  Names pickerNames() {
    Names names;
    for (int row = 0; row < picker.techDicTable.numberOfRows(); ++row) {
      names.push_back(picker.techDicTable.cell("dicName", row).text);
    }
    return names;
  }
  std::string userFolder() const { return folder / "Library/Application Support/Wordhaven/UserDic"; }
  std::string memoryFolder() const { return folder / "Library/Application Support/Wordhaven/UserTMA"; }

  FileService& userFiles;
  Log log;
  FakePanels panels{log};
  FakeHost host;
  FakeRunLoop runLoop;
  Windows windows{host, runLoop};
  NotificationCenter notifications;
  PaneAlerts alerts{panels, texts};
  ProcessFlags flags;
  struct MainOutlets : Outlets {
    MainOutlets() : Outlets("manager") {}
    Window myWindow{*this, "myWindow"};
  } manager;
  PickerOutlets picker;
  NewDictionaryOutlets sheet;
  UserListOutlets tables;
  NewDictionaryRequest request;
  UserLists userLists{servicesOver(userFiles)};
  UserListRows userRows{tables, userLists, servicesOver(userFiles), unread};
  DictionaryNameChecks::Services nameServices{userFiles, texts, paths, panels};
  Opener opener{workspace, userFiles};
  TechDicController controller{{picker, windows, opener, alerts, guard, notifications}, nameServices};
  DictionaryLoading loading{editing, controller, request, alerts, guard, texts};
  NewDictionary newDictionary{
      {sheet, tables, manager.myWindow, request, editing, userLists, flags, alerts, guard, notifications, windows},
      nameServices};
  std::vector<Failure> failures;  // that the new dictionary told
  bool createsOnNotification = true;
};

}  // namespace tarvo::test
