// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/set_delivery.h"

#include <gtest/gtest.h>

#include "tests/platform/engine/set_delivery_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(SetDeliveryTest, anEmptyServerHoldsNothing) {
  SetDelivery home = this->home();
  EXPECT_EQ(look(home).state, State::nothing);
  EXPECT_EQ(server.methods(), Methods{"GET"});
  EXPECT_EQ(server.requests()[0].header("range"), "bytes=0-511");
}

TEST_F(SetDeliveryTest, aSetIsComparedStoredAndSeen) {
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(two)));
  EXPECT_EQ(web.held, payload(two, 1));
  EXPECT_EQ(server.methods(), (Methods{"LOCK", "MKCOL", "GET", "MKCOL", "GET", "MKCOL", "GET", "GET", "PUT", "GET"}))
      << "neither lock is offered";
  EXPECT_EQ(server.requests()[8].header("if-none-match"), "*");
  EXPECT_EQ(server.requests()[8].header("expect"), "");
  server.forgetRequests();
  EXPECT_TRUE(deliver(home, out(one)));
  EXPECT_EQ(web.held, payload(one, 2));
  EXPECT_EQ(server.methods(), (Methods{"GET", "PUT", "GET"})) << "it is not asked for locks again";
  EXPECT_EQ(server.requests()[1].header("if-match"), "\"v1\"");
  EXPECT_EQ(server.connections(), 1) << "the connection is kept";
}

TEST_F(SetDeliveryTest, anotherHomeSeesTheSetAndItsStamp) {
  SetDelivery here = home("here"), there = home("there");
  EXPECT_TRUE(deliver(here, out(two)));
  const ServiceView& view = look(there);
  ASSERT_EQ(view.state, State::held);
  EXPECT_EQ(view.stamp.text(), stampOf(two, 1));
  ASSERT_NE(view.held(), nullptr);
  EXPECT_EQ(*view.held(), two.records);
}

TEST_F(SetDeliveryTest, whatTheHomeSharesIsNotFetchedAgain) {
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(two)));
  server.forgetRequests();
  SetDelivery later = this->home();
  EXPECT_TRUE(look(later).showsBase());
  EXPECT_EQ(server.methods(), Methods{"GET"});
}

TEST_F(SetDeliveryTest, aSetThatTheServiceHoldsIsNotSentAgain) {
  web.hold(payload(two, 5));
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(two)));
  EXPECT_EQ(web.held, payload(two, 5));
  EXPECT_EQ(web.counts["PUT"], 0);
}

TEST_F(SetDeliveryTest, setsAreToldApartByTheStampAndNeverByTheTag) {
  for (const auto tags : {StyleServer::Tags::same, StyleServer::Tags::weak, StyleServer::Tags::none}) {
    web.tags = tags;
    web.hold(payload(one, 5));
    SetDelivery home = this->home("none");
    EXPECT_EQ(*look(home).held(), one.records);
    web.hold(payload(same, 5));
    EXPECT_EQ(*look(home).held(), same.records);
  }
}

TEST_F(SetDeliveryTest, weakTagsAreNoConditions) {
  for (const auto tags : {StyleServer::Tags::weak, StyleServer::Tags::none}) {
    web.tags = tags;
    web.hold(payload(two, 5));
    SetDelivery home = this->home();
    server.forgetRequests();
    EXPECT_TRUE(deliver(home, out(one)));
    EXPECT_EQ(server.requests()[8].method, "PUT");
    EXPECT_EQ(server.requests()[8].header("if-match"), "");
  }
}

TEST_F(SetDeliveryTest, aServerWithoutRangesWorksToo) {
  web.ranges = false;
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(two)));
  EXPECT_TRUE(deliver(home, out(one)));
  EXPECT_EQ(web.held, payload(one, 2));
}

TEST_F(SetDeliveryTest, revisionsCountOnFromTheGreatestThatWasSeen) {
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(one, stampOf(two, 10)))) << "the server was set up anew";
  EXPECT_EQ(web.held, payload(one, 11));
  web.hold(payload(two, lastRevision));
  EXPECT_TRUE(deliver(home, out(one)));
  EXPECT_EQ(web.held, payload(one, lastRevision));
}

TEST_F(SetDeliveryTest, stylesThatStandInForOthersReplaceNoSet) {
  for (const std::string& held : {payload(two, 5), std::string("damaged")}) {
    web.hold(held);
    SetDelivery home = this->home();
    OutgoingSet set = joining(one);
    set.standsIn = true;
    const Result<> delivered = deliver(home, set);
    ASSERT_FALSE(delivered);
    EXPECT_EQ(delivered.error().cause, std::errc::file_exists);
    EXPECT_EQ(web.held, held);
  }
  web.held.reset();
  SetDelivery home = this->home();
  OutgoingSet set = joining(one);
  set.standsIn = true;
  EXPECT_TRUE(deliver(home, set)) << "a service without a set takes them";
}

}  // namespace
}  // namespace tarvo::test
