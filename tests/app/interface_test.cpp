// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/interface.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "platform/services/texts.h"
#include "tests/app/controls_page.h"
#include "tests/support/test_program.h"

namespace tarvo::test {
namespace {

class InterfaceTest : public testing::Test {
 protected:
  InterfaceTest() { test_.program().construct(); }
  TestProgram test_;
};

TEST_F(InterfaceTest, hasOneRowForEachControl) {
  std::multiset<std::string> rows, controls;
  for (const Row& row : test_.interface().rows()) rows.insert(row.control.name());
  for (const Control* control : test_.interface().controls()) controls.insert(control->name());
  EXPECT_EQ(rows, controls);
  EXPECT_EQ(std::set<std::string>(controls.begin(), controls.end()).size(), controls.size());
}

TEST_F(InterfaceTest, placesEachControlInAWindowUnlessItIsAMenuItem) {
  for (const Control* control : test_.interface().controls()) {
    EXPECT_EQ(control->window() == nullptr, control->kind() == Control::Kind::menu) << control->name();
  }
}

TEST_F(InterfaceTest, connectsEveryControlThatAUserOperates) {
  const std::set<std::string> silent{"style.exportStylePopup", "manager.noDisplayDialogCheckBox", "manager.sslCheck",
                                     "picker.ejEditTDButton", "picker.jeEditTDButton"};
  for (const Row& row : test_.interface().rows()) {
    const Control::Kind kind = row.control.kind();
    const bool operated = kind == Control::Kind::popup || kind == Control::Kind::segments ||
                          kind == Control::Kind::button || kind == Control::Kind::check || kind == Control::Kind::menu;
    EXPECT_EQ(static_cast<bool>(row.control.action), operated && !silent.contains(row.control.name()))
        << row.control.name();
  }
}

TEST_F(InterfaceTest, findsControlsByFullAndByUniqueName) {
  Interface& interface = test_.interface();
  EXPECT_EQ(interface.find("style.stylePopup"), &interface.style.stylePopup);
  EXPECT_EQ(interface.find("stylePopup"), &interface.style.stylePopup);
  EXPECT_EQ(interface.find("officeToolPopup"), &interface.tools.officeToolPopup);
  EXPECT_EQ(interface.find("myWindow"), &interface.manager.myWindow);
  EXPECT_EQ(interface.find("picker.myWindow"), &interface.picker.myWindow);
  EXPECT_EQ(interface.find("NewDicWindow"), &interface.newDictionary.NewDicWindow);
  EXPECT_EQ(interface.find("newDicWindow"), &interface.picker.newDicWindow);
  EXPECT_EQ(interface.find("StylePopup"), nullptr);
  EXPECT_EQ(interface.find("manager.stylePopup"), nullptr);
  EXPECT_EQ(interface.find(""), nullptr);
}

TEST_F(InterfaceTest, givesTheToolbarItsThreeItemsInOrder) {
  struct Expected {
    const char *identifier, *label, *tip, *image;
    int tag;
  };
  const std::vector<Expected> items{{"StyleManager", "StyleManager", "StyleManager Tip", "SM32", 0},
                                    {"OA", "OfficeAddin", "OfficeAddin Tip", "office32", 1},
                                    {"MT", "MailTranslation", "MailTranslation Tip", "mail32", 2}};
  test_.writeStyles({});
  ASSERT_TRUE(test_.program().load());
  const Toolbar& toolbar = test_.interface().manager.toolbar;
  ASSERT_EQ(toolbar.allowedItems().size(), items.size());
  EXPECT_EQ(toolbar.order(), (std::vector<std::string>{"StyleManager", "OA", "MT"}));
  EXPECT_EQ(toolbar.displayMode(), Toolbar::DisplayMode::iconAndLabel);
  for (std::size_t i = 0; i < items.size(); ++i) {
    const Button& button = *toolbar.allowedItems()[i].button;
    EXPECT_EQ(toolbar.allowedItems()[i].identifier, items[i].identifier);
    EXPECT_EQ(button.label(), items[i].label);
    EXPECT_EQ(button.toolTip(), items[i].tip);
    EXPECT_EQ(button.image(), items[i].image);
    EXPECT_EQ(button.tag(), items[i].tag);
    EXPECT_TRUE(button.action);
  }
}

TEST_F(InterfaceTest, givesThePopUpsOfOptionsTheirTags) {
  const std::vector<int> tags{0, 1, 2, 3, 4, 5, 7};
  for (std::size_t i = 0; i < tags.size(); ++i) EXPECT_EQ(test_.interface().options.indexPopups[i].tag(), tags[i]);
}

TEST_F(InterfaceTest, isPrintedInTheControlsPage) {
  const std::filesystem::path page = std::filesystem::path(TARVO_SOURCE_DIR) / "docs/controls.md";
  const std::string expected = controlsPage(test_.interface());
  if (std::getenv("TARVO_WRITE_CONTROLS") != nullptr) std::ofstream(page) << expected;
  std::stringstream present;
  present << std::ifstream(page).rdbuf();
  EXPECT_EQ(present.str(), expected);
}

class EachLanguage : public testing::TestWithParam<const char*> {};

TEST_P(EachLanguage, hasATextForEveryLabelItemAndPage) {
  TestProgram test({.language = GetParam(), .strings = {"/dev/null"}});
  ASSERT_TRUE(test.program().construct());
  const Texts& texts = test.product->texts();
  for (const Row& row : test.interface().rows()) {
    const std::string name = row.control.name();
    const std::string key = row.label.empty() ? "Label." + name.substr(name.find('.') + 1) : row.label;
    EXPECT_NE(texts.find(key), nullptr) << key;
    if (!row.tip.empty()) {
      EXPECT_NE(texts.find(row.tip), nullptr) << row.tip;
    }
    if (!row.items) continue;
    for (const PopUpButton::Item& item : row.items()) {
      EXPECT_FALSE(item.title.empty());
      EXPECT_TRUE(texts.find(item.title) == nullptr) << "shown as its key: " << item.title;
    }
  }
}

// The pages on which a row stands, from its own outwards: tab view and page.
std::map<const TabView*, int> pagesOf(const Interface& interface, const Row& row) {
  std::map<const TabView*, int> pages;
  for (const Row* place = &row; place != nullptr && place->tab != nullptr;) {
    pages[place->tab] = place->page;
    const auto isTab = [place](const Row& other) { return &other.control == place->tab; };
    const auto next = std::find_if(interface.rows().begin(), interface.rows().end(), isTab);
    place = next != interface.rows().end() ? &*next : nullptr;
  }
  return pages;
}

// A pane may bear the name of the toolbar item that shows it.
bool isPane(const Row& row) { return row.control.kind() == Control::Kind::view; }

bool canBeSeenTogether(const Interface& interface, const Row& one, const Row& other) {
  if (one.control.isHidden() || other.control.isHidden() || isPane(one) || isPane(other)) return false;
  if (one.control.window() != other.control.window()) return false;
  const auto pages = pagesOf(interface, other);
  for (const auto& [tab, page] : pagesOf(interface, one)) {
    const auto found = pages.find(tab);
    if (found != pages.end() && found->second != page) return false;
  }
  return true;
}

TEST_P(EachLanguage, callsNoTwoControlsAlikeThatStandSideBySide) {
  TestProgram test({.language = GetParam(), .strings = {"/dev/null"}});
  ASSERT_TRUE(test.program().construct());
  const Interface& interface = test.interface();
  const std::vector<Row>& rows = interface.rows();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      if (rows[i].control.label() != rows[j].control.label()) continue;
      EXPECT_FALSE(canBeSeenTogether(interface, rows[i], rows[j]))
          << rows[i].control.name() << " and " << rows[j].control.name() << ": " << rows[i].control.label();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Shipped, EachLanguage, testing::Values("en", "ja"));

}  // namespace
}  // namespace tarvo::test
