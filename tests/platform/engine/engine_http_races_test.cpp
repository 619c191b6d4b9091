// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/platform/engine/engine_http_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(EngineHttpTest, locksAreTakenUsedAndGivenBack) {
  web.locks = true;
  EngineHttp http = engine();
  EXPECT_EQ(registered(http, two), stampOf(two, 1)) << "the empty file that the lock made is nothing";
  EXPECT_EQ(server.methods(), (Methods{"LOCK", "GET", "PUT", "GET", "UNLOCK"}));
  EXPECT_EQ(server.requests()[2].header("if"), "(<opaquelocktoken:1234>)");
  EXPECT_EQ(server.requests()[2].header("if-none-match"), "");
  EXPECT_EQ(server.requests()[4].header("lock-token"), "<opaquelocktoken:1234>");
  EXPECT_EQ(web.lockToken, "");
}

TEST_F(EngineHttpTest, whenTheLockIsTakenItWaits) {
  web.locks = web.isLockedByAnother = true;
  web.hold(payload(two, 3));
  web.afterwards = [this](const SeenRequest& request, int count) {
    if (request.method == "LOCK" && count == 3) web.isLockedByAnother = false;
  };
  EngineHttp http = engine();
  EXPECT_EQ(registered(http, one), stampOf(one, 4));
  EXPECT_TRUE(http.didRegister());
  EXPECT_EQ(server.methods(), (Methods{"LOCK", "LOCK", "LOCK", "LOCK", "GET", "PUT", "GET", "UNLOCK"}));
}

TEST_F(EngineHttpTest, aLockThatStaysIsGivenUpAndTheSetIsLeftAlone) {
  web.locks = web.isLockedByAnother = true;
  web.hold(payload(two, 3));
  EngineHttp http = engine(short_);
  EXPECT_TRUE(http.checkConnectionWithCurl());
  EXPECT_EQ(registered(http, one), stampOf(one, 4));
  EXPECT_FALSE(http.didRegister());
  EXPECT_EQ(web.held, payload(two, 3));
}

TEST_F(EngineHttpTest, aRaceThatTheServerNoticesIsRunAgainOnTheFreshSet) {
  web.hold(payload(two, 3));
  web.afterwards = [this](const SeenRequest& request, int count) {
    if (request.method == "GET" && count == 1) web.hold(payload(same, 4));
  };
  EngineHttp http = engine();
  EXPECT_EQ(registered(http, one), stampOf(one, 5));
  EXPECT_TRUE(http.didRegister());
  EXPECT_EQ(web.held, payload(one, 5));
}

TEST_F(EngineHttpTest, aRaceThatNobodyNoticesIsSeenAfterwards) {
  web.conditions = false;
  web.tags = StyleServer::Tags::same;
  web.hold(payload(two, 3));
  web.afterwards = [this](const SeenRequest& request, int count) {
    if (request.method == "PUT" && count <= 2) web.hold(payload(same, 3 + static_cast<std::uint64_t>(count)));
  };
  EngineHttp http = engine();
  EXPECT_EQ(registered(http, one), stampOf(one, 6));
  EXPECT_TRUE(http.didRegister());
  EXPECT_EQ(web.held, payload(one, 6));
}

TEST_F(EngineHttpTest, aSetThatTheServerCutsIsStoredAgain) {
  web.instead = [this](const SeenRequest& request, int count) -> std::optional<Reply> {
    if (request.method != "PUT" || count != 1) return std::nullopt;
    web.hold(request.body.substr(0, request.body.size() - 1));
    return Reply{204, {}, ""};
  };
  for (const bool ranges : {true, false}) {
    web.ranges = ranges;
    web.counts.clear();
    web.held.reset();
    EngineHttp http = engine();
    const std::string stamp = registered(http, one);
    EXPECT_TRUE(http.didRegister());
    EXPECT_EQ(newerThan(http, ""), one.records);
    EXPECT_EQ(stamp, stampOf(one, 2));
  }
}

}  // namespace
}  // namespace tarvo::test
