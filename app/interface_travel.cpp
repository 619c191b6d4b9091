// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/app_controller.h"
#include "app/interface.h"
#include "app/rooms.h"
#include "platform/services/texts.h"

// How styles travel: the naming sheet, import and export, the connection sheet, and the help beside them.
namespace tarvo {

void Interface::travelRows(const Actors& actors, const Texts& texts) {
  Rooms& rooms = actors.rooms;
  Window* sheet = &naming.styleNameWindow;
  sheet->setTitle(texts.localized("Label.styleNameWindow"));
  sheet->close = [&rooms] { rooms.naming.snCancelButtonAction(); };
  row({.control = *sheet, .window = sheet});
  row({.control = naming.styleNameField, .window = sheet});
  row({.control = naming.snOKButton, .window = sheet, .action = to(rooms.naming, &StyleNaming::snOKButtonAction)});
  row({.control = naming.snCancelButton,
       .window = sheet,
       .action = to(rooms.naming, &StyleNaming::snCancelButtonAction)});

  Window* window = &exchange.exportWindow;
  window->setTitle(texts.localized("Label.exportWindow"));
  window->close = [&rooms] { rooms.exchange.closeExportWindow(); };
  row({.control = *window, .window = window});
  row({.control = exchange.exportStylePopup, .window = window});
  row({.control = exchange.exportButton,
       .window = window,
       .action = to(rooms.exchange, &StyleExchange::exportButtonAction)});
  row({.control = exchange.exportCloseButton,
       .window = window,
       .action = to(rooms.exchange, &StyleExchange::closeExportWindow)});
  menuItem(actors, exchange.importMenu, 0, "StyleInportMenu", to(actors.styles, &AppController::importStyle));
  menuItem(actors, exchange.exportMenu, 0, "StyleExportMenu", to(rooms.exchange, &StyleExchange::exportStyle));
  menuItem(actors, exchange.exportWindowMenu, 0, "", to(rooms.exchange, &StyleExchange::exportStyle2));
}

void Interface::connectionRows(const Actors& actors, const Texts& texts) {
  Rooms& rooms = actors.rooms;
  Window* sheet = &connection.sslPanel;
  sheet->setTitle(texts.localized("Label.sslPanel"));
  row({.control = *sheet, .window = sheet});
  row({.control = connection.sslText, .window = sheet});
  connection.sslText.setStringValue(texts.localized("sslPanel.text"));
  row({.control = connection.sslCheck, .window = sheet});
  row({.control = connection.sslOKButton,
       .window = sheet,
       .action = to(rooms.connection, &ConnectionCheck::actionPanel)});

  menuItem(actors, help.helpMenu, 0, "appHelp", to(rooms.help, &HelpPages::showHelp));
  menuItem(actors, help.homepageMenu, 0, "whHelp", to(rooms.help, &HelpPages::GotoWordhavenPage));
  menuItem(actors, help.supportMenu, 0, "supportHelp", to(rooms.help, &HelpPages::GotoRegiandSupportPage));
  menuItem(actors, help.oldTechMenu, 0, "oldEJTechMenu", to(rooms.help, &HelpPages::aboutOldEtoJTech));
}

}  // namespace tarvo
