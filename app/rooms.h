// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/history/notices.h"
#include "app/history/style_joining.h"
#include "app/history/style_news.h"
#include "app/history/undo_commands.h"
#include "app/interface.h"
#include "app/service_client.h"
#include "app/services.h"
#include "app/style_display.h"
#include "app/tool_chooser.h"
#include "app/user_files.h"
#include "dict/dictionary_list_editing.h"
#include "dict/dictionary_loading.h"
#include "dict/dictionary_table.h"
#include "dict/medical_dictionaries.h"
#include "dict/merge_knowledge.h"
#include "dict/new_dictionary.h"
#include "dict/running_application_guard.h"
#include "dict/tech_dic_controller.h"
#include "dict/unread_folders.h"
#include "dict/user_list_rows.h"
#include "dict/user_lists.h"
#include "install/addin_lists.h"
#include "install/addin_table.h"
#include "install/caution_windows.h"
#include "install/connection_check.h"
#include "install/help_pages.h"
#include "install/macro_installer.h"
#include "install/mail_script_installer.h"
#include "install/office_folder_choice.h"
#include "install/office_folder_search.h"
#include "install/office_tool_choice.h"
#include "install/old_scripts.h"
#include "install/tool_list_file.h"
#include "platform/services/common_module.h"
#include "platform/services/locations.h"
#include "platform/services/opener.h"
#include "platform/services/texts.h"
#include "style/option_editing.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"
#include "style/quit_question.h"
#include "style/style_exchange.h"
#include "style/style_keys.h"
#include "style/style_naming.h"
#include "style/style_store.h"

namespace tarvo {

class NotificationCenter;
class UserDefaults;

// The rooms of the program, side by side. This is the list of them: each stands here once, with what it works with, and
// is made after those above it.
struct Rooms {
  // What surrounds them all. Not owned.
  struct With {
    Interface& interface;
    const Services& services;
    UserDefaults& defaults;
    NotificationCenter& notifications;
    Windows& windows;
    std::function<void(Tool tool)> chooseTool;  // the sequence that follows the choice of a tool
    std::function<void()> showStyles;           // the one that follows a change of the styles by no control
  };
  explicit Rooms(With with);
  ~Rooms();
  Rooms(const Rooms&) = delete;
  Rooms& operator=(const Rooms&) = delete;

 private:
  void follow(const Notice& notice);
  void hearLater();
  const std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);  // the loop may outlive the rooms
  With with_;
  Interface& interface_ = with_.interface;
  const Services& services_ = with_.services;
  const Texts& texts_ = services_.texts;
  UserDefaults& defaults_ = with_.defaults;
  Windows& windows_ = with_.windows;
  PopUpButton& stylePopup_ = interface_.style.stylePopup;
  Window& myWindow_ = interface_.manager.myWindow;
  const Locations& locations_ = services_.locations;
  const DictController::Services dictionaryServices_{services_.files, texts_, services_.bundle, services_.paths,
                                                     locations_};
  const DictionaryNameChecks::Services nameServices_{services_.files, texts_, services_.paths, services_.panels};
  TarvoCommonModule module_{services_.paths};
  NewDictionaryRequest request_;

