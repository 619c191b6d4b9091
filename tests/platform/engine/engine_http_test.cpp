// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_http.h"

#include <gtest/gtest.h>

#include "tests/platform/engine/engine_http_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(EngineHttpTest, anEmptyServerIsReachableAndHoldsNothing) {
  EngineHttp http = engine();
  EXPECT_TRUE(http.checkConnectionWithCurl());
  EXPECT_FALSE(http.checkStyle());
  EXPECT_EQ(newerThan(http, ""), std::nullopt);
  EXPECT_EQ(http.form(), EngineForm::http);
  EXPECT_EQ(server.methods(), (Methods{"GET", "GET", "GET"})) << "one request each";
}

TEST_F(EngineHttpTest, aRegistrationIsComparedStoredAndSeen) {
  EngineHttp http = engine();
  EXPECT_EQ(registered(http, two), stampOf(two, 1));
  EXPECT_TRUE(http.didRegister());
  EXPECT_EQ(web.held, payload(two, 1));
  EXPECT_EQ(server.methods(), (Methods{"LOCK", "GET", "PUT", "GET"}));
  EXPECT_EQ(server.requests()[2].header("if-none-match"), "*");
  EXPECT_EQ(server.requests()[2].header("expect"), "");
  server.forgetRequests();
  EXPECT_EQ(registered(http, one), stampOf(one, 2));
  EXPECT_EQ(server.methods(), (Methods{"GET", "PUT", "GET"})) << "locks are not offered";
  EXPECT_EQ(server.requests()[1].header("if-match"), "\"v1\"");
  EXPECT_EQ(server.connections(), 1) << "the connection is kept";
}

TEST_F(EngineHttpTest, anotherMachineTakesTheSetAndItsStamp) {
  EngineHttp here = engine(), there = engine();
  registered(here, two);
  Array taken;
  std::string stamp;
  EXPECT_TRUE(there.checkStyle());
  EXPECT_TRUE(there.requestStyle(taken, stamp));
  EXPECT_EQ(taken, two.records);
  EXPECT_EQ(stamp, stampOf(two, 1));
  EXPECT_EQ(newerThan(there, stamp), std::nullopt);
  EXPECT_EQ(registered(there, one), stampOf(one, 2));
  EXPECT_EQ(newerThan(here, stamp), one.records);
}

TEST_F(EngineHttpTest, askingWithTheCurrentStampDownloadsNoStyles) {
  web.hold(payload(two, 5));
  EngineHttp http = engine();
  EXPECT_EQ(newerThan(http, stampOf(two, 5)), std::nullopt);
  EXPECT_TRUE(http.couldRead());
  EXPECT_EQ(server.methods(), Methods{"GET"});
  EXPECT_EQ(server.requests()[0].header("range"), "bytes=0-511");
  EXPECT_EQ(newerThan(http, stampOf(two, 4)), two.records);
}

TEST_F(EngineHttpTest, newnessIsDecidedByTheStampAndNeverByTheTag) {
  for (const auto tags : {StyleServer::Tags::same, StyleServer::Tags::weak, StyleServer::Tags::none}) {
    web.tags = tags;
    web.hold(payload(one, 5));
    EngineHttp http = engine();
    EXPECT_EQ(newerThan(http, stampOf(two, 4)), one.records);
    web.hold(payload(same, 5));
    EXPECT_EQ(newerThan(http, stampOf(one, 5)), same.records) << "the same revision with another hash is newer";
    EXPECT_EQ(newerThan(http, stampOf(one, 6)), std::nullopt);
    EXPECT_EQ(newerThan(http, "00000000000000000009 2026-01-02T03:04:05Z"), same.records) << "a foreign stamp is 0";
  }
}

TEST_F(EngineHttpTest, weakTagsAreNoConditions) {
  for (const auto tags : {StyleServer::Tags::weak, StyleServer::Tags::none}) {
    web.tags = tags;
    web.hold(payload(two, 5));
    EngineHttp http = engine();
    server.forgetRequests();
    EXPECT_EQ(registered(http, one), stampOf(one, 6));
    EXPECT_EQ(server.requests()[2].method, "PUT");
    EXPECT_EQ(server.requests()[2].header("if-match"), "");
  }
}

TEST_F(EngineHttpTest, aServerWithoutRangesWorksToo) {
  web.ranges = false;
  EngineHttp http = engine();
  EXPECT_EQ(registered(http, two), stampOf(two, 1));
  EXPECT_EQ(registered(http, one), stampOf(one, 2));
  EXPECT_TRUE(http.didRegister());
  EXPECT_EQ(newerThan(http, ""), one.records);
}

TEST_F(EngineHttpTest, revisionsCountOnFromTheGreatestThatWasSeen) {
  EngineHttp http = engine();
  EXPECT_EQ(newerThan(http, stampOf(two, 10)), std::nullopt) << "the server was set up anew";
  EXPECT_EQ(registered(http, one), stampOf(one, 11));
  web.hold(payload(two, lastRevision));
  EXPECT_EQ(registered(http, one), stampOf(one, lastRevision));
  EXPECT_EQ(newerThan(http, stampOf(two, lastRevision)), one.records) << "another hash is newer";
}

TEST_F(EngineHttpTest, stylesThatStandInForOthersReplaceNoSet) {
  for (const std::string& held : {payload(two, 5), std::string("damaged")}) {
    web.hold(held);
    EngineHttp http = engine();
    http.setStandIn(true);
    const std::string stamp = registered(http, one);
    ASSERT_FALSE(http.didRegister());
    EXPECT_EQ(http.didRegister().error().cause, std::errc::file_exists);
    EXPECT_EQ(web.held, held);
    EXPECT_EQ(newerThan(http, stamp), std::nullopt) << "it does not come over the styles by itself either";
    http.setStandIn(false);
    registered(http, one);
    EXPECT_TRUE(http.didRegister());
  }
}

TEST_F(EngineHttpTest, stylesThatStandInForOthersReachAServiceWithoutASet) {
  EngineHttp http = engine();
  http.setStandIn(true);
  EXPECT_EQ(registered(http, one), stampOf(one, 1));
  EXPECT_TRUE(http.didRegister());
}

}  // namespace
}  // namespace tarvo::test
