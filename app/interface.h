// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "app/history/earlier_styles_panel.h"
#include "app/history/notice_board.h"
#include "app/toolbar.h"
#include "dict/dictionary_list_editing.h"
#include "dict/new_dictionary.h"
#include "dict/tech_dic_controller.h"
#include "dict/user_list_rows.h"
#include "install/addin_outlets.h"
#include "install/connection_check.h"
#include "install/help_pages.h"
#include "install/office_tool_choice.h"
#include "platform/controls/controls.h"
#include "platform/controls/windows.h"
#include "style/option_editing.h"
#include "style/style_exchange.h"
#include "style/style_naming.h"

// The interface file: every control of the program, where it stands, what it is called, what it does. One row per
// control; the table is the only place where an action is connected.
namespace tarvo {

class AppController;
class ScreenCaution;
class TManagerController;
class Texts;
struct Rooms;

// Whose operations the controls are connected to. Not owned.
struct Actors {
  Rooms& rooms;
  AppController& styles;
  TManagerController& manager;
};

struct StyleOutlets : Outlets {
  PopUpButton stylePopup{*this, "stylePopup"};
  SegmentedControl TEAppSeg1{*this, "TEAppSeg1"}, TEAppSeg2{*this, "TEAppSeg2"}, TEAppSeg3{*this, "TEAppSeg3"};
  ImageView toolIcon{*this, "toolIcon"};
  MenuItem quitMenu{*this, "quitMenu"};
  MenuItem undoMenu{*this, "undoMenu"}, redoMenu{*this, "redoMenu"}, earlierStylesMenu{*this, "earlierStylesMenu"};
  StyleOutlets() : Outlets("style") {}
};

struct ManagerOutlets : Outlets {
  Window myWindow{*this, "myWindow"};
  TabView myTabView{*this, "myTabView"};  // its page is the pane's tag
  View styleManagerView{*this, "styleManagerView"};
  View officeAddinView{*this, "officeAddinView"};
  View mailTransView{*this, "mailTransView"};
  Toolbar toolbar{*this, "toolbar"};
  Button StyleManager{*this, "StyleManager"}, OA{*this, "OA"}, MT{*this, "MT"};  // the toolbar's items
  Window displayAlertWindow{*this, "displayAlertWindow"};                        // the small-screen caution
  TextField displayAlertText{*this, "displayAlertText", Control::Kind::text};
  CheckBox noDisplayDialogCheckBox{*this, "noDisplayDialogCheckBox"};
  Button displayCloseButton{*this, "displayCloseButton"};
  MenuItem styleManagerMenu{*this, "styleManagerMenu"}, officeAddinMenu{*this, "officeAddinMenu"},
      mailMenu{*this, "mailMenu"};
  MenuItem toolbarMenu{*this, "toolbarMenu"}, customizeToolbarMenu{*this, "customizeToolbarMenu"},
      aboutMenu{*this, "aboutMenu"};
  ManagerOutlets() : Outlets("manager") {}
};

struct Row {
  Control& control;  // brings owner, outlet and kind
  int tag = 0;
  Window* window = nullptr;
  TabView* tab = nullptr;  // where it stands on a page of a tab view
  int page = 0;
  bool laidOut = true;     // false: no window draws it (Control::isLaidOut)
  std::string label = {};  // text key; "Label.<outlet>" when empty. The label is the accessible name too
  std::string tip = {};    // text key; none when empty
  std::function<std::vector<PopUpButton::Item>()> items = {};
  Control::Action action = {};
};

class Interface {
 public:
  StyleOutlets style;
  OptionOutlets options;
  ListOutlets lists;
  UserListOutlets userLists;
  NewDictionaryOutlets newDictionary;
  NamingOutlets naming;
  ExportOutlets exchange;
  ManagerOutlets manager;
  ToolListOutlets tools;
  ConnectionOutlets connection;
  HelpOutlets help;
  PickerOutlets picker;
  AddinOutlets addins;
  EarlierStylesOutlets earlier;
  NoticeOutlets notices;

  Interface() = default;
  Interface(const Interface&) = delete;
  Interface& operator=(const Interface&) = delete;

  // Fills the rows and applies them: tags, places, labels, items, actions.
  void connect(const Actors& actors, const Texts& texts);
  const std::vector<Row>& rows() const { return rows_; }
  std::vector<Control*> controls() const;  // of every outlet struct
  // "style.stylePopup", or "stylePopup" without the owner; case-sensitive. Null when there is none. Names that the
  // picker shares with the main window mean the main window's, so that scripts from before the picker run unchanged.
  Control* find(std::string_view name) const;

 private:
  void styleRows(const Actors& actors, const Texts& texts);
  void optionRows(Rooms& rooms, const Texts& texts);
  void listRows(Rooms& rooms, const Texts& texts);
  void tellChosenPages(Rooms& rooms);
  void userListRows(Rooms& rooms);
  void pickerRows(Rooms& rooms, const Texts& texts);
  void pickerPageRows(TechDicController& controller, const Texts& texts);
  void hiddenPickerRows();
  void travelRows(const Actors& actors, const Texts& texts);
  void connectionRows(const Actors& actors, const Texts& texts);
  void sheetRows(Rooms& rooms, const Texts& texts);
  void managerRows(const Actors& actors, const Texts& texts);
  void officeToolRow(Rooms& rooms, const Texts& texts);
  void screenCautionRows(ScreenCaution& room, const Texts& texts);
  void addinRows(Rooms& rooms, const Texts& texts);
  void addinCautionRows(Rooms& rooms, const Texts& texts);
  void menuRows(const Actors& actors);
  void editRows(const Actors& actors);
  void earlierStylesRows(Rooms& rooms, const Texts& texts);
  void noticeRows(Rooms& rooms);
  // A menu command, which both controllers must allow.
  void menuItem(const Actors& actors, MenuItem& menu, int tag, std::string label, Control::Action action);
  void row(Row row) { rows_.push_back(std::move(row)); }
  void apply(const Texts& texts);
  std::vector<Row> rows_;
};

// receiver(member) for the three shapes of an action: f(), f(Control& sender), f(int senderTag).
template <class R>
Control::Action to(R& receiver, void (R::*member)()) {
  return [&receiver, member](Control&) { (receiver.*member)(); };
}
template <class R>
Control::Action to(R& receiver, void (R::*member)(Control&)) {
  return [&receiver, member](Control& sender) { (receiver.*member)(sender); };
}
template <class R>
Control::Action to(R& receiver, void (R::*member)(int)) {
  return [&receiver, member](Control& sender) { (receiver.*member)(sender.tag()); };
}

}  // namespace tarvo
