// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/interface.h"
#include "app/rooms.h"
#include "platform/services/texts.h"

// The Office pane, the mail pane and their cautions.
namespace tarvo {

void Interface::addinRows(Rooms& rooms, const Texts& texts) {
  const auto table = [&](TableView& view, std::vector<TableView::Column> columns, AddinKind kind) {
    view.setColumns(std::move(columns));
    view.setDataSource(&rooms.addinTable);
    view.setDelegate(&rooms.addinTable);
    row({.control = view, .tag = rowOf(kind).tag, .tab = &manager.myTabView, .page = tagOf(rowOf(kind).pane)});
  };
  const auto onPage = [&](Control& control, Pane pane, Control::Action action = {}) {
    row({.control = control, .tab = &manager.myTabView, .page = tagOf(pane), .action = std::move(action)});
  };
  const TableView::Column check{.identifier = addin_columns::check, .checkBox = true};
  table(addins.officeTableView, {check, {addin_columns::name}, {addin_columns::version}}, AddinKind::office);
  onPage(addins.officeInfoField, Pane::office);
  onPage(addins.officeReasonField, Pane::office);
  onPage(addins.officeSearchButton, Pane::office, to(rooms.officeFolder, &OfficeFolderChoice::SelectOfficeFolder));
  onPage(addins.officePowerPointButton, Pane::office, to(rooms.cautions, &CautionWindows::selectPowerPoint));
  table(addins.mailTableView, {check, {addin_columns::name}}, AddinKind::mail);
  onPage(addins.mailinfoField, Pane::mail);
  onPage(addins.mailReasonField, Pane::mail);
  onPage(addins.mailCautionButton, Pane::mail, to(rooms.cautions, &CautionWindows::mailButtonAction));
  onPage(addins.scriptEditorButton, Pane::mail, to(rooms.cautions, &CautionWindows::launchAppleScriptEditor));
  onPage(addins.scriptUtilityButton, Pane::mail, to(rooms.cautions, &CautionWindows::launchAppleScriptUtil));
  addinCautionRows(rooms, texts);
}

void Interface::addinCautionRows(Rooms& rooms, const Texts& texts) {
  struct Caution {
    Window& window;
    TextField& text;
    Button& button;
    const char* outlet;
    void (CautionWindows::*close)();
  };
  for (const Caution& caution :
       {Caution{addins.alertWindow, addins.alertWindowText, addins.alertCloseButton, "alertWindow",
                &CautionWindows::closeCautionWindow},
        Caution{addins.alertWindowSL, addins.alertWindowSLText, addins.alertSLCloseButton, "alertWindowSL",
                &CautionWindows::closeCautionWindow},
        Caution{addins.alertPowerPoint, addins.alertPowerPointText, addins.powerPointCloseButton, "alertPowerPoint",
                &CautionWindows::closePowerPoint}}) {
    const std::string outlet = caution.outlet;
    row({.control = caution.window, .window = &caution.window});
    caution.window.setTitle(texts.localized("Label." + outlet));
    caution.window.close = [&rooms, close = caution.close] { (rooms.cautions.*close)(); };
    row({.control = caution.text, .window = &caution.window, .label = outlet + ".text"});
    caution.text.setStringValue(texts.localized(outlet + ".text"));
    row({.control = caution.button, .window = &caution.window, .action = to(rooms.cautions, caution.close)});
  }
}

}  // namespace tarvo
