// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include "app/product.h"
#include "platform/controls/controls.h"
#include "platform/controls/table_view.h"
#include "platform/controls/windows.h"
#include "qt/bind/binder.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

// A control of each kind, and what their actions have told.
struct SampleOutlets : Outlets {
  Button button{*this, "button"};
  CheckBox check{*this, "check"};
  TextField field{*this, "field"}, text{*this, "text", Control::Kind::text};
  ImageView image{*this, "image"};
  PopUpButton popup{*this, "popup"};
  SegmentedControl segments{*this, "segments"};
  TabView tabs{*this, "tabs"};
  View view{*this, "view"};
  TableView table{*this, "table"}, otherTable{*this, "otherTable"};
  MenuItem menu{*this, "menu"};
  Window window{*this, "window"};
  int actions = 0;

  SampleOutlets() : Outlets("test") {
    for (Control* control : controls()) {
      control->setLabel("Label of " + control->name());
      control->action = [this](Control&) { ++actions; };
    }
    popup.setItems({{"first", 10}, {"second", 11}, {"a line", 12, true}, {"last", 13}});
    segments.setSegments({{"MG", "one"}, {"TX", "two"}, {"", "none", false}});
    tabs.setPages({{"A", "First page"}, {"B", "Second page"}});
  }
};

// A binder over the shipped texts and pictures, and a shown window that its widgets stand in.
struct BoundControls {
  TemporaryFolder root;
  Product product{ProductOptions{.root = root.path(), .language = "en", .resources = TARVO_SOURCE_DIR "/resources"}};
  SampleOutlets outlets;
  Binder binder{product.texts(), product.bundle(), Scheme::light};
  QWidget window;

  BoundControls() {
    window.resize(600, 400);
    window.show();
    window.activateWindow();
  }
  // Shows a widget of the window, so that it can be worked.
  template <class Widget>
  Widget& shown(Widget* widget, int width = 300, int height = 200) {
    widget->resize(width, height);
    widget->show();
    return *widget;
  }
};

}  // namespace tarvo::test
