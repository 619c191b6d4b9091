// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/platform/engine/engine_http_fixture.h"

// What a launch takes and what goes out, on machines that have edited apart.
namespace tarvo::test {
namespace {

using Names = std::vector<std::string>;

TEST_F(EngineHttpTest, aNewMachineTakesTheSharedSet) {
  web.hold(payload(EncodedStyles({"標準", "shared"}), 7));
  client.set(two);
  const auto http = answered(client);
  EXPECT_EQ(reconcile(*http, client), (Names{"標準", "shared"}));
  EXPECT_EQ(client.stamp, stampOf(EncodedStyles({"標準", "shared"}), 7));
  http->waitUntilSent(10s);
  EXPECT_EQ(web.counts["PUT"], 0);
  const auto later = answered(client);
  EXPECT_EQ(reconcile(*later, client), std::nullopt);
}

TEST_F(EngineHttpTest, editsOfTwoMachinesMeetAtTheNextLaunch) {
  FakeClient other(joiner);
  {
    const auto here = answered(client, "here"), there = answered(other, "there");
    edit(*here, client, two);
    here->waitUntilSent(10s);
    edit(*there, other, EncodedStyles({"標準", "特許", "b"}));
    there->waitUntilSent(10s);
    edit(*here, client, EncodedStyles({"標準", "特許", "a"}));
    here->waitUntilSent(10s);
  }
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "a", "b"}));
  const auto here = answered(client, "here");
  EXPECT_EQ(reconcile(*here, client), (Names{"標準", "特許", "a", "b"}));
  const auto there = answered(other, "there");
  const Names own{"標準", "特許", "b", "a"};  // each appends what the other one has made
  EXPECT_EQ(reconcile(*there, other), own);
  here->waitUntilSent(10s);
  there->waitUntilSent(10s);
  EXPECT_EQ(heldNames().size(), own.size());
  const auto again = answered(other, "there");
  EXPECT_EQ(reconcile(*again, other), std::nullopt);
}

TEST_F(EngineHttpTest, whatWasTakenAtALaunchIsWhereBothPartAlsoWhenItWasJoined) {
  FakeClient other(joiner);
  {
    const auto here = answered(client, "here"), there = answered(other, "there");
    edit(*here, client, two);
    here->waitUntilSent(10s);
    edit(*there, other, EncodedStyles({"標準", "特許", "x"}));
    there->waitUntilSent(10s);
  }
  client.set(EncodedStyles({"標準", "特許", "unsent"}));
  const auto here = answered(client, "here");
  Array styles;
  std::string stamp = client.stamp;
  ASSERT_TRUE(here->requestStyle(styles, stamp));
  client.stamp = stamp;
  client.set(EncodedStyles(namesIn(styles)));
  web.hold(payload(EncodedStyles({"標準", "特許"}), 9));  // meanwhile x was removed
  here->didStoreStyles();
  here->waitUntilSent(10s);
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "unsent"}));
}

TEST_F(EngineHttpTest, anEditThatWasNeverHandedOverIsSentAtTheNextLaunch) {
  {
    const auto http = answered(client);
    edit(*http, client, two);
    http->waitUntilSent(10s);
  }
  client.set(EncodedStyles({"標準", "特許", "offline"}));  // the service could not be reached then
  const auto http = answered(client);
  EXPECT_EQ(reconcile(*http, client), std::nullopt);
  http->waitUntilSent(10s);
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "offline"}));
}

TEST_F(EngineHttpTest, whatHasNotArrivedIsSentAtTheNextLaunch) {
  {
    const auto http = answered(client);
    edit(*http, client, two);
    http->waitUntilSent(10s);
    web.instead = [](const SeenRequest& request, int) -> std::optional<Reply> {
      return request.method == "PUT" ? std::optional(Reply{503, {}, ""}) : std::nullopt;
    };
    edit(*http, client, EncodedStyles({"標準", "特許", "offline"}));
    http->waitUntilSent(10s);
    EXPECT_FALSE(http->didRegister());
  }
  web.instead = nullptr;
  const auto http = answered(client);
  EXPECT_EQ(reconcile(*http, client), std::nullopt);
  http->waitUntilSent(10s);
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "offline"}));
}

TEST_F(EngineHttpTest, whatWasJoinedAtALaunchGoesOutOnlyWhenItIsStoredHere) {
  web.hold(payload(EncodedStyles({"標準", "特許", "theirs"}), 7));
  client.set(EncodedStyles({"標準", "特許", "mine"}));
  client.stored = false;
  const auto http = answered(client);
  EXPECT_EQ(reconcile(*http, client), (Names{"標準", "特許", "mine", "theirs"}));
  http->waitUntilSent(10s);
  EXPECT_EQ(web.counts["PUT"], 0);
  client.stored = true;
  http->didStoreStyles();
  http->waitUntilSent(10s);
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "theirs", "mine"}));
}

TEST_F(EngineHttpTest, aMachineThatWasStoppedBeforeItHeldWhatItTookTakesItAgain) {
  web.hold(payload(two, 5));
  client.set(two);
  client.stamp = stampOf(two, 5);
  {
    const auto http = answered(client);
    edit(*http, client, EncodedStyles({"標準", "特許", "x"}));
    http->waitUntilSent(10s);
  }
  web.hold(payload(EncodedStyles({"標準", "特許", "x", "theirs"}), 9));
  const std::string before = client.stamp;
  {
    const auto http = answered(client);
    Array styles;
    std::string stamp = client.stamp;
    ASSERT_TRUE(http->requestStyle(styles, stamp));
    client.stamp = stamp;  // kept first; then it stops
  }
  const auto http = answered(client);
  EXPECT_EQ(reconcile(*http, client), (Names{"標準", "特許", "x", "theirs"}));
}

TEST_F(EngineHttpTest, aHomeWhoseStyleFileIsGoneTakesItsStylesBackFromTheService) {
  const EncodedStyles mine({"標準", "特許", "mine"});
  {
    const auto http = answered(client);
    edit(*http, client, mine);
    http->waitUntilSent(10s);
  }
  client.set(two);
  const auto http = answered(client);
  http->didSeedStyles(two.records);
  EXPECT_EQ(reconcile(*http, client), (Names{"標準", "特許", "mine"}));
  edit(*http, client, EncodedStyles({"標準", "特許", "mine", "more"}));
  http->waitUntilSent(10s);
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "mine", "more"}));
}

TEST_F(EngineHttpTest, anEditAfterTheStyleFileWasGoneRemovesNothingFromTheService) {
  {
    const auto http = answered(client);
    edit(*http, client, EncodedStyles({"標準", "特許", "mine"}));
    http->waitUntilSent(10s);
  }
  const auto http = answered(client);
  http->didSeedStyles(two.records);
  edit(*http, client, EncodedStyles({"標準", "特許", "more"}));
  http->waitUntilSent(10s);
  EXPECT_EQ(heldNames(), (Names{"標準", "特許", "more", "mine"}));
}

}  // namespace
}  // namespace tarvo::test
