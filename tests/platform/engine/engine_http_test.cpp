// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_http.h"

#include <gtest/gtest.h>

#include "tests/platform/engine/engine_http_fixture.h"

namespace tarvo::test {
namespace {

using Names = std::vector<std::string>;

TEST_F(EngineHttpTest, aServiceThatHasNotAnsweredCountsAsReachableAndHoldsASet) {
  web.instead = [](const SeenRequest&, int) { return Reply{200, {}, "x", Way::nothing}; };
  const auto http = engine();
  EXPECT_TRUE(http->isAsking());
  EXPECT_TRUE(http->checkConnectionWithCurl());
  EXPECT_TRUE(http->checkStyle()) << "the answer to no would be to send ours over it";
  Array styles;
  std::string stamp;
  EXPECT_FALSE(http->requestStyle(styles, stamp));
  ASSERT_FALSE(http->couldRead());
  EXPECT_EQ(http->couldRead().error().cause, Reason::notAsked);
  EXPECT_EQ(http->form(), EngineForm::http);
}

TEST_F(EngineHttpTest, aRegistrationAnswersAtOnceWithTheStampThatTheSetWillHave) {
  web.hold(payload(two, 5));
  client.stamp = stampOf(two, 5);
  const auto http = answered(client);
  std::string stamp;
  client.set(one);
  http->sendRegistStyle(one.set(), stamp);
  EXPECT_EQ(stamp, stampOf(one, 6));
  EXPECT_TRUE(http->isSending() || http->didRegister());
  http->waitUntilSent(10s);
  EXPECT_FALSE(http->isSending());
  EXPECT_TRUE(http->didRegister());
  EXPECT_EQ(web.held, payload(one, 6));
}

TEST_F(EngineHttpTest, anEmptyServiceHoldsNothing) {
  const auto http = answered(client);
  EXPECT_FALSE(http->isAsking());
  EXPECT_TRUE(http->checkConnectionWithCurl());
  EXPECT_FALSE(http->checkStyle());
}

TEST_F(EngineHttpTest, forHalfAMinuteAfterAContactThatFailedTheServiceCountsAsUnreachable) {
  web.instead = [](const SeenRequest&, int) { return Reply{503, {}, ""}; };
  client.set(two);
  const auto http = answered(client);
  EXPECT_FALSE(http->checkConnectionWithCurl());
  EXPECT_FALSE(http->couldReach());
  http->waitUntilSent(10s);
  passed = 31s;
  EXPECT_TRUE(http->checkConnectionWithCurl());
  EXPECT_TRUE(http->couldReach());
}

TEST_F(EngineHttpTest, aProbeThatSaysNoSendsThePresentSetWhenItCan) {
  bool fails = true;
  web.instead = [&fails](const SeenRequest&, int) { return fails ? std::optional(Reply{503, {}, ""}) : std::nullopt; };
  client.set(two);
  const auto http = answered(client);
  fails = false;
  EXPECT_FALSE(http->checkConnectionWithCurl());
  EXPECT_TRUE(http->isSending() || http->didRegister());
  http->waitUntilSent(10s);
  EXPECT_EQ(web.held, payload(two, 1));
}

TEST_F(EngineHttpTest, aSetOfTheServiceWithTheStampThatIsKeptIsNotNewerWhateverItsNumber) {
  web.hold(payload(two, 7));
  client.set(two);
  client.stamp = stampOf(two, 5);
  const auto http = answered(client);
  EXPECT_EQ(reconcile(*http, client), std::nullopt);
  EXPECT_TRUE(http->couldRead());
  http->waitUntilSent(10s);
  EXPECT_EQ(web.held, payload(two, 7));
}

TEST_F(EngineHttpTest, stylesThatStandInTakeOnlyWhatIsNewer) {
  web.hold(payload(two, 5));
  client.set(one);
  client.stamp = stampOf(two, 5);
  const auto http = answered(client);
  http->setStandIn(true);
  EXPECT_EQ(reconcile(*http, client), std::nullopt);
  client.stamp = stampOf(same, 4);
  EXPECT_EQ(reconcile(*http, client), (Names{"標準", "特許"}));
}

TEST_F(EngineHttpTest, damagedStylesAreNotTakenAndItIsToldWhy) {
  web.hold("<html>Please sign in</html>");
  client.set(one);
  const auto http = answered(client);
  EXPECT_TRUE(http->checkConnectionWithCurl());
  EXPECT_TRUE(http->checkStyle());
  EXPECT_EQ(reconcile(*http, client), std::nullopt);
  ASSERT_FALSE(http->couldRead());
  EXPECT_EQ(http->couldRead().error().cause, Reason::damaged);
}

TEST_F(EngineHttpTest, whoeverIsDetachedHearsNothingMore) {
  auto http = answered(client);
  http->attach(nullptr);
  const int heard = client.heard;
  std::string stamp;
  http->sendRegistStyle(one.set(), stamp);
  http->waitUntilSent(50ms);
  EXPECT_EQ(client.heard, heard);
  http->attach(&client);
  http->waitForAnswer(10s);
  EXPECT_FALSE(http->isAsking()) << "attached again it asks anew";
}

}  // namespace
}  // namespace tarvo::test
