// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT

#include <array>

#include "app/app_controller.h"
#include "app/interface.h"
#include "app/panes.h"
#include "app/rooms.h"
#include "app/t_manager_controller.h"
#include "platform/services/texts.h"

// The main window, its toolbar and panes, the small-screen caution and the menus.
namespace tarvo {

namespace {
// Of the tools that the Office macros can start, in the order of their codes.
constexpr std::array<const char*, gAppCreatorArray.size()> officeToolImages{"MG", "TX", "UD", "TMA", "TL", "NP", "QB"};
}  // namespace

void Interface::managerRows(const Actors& actors, const Texts& texts) {
  TManagerController& controller = actors.manager;
  Window* window = &manager.myWindow;
  row({.control = manager.myWindow, .window = window});
  manager.myWindow.didMove = [&controller] { controller.windowDidMove(); };
  manager.myWindow.close = [&controller] { controller.closeWindow(); };
  std::vector<TabView::Page> pages;
  pages.reserve(paneRows.size());
  for (const PaneRow& pane : paneRows) pages.push_back({pane.identifier, texts.localized(pane.titleKey)});
  manager.myTabView.setPages(std::move(pages));
  row({.control = manager.myTabView, .window = window});
  manager.myWindow.setPages(manager.myTabView);
  int tag = 0;
  for (View* pane : {&manager.styleManagerView, &manager.officeAddinView, &manager.mailTransView}) {
    row({.control = *pane, .tag = tag, .tab = &manager.myTabView, .page = tag});
    ++tag;
  }
  row({.control = manager.toolbar, .window = window});
  const auto item = [&](Button& button, const PaneRow& pane) {
    button.setImage(pane.image);
    row({.control = button,
         .tag = tagOf(pane.pane),
         .window = window,
         .label = pane.label,
         .tip = std::string(pane.label) + " Tip",
         .action = to(controller, &TManagerController::selectToolbarAction)});
  };
  item(manager.StyleManager, rowOf(Pane::style));
  item(manager.OA, rowOf(Pane::office));
  item(manager.MT, rowOf(Pane::mail));
  officeToolRow(actors.rooms, texts);
  screenCautionRows(controller.screenCaution(), texts);
}

void Interface::officeToolRow(Rooms& rooms, const Texts& texts) {
  row({.control = tools.officeToolPopup,
       .tab = &manager.myTabView,
       .page = tagOf(Pane::office),
       .items =
           [&texts] {
             std::vector<PopUpButton::Item> items;
             items.reserve(gAppCreatorArray.size());
             for (std::size_t i = 0; i < gAppCreatorArray.size(); ++i) {
               items.push_back(
                   {.title = officeToolTitle(i, texts), .tag = static_cast<int>(i), .image = officeToolImages[i]});
             }
             return items;
           },
       .action = to(rooms.officeTool, &OfficeToolChoice::changeOfficeTool)});
}

void Interface::screenCautionRows(ScreenCaution& room, const Texts& texts) {
  Window* caution = &manager.displayAlertWindow;
  row({.control = *caution, .window = caution});
  caution->setTitle(texts.localized("Label.displayAlertWindow"));
  caution->close = [&room] { room.closeCautionDisplayWindow(); };
  row({.control = manager.displayAlertText, .window = caution, .label = "displayAlertWindow.text"});
  manager.displayAlertText.setStringValue(texts.localized("displayAlertWindow.text"));
  row({.control = manager.noDisplayDialogCheckBox, .window = caution});
  row({.control = manager.displayCloseButton,
       .window = caution,
       .action = to(room, &ScreenCaution::closeCautionDisplayWindow)});
}

void Interface::menuItem(const Actors& actors, MenuItem& menu, int tag, std::string label, Control::Action action) {
  TManagerController& controller = actors.manager;
  menu.validate = [&controller](const MenuItem& asked) { return controller.allowsMenuItem(asked.title()); };
  row({.control = menu, .tag = tag, .label = std::move(label), .action = std::move(action)});
}

void Interface::menuRows(const Actors& actors) {
  TManagerController& controller = actors.manager;
  const auto item = [&](MenuItem& menu, int tag, Control::Action action) {
    menuItem(actors, menu, tag, "", std::move(action));
  };
  item(style.quitMenu, 0, to(actors.styles, &AppController::quitAction));
  const auto newUD = to(actors.rooms.newDictionary, &NewDictionary::newUD);
  item(newDictionary.newEJUDMenu, 10, newUD);
  item(newDictionary.newJEUDMenu, 11, newUD);
  item(newDictionary.newEJTMAMenu, 12, newUD);
  item(newDictionary.newJETMAMenu, 13, newUD);
  item(manager.styleManagerMenu, tagOf(Pane::style), to(controller, &TManagerController::selectToolbarActionforMenu));
  item(manager.officeAddinMenu, tagOf(Pane::office), to(controller, &TManagerController::selectToolbarActionforMenu));
  item(manager.mailMenu, tagOf(Pane::mail), to(controller, &TManagerController::selectToolbarActionforMenu));
  item(manager.toolbarMenu, 0, to(controller, &TManagerController::toggleToolbar));
  item(manager.customizeToolbarMenu, 0, [&controller](Control&) {
    if (controller.customizeToolbar) controller.customizeToolbar();
  });
  item(manager.aboutMenu, 0, to(controller, &TManagerController::showAbout));
}

}  // namespace tarvo
