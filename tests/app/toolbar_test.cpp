// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/toolbar.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

struct SomeOutlets : Outlets {
  SomeOutlets() : Outlets("some") {}
  Toolbar toolbar{*this, "toolbar"};
  Button a{*this, "a"}, b{*this, "b"}, c{*this, "c"};
};

class ToolbarTest : public testing::Test {
 protected:
  ToolbarTest() {
    toolbar_.setAllowedItems({{"a", &some_.a}, {"b", &some_.b}, {"c", &some_.c}});
    toolbar_.didCustomize = [this] { ++customized_; };
    toolbar_.didToggle = [this](bool shown) { toggled_.push_back(shown); };
  }
  using Order = std::vector<std::string>;
  SomeOutlets some_;
  Toolbar& toolbar_ = some_.toolbar;
  int customized_ = 0;
  std::vector<bool> toggled_;
};

TEST_F(ToolbarTest, showsEveryItemInTheDefaultOrderAtFirst) {
  EXPECT_EQ(toolbar_.order(), (Order{"a", "b", "c"}));
  EXPECT_FALSE(some_.b.isHidden());
}

TEST_F(ToolbarTest, hidesTheButtonsOfItemsThatTheUserTookOut) {
  toolbar_.userOrder({"c", "a"});
  EXPECT_EQ(toolbar_.order(), (Order{"c", "a"}));
  EXPECT_TRUE(some_.b.isHidden());
  EXPECT_EQ(customized_, 1);
}

TEST_F(ToolbarTest, dropsUnknownAndRepeatedItemsAndIsNeverEmpty) {
  toolbar_.userOrder({"c", "x", "c"});
  EXPECT_EQ(toolbar_.order(), Order{"c"});
  toolbar_.userOrder({});
  EXPECT_EQ(toolbar_.order(), (Order{"a", "b", "c"}));
}

TEST_F(ToolbarTest, hidesAllItsButtonsWhileItIsHidden) {
  toolbar_.userShow(false);
  toolbar_.userShow(false);
  EXPECT_TRUE(some_.a.isHidden());
  EXPECT_EQ(toggled_, std::vector<bool>{false});
  toolbar_.setShown(true);
  EXPECT_FALSE(some_.a.isHidden());
}

TEST_F(ToolbarTest, comesBackAsItWasCustomized) {
  toolbar_.userOrder({"b", "a"});
  toolbar_.userDisplay(Toolbar::DisplayMode::labelOnly);
  toolbar_.userShow(false);
  SomeOutlets other;
  other.toolbar.setAllowedItems({{"a", &other.a}, {"b", &other.b}, {"c", &other.c}});
  other.toolbar.applyConfiguration(toolbar_.configuration());
  EXPECT_EQ(other.toolbar.order(), (Order{"b", "a"}));
  EXPECT_EQ(other.toolbar.displayMode(), Toolbar::DisplayMode::labelOnly);
  EXPECT_FALSE(other.toolbar.isShown());
}

TEST_F(ToolbarTest, takesNothingFromADamagedConfiguration) {
  Dictionary damaged;
  damaged.set("Order", "b");
  damaged.set("DisplayMode", "sideways");
  damaged.set("Shown", Array{});
  toolbar_.applyConfiguration(damaged);
  EXPECT_EQ(toolbar_.order(), (Order{"a", "b", "c"}));
  EXPECT_EQ(toolbar_.displayMode(), Toolbar::DisplayMode::iconAndLabel);
}

}  // namespace
}  // namespace tarvo
