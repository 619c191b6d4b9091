// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/platform/engine/set_delivery_fixture.h"

namespace tarvo::test {
namespace {

using Names = std::vector<std::string>;

TEST_F(SetDeliveryTest, twoHomesThatEditApartLoseNothing) {
  SetDelivery here = home("here"), there = home("there");
  ASSERT_TRUE(deliver(here, joining(two)));
  ASSERT_TRUE(deliver(there, joining(two)));
  EXPECT_TRUE(deliver(here, joining(EncodedStyles({"標準", "特許", "a"}))));
  EXPECT_TRUE(deliver(there, joining(EncodedStyles({"標準", "特許", "b"}))));
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "b", "a"}));
  EXPECT_TRUE(deliver(here, joining(EncodedStyles({"標準", "特許", "a", "c"}))));
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "a", "c", "b"}));
}

TEST_F(SetDeliveryTest, whatAHomeTakesBackAfterItWasJoinedIsTakenBackThere) {
  SetDelivery here = home("here"), there = home("there");
  ASSERT_TRUE(deliver(here, joining(two)));
  ASSERT_TRUE(deliver(there, joining(EncodedStyles({"標準", "特許", "theirs"}))));
  ASSERT_TRUE(deliver(here, joining(EncodedStyles({"標準", "特許", "slip"}))));
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "slip", "theirs"}));
  SetDelivery later = home("here");
  EXPECT_TRUE(deliver(later, joining(two, stampOf(two, 9))));
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "theirs"}));
}

TEST_F(SetDeliveryTest, aNewHomeJoinsFromTheSetOfTheProduct) {
  web.hold(payload(EncodedStyles({"標準", "shared"}), 5));
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, joining(two)));
  EXPECT_EQ(heldNames(), (Names{"標準", "shared"})) << "the product's set is no edit";
  EXPECT_EQ(web.counts["PUT"], 0);
  SetDelivery other = this->home("other");
  EXPECT_TRUE(deliver(other, joining(EncodedStyles({"標準", "特許", "mine"}))));
  EXPECT_EQ(heldNames(), (Names{"標準", "mine", "shared"}));
}

TEST_F(SetDeliveryTest, aHomeWithTheStampOfWhatIsHeldPartsFromThat) {
  web.hold(payload(two, 5));
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, joining(EncodedStyles({"標準", "mine"}), stampOf(two, 5))));
  EXPECT_EQ(heldNames(), (Names{"標準", "mine"})) << "removed here, so removed";
}

TEST_F(SetDeliveryTest, whereNobodyKnowsFromWhereBothPartedTheEditGoesAndTheOtherSetIsKept) {
  web.hold(payload(two, 5));
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, joining(one, stampOf(same, 3))));
  EXPECT_EQ(heldNames(), Names{"E-mail"});
  EXPECT_EQ(joiner->kept, (std::vector<Names>{{"標準", "特許"}}));
}

TEST_F(SetDeliveryTest, aServiceThatWentBackGetsTheSetOfTheHomeAndItsOwnIsKept) {
  SetDelivery home = this->home();
  web.hold(payload(two, 8));
  ASSERT_TRUE(deliver(home, joining(EncodedStyles({"標準", "特許", "mine"}), stampOf(two, 8))));
  web.hold(payload(two, 4));
  EXPECT_TRUE(deliver(home, joining(EncodedStyles({"標準", "特許", "mine", "more"}))));
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "mine", "more"}));
  EXPECT_EQ(readPayloadFront(*web.held)->revision, 10U);
  EXPECT_EQ(joiner->kept, (std::vector<Names>{{"標準", "特許"}}));
}

TEST_F(SetDeliveryTest, aSetOfWhichNotEverythingStaysIsKeptBeforeItIsReplaced) {
  SetDelivery here = home("here"), there = home("there");
  ASSERT_TRUE(deliver(here, joining(two)));
  ASSERT_TRUE(deliver(there, joining(EncodedStyles({"標準", "theirs"}), stampOf(two, 1))));
  joiner->loses = true;
  EXPECT_TRUE(deliver(here, joining(EncodedStyles({"標準", "特許", "mine"}))));
  EXPECT_EQ(joiner->kept, (std::vector<Names>{{"標準", "theirs"}}));
}

TEST_F(SetDeliveryTest, whatCouldNotBeStoredHereIsNotWhatBothShare) {
  SetDelivery home = this->home();
  ASSERT_TRUE(deliver(home, joining(two)));
  OutgoingSet unstored = joining(EncodedStyles({"標準", "特許", "unstored"}));
  unstored.isStored = false;
  ASSERT_TRUE(deliver(home, unstored));
  SetDelivery later = this->home();
  ASSERT_EQ(look(later).state, State::held);
  ASSERT_NE(later.view().base, nullptr);
  EXPECT_EQ(namesIn(later.view().base->set.styles), (Names{"標準", "特許"}));
}

TEST_F(SetDeliveryTest, aSetThatArrivedAlthoughNobodyHeardOfItIsWhatBothShare) {
  {
    SetDelivery home = this->home(), other = this->home("other");
    ASSERT_TRUE(deliver(home, joining(two)));
    ASSERT_TRUE(deliver(other, joining(EncodedStyles({"標準", "特許", "theirs"}))));
    web.counts.clear();
    web.instead = [this](const SeenRequest& request, int) -> std::optional<Reply> {
      if (request.method != "PUT") return std::nullopt;
      web.hold(request.body);
      return Reply{204, {}, "", Way::nothing};
    };
    ASSERT_FALSE(deliver(home, joining(EncodedStyles({"標準", "特許", "slip"})), 300ms));
  }
  web.instead = nullptr;
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "slip", "theirs"}));
  SetDelivery later = this->home();
  EXPECT_TRUE(deliver(later, joining(two, stampOf(two, 7))));
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "theirs"})) << "the slip was taken back, not missing";
}

}  // namespace
}  // namespace tarvo::test
