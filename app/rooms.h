// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/style_display.h"
#include "app/tool_chooser.h"
#include "dict/dictionary_list_editing.h"
#include "dict/dictionary_loading.h"
#include "dict/dictionary_table.h"
#include "dict/medical_dictionaries.h"
#include "dict/new_dictionary.h"
#include "dict/running_application_guard.h"
#include "dict/tech_dic_controller.h"
#include "dict/user_list_rows.h"
#include "dict/user_lists.h"
#include "install/addin_lists.h"
#include "install/addin_table.h"
#include "install/caution_windows.h"
#include "install/connection_check.h"
#include "install/help_pages.h"
#include "install/macro_installer.h"
#include "install/mail_script_installer.h"
#include "install/office_folder_search.h"
#include "install/old_scripts.h"
#include "install/tool_list_file.h"
#include "style/option_editing.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"
#include "style/style_exchange.h"
#include "style/style_naming.h"
#include "style/style_store.h"

namespace tarvo {

class AppController;
class Program;
class TManagerController;

// The rooms of the program, side by side, and the controllers for whom the interface table connects controls. Not
// owned.
struct Rooms {
  StyleStore& store;
  OptionEditing& options;
  DictionaryListEditing& lists;
  DictionaryTable& dictionaryTable;
  MedicalDictionaries& medical;
  UserLists& userLists;
  UserListRows& userListRows;
  TechDicController& picker;
  DictionaryLoading& loading;
  NewDictionary& newDictionary;
  RunningApplicationGuard& guard;
  PaneAlerts& alerts;
  StyleNaming& naming;
  StyleExchange& exchange;
  StyleDisplay& display;
  ToolChooser& chooser;
  ToolListFile& toolList;
  MailScriptInstaller& mailScripts;
  AddinLists& addins;
  AddinTable& addinTable;
  OfficeFolderSearch& officeSearch;
  OldScripts& oldScripts;
  CautionWindows& cautions;
  ConnectionCheck& connection;
  HelpPages& help;
  ProcessFlags& flags;
  AppController* styles = nullptr;  // set before the table is connected
  TManagerController* manager = nullptr;
};

}  // namespace tarvo
