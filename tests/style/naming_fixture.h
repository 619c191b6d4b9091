// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/plist/plist_writer.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "style/pane_alerts.h"
#include "style/process_flags.h"
#include "style/style_naming.h"
#include "style/style_store.h"
#include "tests/style/exchange_world.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {

class StyleNamingTest : public testing::Test {
 protected:
  explicit StyleNamingTest(const Dictionary& root = sampleRoot()) {
    files_.put("/styles.plist", writePropertyList(root));
    EXPECT_TRUE(store_.readUserStyles());
    store_.setAwakening(false);
    std::vector<PopUpButton::Item> items;
    for (const PropertyList& style : *root.array("Style")) {
      const std::string* name = style.dictionary() != nullptr ? style.dictionary()->string("Name") : nullptr;
      items.push_back({name != nullptr ? *name : "", 0});
    }
    pane_.stylePopup.setItems(std::move(items));
  }
  // Opens the sheet for the style, types the name and presses OK.
  void rename(int index, const std::string& name) {
    pane_.stylePopup.selectItemAtIndex(index);
    naming_.editStyleName();
    log_.clear();
    outlets_.styleNameField.userType(name);
    naming_.snOKButtonAction();
  }
  const std::string& field() const { return outlets_.styleNameField.stringValue(); }
  bool isOpen() const { return outlets_.styleNameWindow.isShown(); }
  std::string nameOf(int index) const { return *store_.getStyleAtIndex(index)->string("Name"); }
  void expectRefusal(const std::string& alert) {
    EXPECT_EQ(log_, (Log{"beep", alert}));
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(flags_.gMenuControllFlag);
    EXPECT_EQ(files_.writes(), 0);
    EXPECT_EQ(store_.root(), sampleRoot());
  }
  const std::string taken_ = "alert CantStyleNameNomalHeader / CantStyleNameNomalMessage";

  Log log_;
  MemoryFiles files_;
  FakeEngine engine_{log_};
  FakePanels panels_{log_};
  FakeHost host_;
  FakeRunLoop runLoop_;
  Texts texts_;
  UserDefaults defaults_{files_, DiskPath("/defaults.plist")};
  StyleStore store_{files_, engine_, defaults_, DiskPath("/styles.plist"), DiskPath("/seed.plist")};
  PaneOutlets pane_;
  NamingOutlets outlets_;
  ProcessFlags flags_;
  PaneAlerts alerts_{panels_, texts_};
  Windows windows_{host_, runLoop_};
  StyleNaming naming_{{outlets_, pane_.stylePopup, pane_.myWindow, store_, flags_, alerts_, windows_}, "NomalStyle"};
};

}  // namespace tarvo::test
