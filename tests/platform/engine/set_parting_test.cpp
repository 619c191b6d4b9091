// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/set_parting.h"

#include <gtest/gtest.h>

#include "tests/support/encoded_styles.h"

namespace tarvo {
namespace {

EncodedSet set(const std::string& name) { return EncodedSet(test::EncodedStyles({name}).records); }

ServiceView shows(const std::string& name, std::uint64_t revision, std::shared_ptr<const SharedBase> base = nullptr) {
  return {.state = StyleResource::State::held,
          .cause = {},
          .stamp = set(name).payload.stamp(revision),
          .styles = nullptr,
          .base = std::move(base)};
}

std::shared_ptr<const SharedBase> base(const std::string& name, const SetStamp& shown) {
  return std::make_shared<const SharedBase>(SharedBase{shown, set(name)});
}

SetStamp stamp(const std::string& name, std::uint64_t revision) { return set(name).payload.stamp(revision); }

TEST(SetParting, aServiceThatShowsWhatTheHomeSharesIsWhereBothParted) {
  EXPECT_EQ(partingOf(shows("a", 5, base("a", stamp("a", 5))), stamp("mine", 9), "mine"), Parting::fromHeld);
  EXPECT_EQ(partingOf(shows("a", 9, base("a", stamp("a", 5))), {}, "mine"), Parting::fromHeld) << "whatever its number";
}

TEST(SetParting, aServiceThatShowsTheStampThatTheHomeHasKeptIsWhereBothParted) {
  EXPECT_EQ(partingOf(shows("a", 5), stamp("a", 5), "mine"), Parting::fromHeld);
  EXPECT_EQ(partingOf(shows("a", 5), stamp("a", 3), "mine"), Parting::fromHeld) << "whatever its number";
}

TEST(SetParting, aHomeThatBeginsAnewPartsFromTheSetOfTheProduct) {
  EXPECT_EQ(partingOf(shows("theirs", 6, base("seed", stamp("seed", 1))), stamp("theirs", 6), "seed"),
            Parting::fromBase);
}

TEST(SetParting, aHomeThatWasStoppedBetweenTheStampAndTheStylesStillHasTheBaseOfBefore) {
  EXPECT_EQ(partingOf(shows("new", 6, base("old", stamp("old", 5))), stamp("new", 6), "old"), Parting::fromBase);
}

TEST(SetParting, whereTheServiceHasGoneOnTheBaseIsWhereBothParted) {
  EXPECT_EQ(partingOf(shows("b", 6, base("a", stamp("a", 5))), stamp("a", 5), "a"), Parting::fromBase);
  EXPECT_EQ(partingOf(shows("b", 5, base("a", stamp("a", 5))), stamp("a", 5), "a"), Parting::fromBase)
      << "two that stored at one moment came to one number";
}

TEST(SetParting, anOlderSetThanOneThatWasShownIsThatOfAServiceSetUpAnew) {
  EXPECT_EQ(partingOf(shows("b", 4, base("a", stamp("a", 5))), stamp("a", 5), "a"), Parting::wentBack);
}

TEST(SetParting, withoutABaseTheStampSaysIt) {
  EXPECT_EQ(partingOf(shows("b", 6), {}, "mine"), Parting::fromSeed);
  EXPECT_EQ(partingOf(shows("b", 6), stamp("a", 5), set("a").hash()), Parting::fromMine);
  EXPECT_EQ(partingOf(shows("b", 6), stamp("a", 5), set("edited").hash()), Parting::unknown);
  EXPECT_EQ(partingOf(shows("b", 5), stamp("a", 6), set("a").hash()), Parting::unknown) << "not there yet";
}

}  // namespace
}  // namespace tarvo
