// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/dialogs.h"

#include "app/interface.h"
#include "qt/sheets/caution_window.h"
#include "qt/sheets/connection_sheet.h"
#include "qt/sheets/earlier_styles_window.h"
#include "qt/sheets/export_window.h"
#include "qt/sheets/naming_dialog.h"
#include "qt/sheets/new_dictionary_dialog.h"
#include "qt/sheets/picker_window.h"
#include "qt/window/qt_windows.h"

namespace tarvo {
namespace {

NewDictionaryControls controlsOf(NewDictionaryOutlets& pane) {
  return {pane.NewDicWindow,          pane.NewDicText,     pane.NewDicNameField,   pane.NewDicFolderTitleField,
          pane.NewDicFolderNameField, pane.NewDicOKButton, pane.NewDicCancelButton};
}

NewDictionaryControls controlsOf(PickerOutlets& picker) {
  return {picker.newDicWindow,           picker.newDicTitleField,      picker.newDicNameField,
          picker.newDicFolderTitleField, picker.newDicFolderNameField, picker.newDicOKButton,
          picker.newDicCancelButton};
}

}  // namespace

void addDialogs(QtWindows& windows, Interface& interface, Binder& binder) {
  ManagerOutlets& manager = interface.manager;
  AddinOutlets& addins = interface.addins;
  for (const CautionControls& controls :
       {CautionControls{manager.displayAlertWindow, manager.displayAlertText, manager.displayCloseButton,
                        &manager.noDisplayDialogCheckBox},
        CautionControls{addins.alertWindow, addins.alertWindowText, addins.alertCloseButton},
        CautionControls{addins.alertWindowSL, addins.alertWindowSLText, addins.alertSLCloseButton},
        CautionControls{addins.alertPowerPoint, addins.alertPowerPointText, addins.powerPointCloseButton}}) {
    windows.addDialog(controls.window,
                      [controls, &binder](QWidget* parent) { return buildCaution(controls, binder, parent); });
  }
  windows.addDialog(interface.picker.myWindow,
                    [&interface, &binder](QWidget* parent) { return buildPicker(interface.picker, binder, parent); });
  windows.addDialog(interface.naming.styleNameWindow, [&interface, &binder](QWidget* parent) {
    return buildNamingDialog(interface.naming, binder, parent);
  });
  windows.addDialog(interface.exchange.exportWindow, [&interface, &binder](QWidget* parent) {
    return buildExportWindow(interface.exchange, binder, parent);
  });
  windows.addDialog(interface.earlier.earlierStylesWindow, [&interface, &binder](QWidget* parent) {
    return buildEarlierStyles(interface.earlier, binder, parent);
  });
  windows.addDialog(interface.connection.sslPanel, [&interface, &binder](QWidget* parent) {
    return buildConnectionSheet(interface.connection, binder, parent);
  });
  for (const NewDictionaryControls& controls : {controlsOf(interface.newDictionary), controlsOf(interface.picker)}) {
    windows.addDialog(controls.window, [controls, &binder](QWidget* parent) {
      return buildNewDictionaryDialog(controls, binder, parent);
    });
  }
}

}  // namespace tarvo
