// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/controls/controls.h"

#include <gtest/gtest.h>

#include "platform/controls/windows.h"

namespace tarvo {
namespace {

struct SomeOutlets : Outlets {
  SomeOutlets() : Outlets("some") {}
  PopUpButton popup{*this, "popup"};
  SegmentedControl segments{*this, "segments"};
  TabView tabs{*this, "tabs"}, inner{*this, "inner"};
  Button button{*this, "button"};
  CheckBox check{*this, "check"};
  TextField field{*this, "field"};
  MenuItem menu{*this, "menu"};
};

class ControlsTest : public testing::Test {
 protected:
  ControlsTest() {
    for (Control* control : some_.controls()) {
      control->action = [this](Control&) { ++sent_; };
      control->view = [this](Control::Change change) { told_.push_back(change); };
    }
    some_.popup.setItems({{"a", 10}, {"line", 11, true}, {"c", 12}});
    some_.segments.setSegments({{}, {}, {"", "", false}});
    some_.tabs.setPages({{"One", "1"}, {"Two", "2"}});
    told_.clear();
  }
  SomeOutlets some_;
  int sent_ = 0;
  std::vector<Control::Change> told_;
};

TEST_F(ControlsTest, enterTheListOfTheirOwnerUnderItsName) {
  EXPECT_EQ(some_.controls().size(), 8U);
  EXPECT_EQ(some_.popup.name(), "some.popup");
}

TEST_F(ControlsTest, tellTheViewAndNeverSendWhenTheProgramSetsThem) {
  some_.popup.selectItemAtIndex(2);
  some_.popup.setItemTitle(0, "A");
  some_.segments.setSelected(1, true);
  some_.check.setState(true);
  some_.field.setStringValue("text");
  some_.button.setEnabled(false);
  some_.tabs.selectPage(1);
  EXPECT_EQ(sent_, 0);
  EXPECT_EQ(told_.size(), 7U);
}

TEST_F(ControlsTest, sendOncePerGestureAlsoWhenTheSameIsChosenAgain) {
  EXPECT_TRUE(some_.popup.userChoose(2));
  EXPECT_TRUE(some_.popup.userChoose(2));
  EXPECT_TRUE(some_.segments.userClick(1));
  EXPECT_TRUE(some_.segments.userClick(1));
  some_.button.userPress();
  some_.check.userCheck(true);
  EXPECT_EQ(sent_, 6);
  EXPECT_EQ(some_.popup.selectedTag(), 12);
  EXPECT_EQ(some_.segments.selectedSegment(), 1);
}

TEST_F(ControlsTest, refuseWhatAUserCannotChoose) {
  EXPECT_FALSE(some_.popup.userChoose(1));
  EXPECT_FALSE(some_.popup.userChoose(3));
  EXPECT_FALSE(some_.popup.userChoose(-1));
  EXPECT_FALSE(some_.segments.userClick(2));
  EXPECT_FALSE(some_.segments.userClick(3));
  some_.popup.setEnabled(false);
  some_.button.setEnabled(false);
  EXPECT_FALSE(some_.popup.userChoose(0));
  some_.button.userPress();
  EXPECT_EQ(sent_, 0);
}

TEST_F(ControlsTest, showNoItemForAnIndexThatThePopUpDoesNotHave) {
  some_.popup.selectItemAtIndex(7);
  EXPECT_EQ(some_.popup.indexOfSelectedItem(), -1);
  EXPECT_EQ(some_.popup.selectedTag(), 0);
  EXPECT_EQ(some_.popup.titleOfSelectedItem(), "");
  some_.popup.setItems({{"x", 3}});
  EXPECT_EQ(some_.popup.indexOfSelectedItem(), 0);
  some_.popup.setItems({});
  EXPECT_EQ(some_.popup.indexOfSelectedItem(), -1);
}

TEST_F(ControlsTest, keepTheDividersTitle) {
  some_.popup.selectItemAtIndex(1);
  EXPECT_EQ(some_.popup.titleOfSelectedItem(), "line");
}

TEST_F(ControlsTest, tellEveryChangeOfPageButNotThePageThatIsShown) {
  std::vector<int> pages;
  some_.tabs.didSelect = [&](int page) { pages.push_back(page); };
  some_.tabs.userSelect(1);
  some_.tabs.userSelect(1);
  some_.tabs.selectPageWithIdentifier("One");
  some_.tabs.selectPageWithIdentifier("one");
  some_.tabs.selectPage(5);
  EXPECT_EQ(pages, (std::vector<int>{1, 0}));
}

TEST_F(ControlsTest, askWhetherAMenuItemIsValidWhenItIsChosen) {
  bool valid = false;
  some_.menu.validate = [&](const MenuItem&) { return valid; };
  EXPECT_FALSE(some_.menu.userChoose());
  valid = true;
  EXPECT_TRUE(some_.menu.userChoose());
  EXPECT_EQ(sent_, 1);
}

TEST_F(ControlsTest, areShownOnlyWithEveryPageAboveThem) {
  some_.inner.setPages({{"a", ""}, {"b", ""}});
  some_.inner.setPage(&some_.tabs, 1);
  some_.button.setPage(&some_.inner, 0);
  EXPECT_FALSE(some_.button.isOnShownPage());
  some_.tabs.selectPage(1);
  EXPECT_TRUE(some_.button.isOnShownPage());
  some_.inner.selectPage(1);
  EXPECT_FALSE(some_.button.isOnShownPage());
}

TEST_F(ControlsTest, aFieldTellsOfEveryChangeAndSendsNothing) {
  std::vector<std::string> texts;
  some_.field.didChange = [&] { texts.push_back(some_.field.stringValue()); };
  some_.field.userType("typed");
  some_.field.setStringValue("set");
  EXPECT_EQ(texts, (std::vector<std::string>{"typed", "set"}));
  EXPECT_EQ(sent_, 0);
}

}  // namespace
}  // namespace tarvo
