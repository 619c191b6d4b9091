// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/history/notices.h"

#include <gtest/gtest.h>

namespace tarvo::test {
namespace {

using Offer = Notice::Offer;

std::string shownText(const Notices& notices) { return notices.shown() != nullptr ? notices.shown()->text : "-"; }

TEST(Notices, theLineShowsTheLatestOne) {
  Notices notices;
  EXPECT_EQ(shownText(notices), "-");
  notices.tell({.text = "one"});
  notices.tell({.text = "two"});
  EXPECT_EQ(shownText(notices), "two");
}

TEST(Notices, fiftyAreRememberedTheNewestFirst) {
  Notices notices;
  for (int i = 0; i < 60; ++i) notices.tell({.text = std::to_string(i)});
  ASSERT_EQ(notices.latest().size(), 50U);
  EXPECT_EQ(notices.latest().front().text, "59");
  EXPECT_EQ(notices.latest().back().text, "10");
}

TEST(Notices, aStateStandsBeforeWhatIsToldUntilItEnds) {
  Notices notices;
  notices.setStanding(Notice{.text = "not saved"});
  notices.tell({.text = "one"});
  EXPECT_EQ(shownText(notices), "not saved");
  notices.dismiss();
  EXPECT_EQ(shownText(notices), "not saved");
  notices.setStanding(Notice{.text = "not saved"});
  notices.setStanding(std::nullopt);
  EXPECT_EQ(shownText(notices), "-");
  EXPECT_EQ(notices.latest().size(), 2U);
}

TEST(Notices, whatIsSaidAsideLeavesAnOfferInItsPlace) {
  Notices notices;
  notices.tell({.text = "removed", .offer = Offer::undo});
  notices.tellAside({.text = "service"});
  EXPECT_EQ(shownText(notices), "removed");
  EXPECT_EQ(notices.latest().front().text, "service");
  notices.dismiss();
  notices.tellAside({.text = "again"});
  EXPECT_EQ(shownText(notices), "again");
}

TEST(Notices, eachChangeIsTold) {
  Notices notices;
  int told = 0;
  notices.didChange = [&told] { ++told; };
  notices.tell({.text = "one"});
  notices.setStanding(Notice{.text = "state"});
  notices.setStanding(std::nullopt);
  notices.dismiss();
  notices.dismiss();
  EXPECT_EQ(told, 4);
}

}  // namespace
}  // namespace tarvo::test
