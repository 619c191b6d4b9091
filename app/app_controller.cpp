// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/app_controller.h"

#include <utility>

#include "app/interface.h"
#include "app/rooms.h"
#include "app/style_loading.h"
#include "app/style_menu.h"
#include "app/tool_switch.h"
#include "dict/dictionary_folders.h"
#include "platform/services/failure_text.h"
#include "platform/services/notification_center.h"
#include "platform/services/notification_names.h"
#include "platform/services/panels.h"
#include "platform/services/system_version.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "style/sibling_tools.h"
#include "style/style_keys.h"

namespace tarvo {

AppController::AppController(Interface& interface, Rooms& rooms, const Services& services, UserDefaults& defaults,
                             NotificationCenter& notifications, std::function<void()> terminate)
    : interface_(interface),
      rooms_(rooms),
      services_(services),
      defaults_(defaults),
      notifications_(notifications),
      terminate_(std::move(terminate)) {}

AppController::~AppController() { notifications_.removeObserver(this); }

void AppController::init() {
  notifications_.addObserver(this, newDicNotification, [this](const Notification& notification) {
    rooms_.newDictionary.newDicWindowOKAction(notification.object);
  });
  notifications_.addObserver(this, sendPlistNoti, [this](const Notification&) { sendPlist(); });
}

bool AppController::awakeFromNib() {
  if (!loadUserInfor()) return false;
  createDictControllers();
  showStyles();
  interface_.options.ejOptionView.scrollToTop();
  interface_.options.jeOptionView.scrollToTop();
  rooms_.store.setAwakening(false);
  return true;
}

void AppController::showStyles() {
  fillStyleMenu(interface_.style.stylePopup, rooms_.store, services_.texts);
  restoreTool();
  adaptButtons();
  showFirstPages();
}

void AppController::createDictControllers() {
  for (const Direction direction : bothDirections) {
    rooms_.lists.setUp(direction, dictionaryFolder(services_.paths, DictionaryKind::technical, direction));
  }
  interface_.lists.ejTDTable.registerForDraggedTypes({"row"});
  interface_.lists.jeTDTable.registerForDraggedTypes({"row"});
  rooms_.userLists.setUp();
  UserListOutlets& tables = interface_.userLists;
  for (TableView* table :
       {&tables.ejUDTableView, &tables.ejUTMATableView, &tables.jeUDTableView, &tables.jeUTMATableView}) {
    table->reloadData();
  }
}

bool AppController::loadUserInfor() {
  const LoadedStyles loaded = loadStyles(rooms_.store, rooms_.medical, services_.files, services_.paths);
  if (loaded.failure) {
    tellThatNothingCanBeDone(*loaded.failure);
    return false;
  }
  rooms_.medical.remember(loaded.inserted);
  if (rooms_.store.isPending()) rooms_.store.writeTarvoStylePlist();
  rooms_.news.didLoad(loaded.filledIn, loaded.isFileAbsent);
  return true;
}

void AppController::tellThatNothingCanBeDone(const Failure& failure) {
  const Texts& texts = services_.texts;
  services_.panels.beep();
  services_.panels.runAlertPanel({texts.localized("ApplicationCautionHeader"),
                                  texts.localized("ApplicationCautionMessage"),
                                  {texts.localized("AlertClose")},
                                  failureText(failure, texts)});
  terminate_();
}

void AppController::restoreTool() { rooms_.chooser.setSelectSeg(placeOf(rememberedTool(defaults_, services_.texts))); }

void AppController::showFirstPages() {
  OptionOutlets& options = interface_.options;
  options.ejEditPopup.selectItemAtIndex(0);
  options.jeEditPopup.selectItemAtIndex(0);
  rooms_.options.selectEjEditPopup();
  rooms_.options.selectJeEditPopup();
}

void AppController::changeStyle() {
  const int index = interface_.style.stylePopup.indexOfSelectedItem();
  showStyle(index);
  rooms_.store.setSelection(index);
  adaptButtons();
}

void AppController::showStyle(int index) {
  rooms_.lists.ejTDController().clearInformation();
  rooms_.lists.jeTDController().clearInformation();
  rooms_.display.setupStyleData2(index);
  interface_.lists.ejTDTable.reloadData();
  interface_.lists.jeTDTable.reloadData();
}

void AppController::adaptButtons() {
  for (const Direction direction : bothDirections) rooms_.lists.updateButton(direction);
  rooms_.naming.updateStyleNameButton();
}

void AppController::showStylesAgain() {
  PopUpButton& stylePopup = interface_.style.stylePopup;
  const int shown = stylePopup.indexOfSelectedItem();
  fillStyleMenu(stylePopup, rooms_.store, services_.texts);
  stylePopup.selectItemAtIndex(rooms_.store.getSelection() != nullptr ? rooms_.store.selectedStyle() : shown);
  showStyle(stylePopup.indexOfSelectedItem());
  adaptButtons();
}

void AppController::selectTableViewAction(Tool tool) {
  interface_.style.toolIcon.setImage(std::string(rowOf(tool).icon));
  const auto chooseStyle = [this](int index) -> Result<> {
    interface_.style.stylePopup.selectItemAtIndex(index);
    changeStyle();
    return {};  // what could not be written stands at the foot of the window, and the tool is chosen all the same
  };
  const Result<> switched = switchTool(tool, rooms_.store, defaults_, services_.texts, chooseStyle);
  (void)switched;  // no choice fails here
}

int AppController::getOSVersion() const { return systemVersion(services_.files, services_.locations); }

}  // namespace tarvo