 public:
  ProcessFlags flags;
  Notices notices;
  Opener opener{services_.workspace, services_.files};
  PaneAlerts alerts{services_.panels, texts_};
  EarlierStyles earlierStyles{services_.files, locations_.inHome(gEarlierStyles)};
  StyleStore store{services_.files,
                   services_.engine,
                   defaults_,
                   locations_.inHome(gStylePath),
                   locations_.onDisk(ProductPath(std::string(gAppSupportStylePlist))),
                   &earlierStyles};
  OptionEditing options{store, interface_.options, texts_};
  RunningApplicationGuard guard{services_.workspace, services_.paths};
  UnreadFolders unreadFolders{texts_};
  DictionaryListEditing lists{store, stylePopup_, interface_.lists, texts_, dictionaryServices_, guard, unreadFolders};
  DictionaryTable dictionaryTable{lists, texts_};
  MedicalDictionaries medical{{services_.files, locations_, services_.paths, texts_, defaults_, store}};
  UserLists userLists{dictionaryServices_};
  UserListRows userListRows{interface_.userLists, userLists, dictionaryServices_, unreadFolders};
  TechDicController picker{{interface_.picker, windows_, opener, alerts, guard, with_.notifications}, nameServices_};
  DictionaryLoading loading{lists, picker, request_, alerts, guard, texts_};
  NewDictionary newDictionary{{interface_.newDictionary, interface_.userLists, myWindow_, request_, lists, userLists,
                               flags, alerts, guard, with_.notifications, windows_},
                              nameServices_};
  StyleNaming naming{{interface_.naming, stylePopup_, myWindow_, store, flags, alerts, windows_},
                     texts_.localized(nomalStyle)};
  OwnFiles ownFiles = ownFilesOf(services_.files, locations_, services_.paths);
  StyleExchange exchange{{interface_.exchange, stylePopup_, myWindow_, store, services_.files, services_.locations,
                          services_.panels, alerts, windows_, texts_, ownFiles}};
  QuitQuestion quitting{{store, services_.panels, texts_, locations_, windows_.covers(), myWindow_, ownFiles}};
  StyleDisplay display{store, options, lists, texts_};
  UndoSteps undoSteps{store};
  UndoCommands undo{{undoSteps, interface_.style.undoMenu, interface_.style.redoMenu, interface_.manager.myTabView,
                     myWindow_, windows_, flags, notices, texts_, with_.showStyles}};
  StyleNews news{{store, earlierStyles, services_.runLoop, undoSteps, notices, texts_}};
  EarlierStylesPanel earlierPanel{{interface_.earlier, stylePopup_, store, earlierStyles, windows_, undoSteps, notices,
                                   texts_, texts_.localized(nomalStyle), with_.showStyles}};
  StyleJoining joining{{store, earlierStyles, services_.panels, notices, undo, undoSteps, texts_,
                        [this] { return mergeKnowledge(dictionaryServices_, medical); }, with_.showStyles,
                        [this](const std::string& id) { earlierPanel.run(id); }}};
  ServiceClient service{{services_.engine, store, defaults_,
                         locations_.onDisk(ProductPath(std::string(gAppSupportStylePlist))),
                         locations_.inHome(gEarlierStyles),
                         [this] { return mergeKnowledge(dictionaryServices_, medical); }, [this] { hearLater(); }}};
  NoticeBoard board{interface_.notices, notices, texts_, [this](const Notice& notice) { follow(notice); }};
  ToolChooser chooser{interface_.style, interface_.options, flags, with_.chooseTool};
  ToolListFile toolList{services_.files, defaults_, module_, toolListPath(services_.locations)};
  OfficeToolChoice officeTool{interface_.tools, toolList};
  MailScriptInstaller mailScripts{services_.files, services_.bundle, locations_};
  MacroInstaller macros{services_.files, services_.bundle, locations_};
  AddinLists addins{{services_.files, services_.bundle, defaults_, locations_}, mailScripts};
  AddinTable addinTable{{services_.panels, texts_},  addins, macros, mailScripts, interface_.addins,
                        interface_.manager.myTabView};
  OfficeFolderSearch officeSearch{
      {services_.files, services_.locations, services_.scripts, module_}, addins, mailScripts};
  OfficeFolderChoice officeFolder{services_.panels, texts_, officeSearch, addinTable};
  OldScripts oldScripts{{services_.files, services_.panels, texts_}, addins, mailScripts, locations_.home()};
  CautionWindows cautions{interface_.addins, windows_, services_.files, locations_, opener};
  ConnectionCheck connection{{interface_.connection, myWindow_, services_.engine, defaults_, with_.notifications,
                              services_.panels, services_.runLoop, windows_, texts_}};
  HelpPages help{services_.bundle, services_.paths, texts_, opener};
};

}  // namespace tarvo
