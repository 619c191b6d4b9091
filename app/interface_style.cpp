// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/app_controller.h"
#include "app/interface.h"
#include "app/rooms.h"
#include "platform/services/texts.h"
#include "style/option_table.h"
#include "style/style_keys.h"

// The style pane's menu, tool chooser and options.
namespace tarvo {

void Interface::styleRows(const Actors& actors, const Texts& texts) {
  Rooms& rooms = actors.rooms;
  TabView* pane = &manager.myTabView;
  row({.control = style.stylePopup, .tab = pane, .action = to(actors.styles, &AppController::changeStyle)});
  row({.control = naming.StyleNameEditButton, .tab = pane, .action = to(rooms.naming, &StyleNaming::editStyleName)});
  rooms.chooser.setUpSegments(texts);
  int tag = 0;
  for (SegmentedControl* control : {&style.TEAppSeg1, &style.TEAppSeg2, &style.TEAppSeg3}) {
    row({.control = *control, .tag = tag++, .tab = pane, .action = to(rooms.chooser, &ToolChooser::appSegChange)});
  }
  row({.control = style.toolIcon, .tab = pane});
}

void Interface::optionRows(Rooms& rooms, const Texts& texts) {
  const auto pageItems = [&texts]() -> std::vector<PopUpButton::Item> {
    return {{texts.localized("Page.Dict"), 0}, {texts.localized("Page.Option"), 1}};
  };
  TabView* bothPages = &lists.directionTab;
  row({.control = options.ejEditPopup,
       .tab = bothPages,
       .items = pageItems,
       .action = to(rooms.options, &OptionEditing::selectEjEditPopup)});
  row({.control = options.jeEditPopup,
       .tab = bothPages,
       .page = 1,
       .items = pageItems,
       .action = to(rooms.options, &OptionEditing::selectJeEditPopup)});
  for (TabView* tab : {&options.ejEditTab, &options.jeEditTab}) {
    tab->setPages({{"Dict", texts.localized("Page.Dict")}, {"Option", texts.localized("Page.Option")}});
    row({.control = *tab, .tab = bothPages, .page = tab == &options.jeEditTab ? 1 : 0});
  }
  row({.control = options.ejOptionView, .tab = &options.ejEditTab, .page = 1});
  row({.control = options.jeOptionView, .tab = &options.jeEditTab, .page = 1});
  for (std::size_t i = 0; i < indexOptions().size(); ++i) {
    const IndexOption& option = indexOptions()[i];
    row({.control = options.indexPopups[i],
         .tag = option.popupTag,
         .tab = option.direction == Direction::englishToJapanese ? &options.ejEditTab : &options.jeEditTab,
         .page = 1,
         .label = "Label." + std::string(option.key),
         .items = [&option, &texts] { return itemsFor(option, texts); },
         .action = to(rooms.options, &OptionEditing::optionPopupChange)});
  }
  for (std::size_t i = 0; i < detailOptions().size(); ++i) {
    const DetailOption& option = detailOptions()[i];
    row({.control = options.detailPopups[i],
         .tab = &options.jeEditTab,
         .page = 1,
         .label = "Label." + std::string(option.key),
         .items = [&option, &texts] { return itemsFor(option, texts); },
         .action = to(rooms.options, &OptionEditing::selectJeOptionPopup)});
  }
}

}  // namespace tarvo
