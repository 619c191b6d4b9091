// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/interface.h"
#include "app/rooms.h"
#include "platform/services/texts.h"

// The picker, its new-dictionary sheet, and that of the style pane.
namespace tarvo {

void Interface::pickerRows(Rooms& rooms, const Texts& texts) {
  TechDicController& controller = rooms.picker;
  Window* window = &picker.myWindow;
  row({.control = *window, .window = window, .label = "Label.pickerWindow"});
  window->close = [&rooms] { rooms.loading.dicWindowCancel(); };
  const auto openFolder = to(controller, &TechDicController::OpenFolder);
  pickerPageRows(controller, texts);
  row({.control = picker.UDTitleField, .window = window});
  row({.control = picker.openUDFolderButton,
       .tag = numberOf(DictionaryKind::user),
       .window = window,
       .action = openFolder});
  const auto newUD = to(controller, &TechDicController::newUD);
  row({.control = picker.newUDButton, .tag = 2, .window = window, .action = newUD});
  row({.control = picker.uTMATitleField, .window = window});
  row({.control = picker.openTMAFolderButton,
       .tag = numberOf(DictionaryKind::memory),
       .window = window,
       .action = openFolder});
  row({.control = picker.newTMAButton, .tag = 3, .window = window, .action = newUD});
  picker.UDTitleField.setStringValue(texts.localized("UDTab"));
  picker.uTMATitleField.setStringValue(texts.localized("UTMATab"));
  row({.control = picker.okButton, .window = window, .action = to(rooms.loading, &DictionaryLoading::dicWindowOK)});
  row({.control = picker.cancelButton,
       .window = window,
       .action = to(rooms.loading, &DictionaryLoading::dicWindowCancel)});

  hiddenPickerRows();
  for (TableView* table : {&picker.techDicTable, &picker.UserDicTable, &picker.UserTMATable}) {
    table->setColumns({{.identifier = picker_columns::check, .checkBox = true}, {.identifier = picker_columns::name}});
    table->setDataSource(&controller);
    table->setDelegate(&controller);
  }
}

void Interface::pickerPageRows(TechDicController& controller, const Texts& texts) {
  picker.myTabView.setPages({{"TDTab", texts.localized("TDTab")}});
  TabView* page = &picker.myTabView;
  row({.control = *page, .window = &picker.myWindow, .label = "Label.pickerTabView"});
  row({.control = picker.TDTitleField, .tab = page});
  row({.control = picker.filterField, .tab = page});
  picker.filterField.didChange = [&controller] { controller.filterDidChange(); };
  row({.control = picker.techDicTable, .tab = page});
  row({.control = picker.selectShownButton, .tab = page, .action = to(controller, &TechDicController::selectShown)});
  row({.control = picker.selectNoneButton, .tab = page, .action = to(controller, &TechDicController::selectNone)});
  row({.control = picker.roomText, .tab = page});
  row({.control = picker.openTDFolderButton, .tab = page, .action = to(controller, &TechDicController::OpenFolder)});
}

// The user's own dictionaries are shown in the style pane; their lists here have no place in the window.
void Interface::hiddenPickerRows() {
  Window* window = &picker.myWindow;
  const auto hidden = [&](Control& control, int tag = 0) {
    row({.control = control, .tag = tag, .window = window, .laidOut = false});
  };
  hidden(picker.UserDicTable, numberOf(DictionaryKind::user));
  hidden(picker.UserTMATable, numberOf(DictionaryKind::memory));
  hidden(picker.ejEditTDButton);
  hidden(picker.jeEditTDButton);
}

void Interface::sheetRows(Rooms& rooms, const Texts& texts) {
  const auto sheet = [&](Window& window, std::initializer_list<Control*> fields, std::string label) {
    window.setTitle(texts.localized(label));
    row({.control = window, .window = &window, .label = std::move(label)});
    for (Control* field : fields) row({.control = *field, .window = &window});
  };
  NewDictionaryOutlets& pane = newDictionary;
  sheet(pane.NewDicWindow,
        {&pane.NewDicText, &pane.NewDicNameField, &pane.NewDicFolderTitleField, &pane.NewDicFolderNameField},
        "Label.NewDicWindow");
  pane.NewDicWindow.close = [&rooms] { rooms.newDictionary.newDicCancelButtonAction(); };
  row({.control = pane.NewDicOKButton,
       .window = &pane.NewDicWindow,
       .action = to(rooms.newDictionary, &NewDictionary::newDicOKButtonAction)});
  row({.control = pane.NewDicCancelButton,
       .window = &pane.NewDicWindow,
       .action = to(rooms.newDictionary, &NewDictionary::newDicCancelButtonAction)});
  sheet(picker.newDicWindow,
        {&picker.newDicTitleField, &picker.newDicNameField, &picker.newDicFolderTitleField,
         &picker.newDicFolderNameField},
        "Label.newDicWindow");
  picker.newDicWindow.close = [&rooms] { rooms.picker.newDicCancelButtonAction(); };
  row({.control = picker.newDicOKButton,
       .window = &picker.newDicWindow,
       .action = to(rooms.picker, &TechDicController::newDicOKButtonAction)});
  row({.control = picker.newDicCancelButton,
       .window = &picker.newDicWindow,
       .action = to(rooms.picker, &TechDicController::newDicCancelButtonAction)});
}

}  // namespace tarvo
