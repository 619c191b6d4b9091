// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/platform/engine/engine_http_fixture.h"

namespace tarvo::test {
namespace {

using Way = Reply::Way;

// At each request of each operation, in each way, a server that hangs.
struct Hang {
  const char* method;
  int which;
  Way way;
};

class HangingServer : public EngineHttpTest, public testing::WithParamInterface<Hang> {};

TEST_P(HangingServer, isGivenUpAndNotAskedForHalfAMinute) {
  const Hang hang = GetParam();
  web.locks = true;
  web.hold(payload(two, 5));
  bool hangs = true;
  web.instead = [&](const SeenRequest& request, int count) -> std::optional<Reply> {
    if (!hangs || request.method != hang.method || count != hang.which) return std::nullopt;
    return Reply{200, {"Lock-Token: <a>"}, std::string(5000, 'x'), hang.way};
  };
  EngineHttp http = engine(short_);
  const bool isProbe = hang.which == 1 && std::string(hang.method) == "GET";
  EXPECT_EQ(http.checkConnectionWithCurl(), !isProbe);
  if (!isProbe) registered(http, one);
  const bool isAtTheEnd = std::string(hang.method) == "UNLOCK";
  EXPECT_EQ(http.didRegister().has_value(), isProbe || isAtTheEnd);
  hangs = false;
  server.forgetRequests();
  for (int second = 0; second < 30; ++second) {
    EXPECT_FALSE(http.checkConnectionWithCurl());
    EXPECT_TRUE(http.checkStyle());
    EXPECT_EQ(newerThan(http, ""), std::nullopt);
    registered(http, one);
    EXPECT_FALSE(http.didRegister());
    now += 1s;
  }
  EXPECT_EQ(server.methods(), Methods{});
  web.lockToken.clear();
  EXPECT_TRUE(http.checkConnectionWithCurl());
  registered(http, two);
  EXPECT_TRUE(http.didRegister());
  EXPECT_EQ(newerThan(http, ""), two.records);
}

INSTANTIATE_TEST_SUITE_P(EngineHttp, HangingServer,
                         testing::Values(Hang{"GET", 1, Way::nothing}, Hang{"GET", 1, Way::headOnly},
                                         Hang{"GET", 1, Way::drip}, Hang{"LOCK", 1, Way::nothing},
                                         Hang{"LOCK", 1, Way::drip}, Hang{"GET", 2, Way::nothing},
                                         Hang{"GET", 2, Way::headOnly}, Hang{"PUT", 1, Way::nothing},
                                         Hang{"PUT", 1, Way::headOnly}, Hang{"GET", 3, Way::nothing},
                                         Hang{"GET", 3, Way::drip}, Hang{"UNLOCK", 1, Way::nothing}));

TEST_F(EngineHttpTest, aPullFromAServerThatHangsTakesNothing) {
  web.hold(payload(two, 5));
  for (const int which : {1, 2}) {
    for (const Way way : {Way::nothing, Way::headOnly, Way::drip}) {
      web.counts.clear();
      web.instead = [=, this](const SeenRequest&, int count) -> std::optional<Reply> {
        return count == which ? std::optional(Reply{200, {}, payload(two, 5), way}) : std::nullopt;
      };
      EngineHttp http = engine(short_);
      EXPECT_EQ(newerThan(http, ""), std::nullopt);
      EXPECT_FALSE(http.checkConnectionWithCurl());
    }
  }
}

TEST_F(EngineHttpTest, aSlowServiceIsNotAskedForTheRestOfAnAction) {
  web.instead = [this](const SeenRequest& request, int) -> std::optional<Reply> {
    now += request.method == "LOCK" ? 0ms : 650ms;
    return std::nullopt;
  };
  EngineHttp http = engine();
  EXPECT_TRUE(http.checkConnectionWithCurl());
  EXPECT_EQ(registered(http, one), stampOf(one, 1));
  EXPECT_TRUE(http.didRegister());
  server.forgetRequests();
  now += 499ms;
  EXPECT_FALSE(http.checkConnectionWithCurl());
  EXPECT_TRUE(http.checkStyle());
  EXPECT_EQ(newerThan(http, ""), std::nullopt);
  EXPECT_EQ(registered(http, two), stampOf(two, 2));
  EXPECT_FALSE(http.didRegister());
  EXPECT_EQ(server.methods(), Methods{});
  now += 1ms;
  EXPECT_TRUE(http.checkConnectionWithCurl()) << "the user paused";
  EXPECT_EQ(registered(http, two), stampOf(two, 2));
  EXPECT_TRUE(http.didRegister());
}

TEST_F(EngineHttpTest, promptOperationsMayFollowEachOtherForever) {
  web.instead = [this](const SeenRequest&, int) {
    now += 250ms;
    return std::nullopt;
  };
  EngineHttp http = engine();
  for (int i = 0; i < 100; ++i) ASSERT_TRUE(http.checkConnectionWithCurl()) << i;
}

}  // namespace
}  // namespace tarvo::test
