// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/services.h"
#include "platform/plist/property_list.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"
#include "style/sibling_tools.h"

// The controller of the style pane.
// Duty: start the pane, and run the sequences that cross rooms: loading, choosing a style, choosing a tool, taking
// styles from a file or the engine, answering other tools.
// Not: anything that one room can do alone.
namespace tarvo {

class Interface;
class NotificationCenter;
class UserDefaults;
struct CallerRequest;
struct Rooms;

class AppController {
 public:
  // terminate: asks the program to end; the sequence that asked stops at once.
  AppController(Interface& interface, Rooms& rooms, const Services& services, UserDefaults& defaults,
                NotificationCenter& notifications, std::function<void()> terminate);
  ~AppController();
  AppController(const AppController&) = delete;
  AppController& operator=(const AppController&) = delete;

  void init();

  // False: start-up failed and the program ends.
  bool awakeFromNib();
  // Action of the style menu; also run by the choice of a tool.
  void changeStyle();
  // Shows the styles after a change that no control made; the chosen tool and its style stay.
  void showStylesAgain();
  void selectTableViewAction(Tool tool);
  // Lets the user choose a style file and puts it in the place of the chosen style.
  void importStyle();
  // The same for a file that is known. False after an alert; nothing has changed.
  bool readImportStyle(const DiskPath& path);
  // The same in two steps, for who asks the user in between.
  std::optional<Dictionary> readForImport(const DiskPath& path);
  bool installStyle(const Dictionary& record, const DiskPath& from);
  // Makes the styles here and those of the engine one, and shows them when they came from there.
  void sendPlist();
  // A request of another tool: the bytes of its first item, nothing for a request without one; or its code as text. The
  // tool is chosen first, then the pane comes forward.
  void handleAppleEvent(const std::optional<std::string>& bytes);
  void handleCallerCode(std::string_view code);
  int getOSVersion() const;
  void quitAction() { terminate_(); }

 private:
  bool loadUserInfor();
  void tellThatNothingCanBeDone(const Failure& failure);
  void createDictControllers();
  void showStyles();  // all of them anew: the menu, the remembered tool and its style, the first pages
  void restoreTool();
  void showStyle(int index);
  void adaptButtons();
  void showFirstPages();
  std::string importedInWords(const Dictionary& record, int index, const DiskPath& from) const;
  void answerCaller(const CallerRequest& request);

  Interface& interface_;
  Rooms& rooms_;
  const Services& services_;
  UserDefaults& defaults_;
  NotificationCenter& notifications_;
  std::function<void()> terminate_;
};

}  // namespace tarvo
