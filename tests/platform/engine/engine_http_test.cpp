// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_http.h"

#include <gtest/gtest.h>

#include "tests/support/encoded_styles.h"
#include "tests/support/style_server.h"

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using test::EncodedStyles;
using test::Reply;
using test::SeenRequest;
using test::StyleServer;
using Methods = std::vector<std::string>;
using Way = Reply::Way;

class EngineHttpTest : public testing::Test {
 protected:
  EngineHttp engine(HttpTimes times = {}) {
    return EngineHttp({server.address(), {}, {}}, times, [this] { return now; });
  }
  std::string registered(EngineHttp& engine, const EncodedStyles& styles) {
    std::string stamp;
    engine.sendRegistStyle(styles.set(), stamp);
    return stamp;
  }
  std::string payload(const EncodedStyles& styles, std::uint64_t revision) {
    return StylePayload(styles.set()).bytes(revision);
  }
  std::string stampOf(const EncodedStyles& styles, std::uint64_t revision) {
    return StylePayload(styles.set()).stamp(revision).text();
  }
  std::optional<Array> newerThan(EngineHttp& engine, std::string stamp) {
    Array styles{PropertyList("untouched")};
    const std::string before = stamp;
    if (engine.requestStyle(styles, stamp)) return styles;
    EXPECT_EQ(styles, Array{PropertyList("untouched")});
    EXPECT_EQ(stamp, before);
    return std::nullopt;
  }

  const EncodedStyles two{{"標準", "特許"}}, one{{"E-mail"}}, same{{"E-mbil"}};  // the last two are equally long
  const HttpTimes short_{100ms, 200ms, 30s};
  std::chrono::steady_clock::duration now = 1h;
  StyleServer web;
  test::ScriptedServer server{[this](const SeenRequest& request) { return web.answer(request); }};
};

TEST_F(EngineHttpTest, anEmptyServerIsReachableAndHoldsNothing) {
  EngineHttp http = engine();
  EXPECT_TRUE(http.checkConnectionWithCurl());
  EXPECT_FALSE(http.checkStyle());
  EXPECT_EQ(newerThan(http, ""), std::nullopt);
  EXPECT_EQ(http.form(), "http");
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

TEST_F(EngineHttpTest, revisionsCountOnFromTheGreatestThatWasSeen) {
  EngineHttp http = engine();
  EXPECT_EQ(newerThan(http, stampOf(two, 10)), std::nullopt) << "the server was set up anew";
  EXPECT_EQ(registered(http, one), stampOf(one, 11));
  web.hold(payload(two, lastRevision));
  EXPECT_EQ(registered(http, one), stampOf(one, lastRevision));
  EXPECT_EQ(newerThan(http, stampOf(two, lastRevision)), one.records) << "another hash is newer";
}

TEST_F(EngineHttpTest, whatIsDamagedIsNeverTakenAndTheNextRegistrationReplacesIt) {
  const std::string good = payload(two, 5);
  std::string wrongHash = good;
  wrongHash[wrongHash.find("Opt1")] = 'o';
  for (const std::string& bytes : {std::string("<html>Please sign in</html>"), good.substr(0, 100),
                                   good.substr(0, good.size() - 9), wrongHash, std::string(1000, '\0')}) {
    web.hold(bytes);
    EngineHttp http = engine();
    EXPECT_TRUE(http.checkConnectionWithCurl());
    EXPECT_TRUE(http.checkStyle()) << "a set that is being stored may look like this: ours is not sent over it";
    EXPECT_EQ(newerThan(http, stampOf(two, 4)), std::nullopt);
    EXPECT_FALSE(http.couldRead());
    EXPECT_EQ(web.held, bytes);
    const std::string stamp = registered(http, one);
    EXPECT_TRUE(http.didRegister());
    EXPECT_GE(SetStamp::parse(stamp).revision, 5U);
    EXPECT_EQ(newerThan(http, stampOf(two, 4)), one.records);
    EXPECT_TRUE(http.couldRead());
  }
}

TEST_F(EngineHttpTest, anAnswerThatBreaksOffIsNoAnswer) {
  web.hold(payload(two, 5));
  for (const Way way : {Way::half, Way::dropped}) {
    web.instead = [=](const SeenRequest&, int) { return Reply{200, {}, "0123456789", way}; };
    EngineHttp http = engine();
    EXPECT_FALSE(http.checkConnectionWithCurl());
    EXPECT_TRUE(http.checkStyle()) << "not known: ours must not be sent over it";
    EXPECT_EQ(newerThan(http, ""), std::nullopt);
    EXPECT_FALSE(http.couldRead());
    registered(http, one);
    EXPECT_FALSE(http.didRegister());
    EXPECT_EQ(web.held, payload(two, 5));
  }
}

TEST_F(EngineHttpTest, aServerThatRefusesIsUnreachable) {
  web.hold(payload(two, 5));
  for (const int status : {301, 302, 308, 400, 401, 403, 407, 429, 500, 502, 503}) {
    web.instead = [&](const SeenRequest&, int) {
      return Reply{status, {"Location: " + server.address("/other")}, payload(one, 9)};
    };
    EngineHttp http = engine();
    server.forgetRequests();
    EXPECT_FALSE(http.checkConnectionWithCurl()) << status;
    EXPECT_TRUE(http.checkStyle()) << status;
    EXPECT_EQ(newerThan(http, ""), std::nullopt) << status;
    registered(http, one);
    EXPECT_FALSE(http.didRegister()) << status;
    for (const SeenRequest& request : server.requests()) EXPECT_EQ(request.path, "/styles.plist") << "never redirected";
  }
  EXPECT_EQ(web.held, payload(two, 5));
}

TEST_F(EngineHttpTest, afterAFailedRegistrationTheOlderSetDoesNotCountAsNewer) {
  web.hold(payload(two, 5));
  for (const char* method : {"PUT", "GET"}) {
    EngineHttp http = engine();
    web.instead = nullptr;
    EXPECT_TRUE(http.checkConnectionWithCurl());
    web.instead = [&](const SeenRequest& request, int) -> std::optional<Reply> {
      return request.method == method ? std::optional(Reply{507, {}, "full"}) : std::nullopt;
    };
    const std::string stamp = registered(http, one);
    EXPECT_FALSE(http.didRegister());
    EXPECT_EQ(stamp, stampOf(one, 6));
    web.instead = nullptr;
    EXPECT_EQ(newerThan(http, stamp), std::nullopt);
    EngineHttp later = engine();
    EXPECT_EQ(newerThan(later, stamp), std::nullopt) << "nor at the next start";
    EXPECT_EQ(web.held, payload(two, 5));
  }
}

TEST_F(EngineHttpTest, aSetThatWasStoredAlthoughTheAnswerWasLostHasTheStampHandedBack) {
  web.hold(payload(two, 5));
  web.instead = [this](const SeenRequest& request, int) -> std::optional<Reply> {
    if (request.method != "PUT") return std::nullopt;
    web.hold(request.body);
    return Reply{204, {}, "", Way::nothing};
  };
  EngineHttp http = engine(short_);
  const std::string stamp = registered(http, one);
  EXPECT_FALSE(http.didRegister());
  EXPECT_EQ(web.held, payload(one, 6));
  EngineHttp later = engine();
  EXPECT_EQ(newerThan(later, stamp), std::nullopt);
}

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

TEST_F(EngineHttpTest, aServerThatIsGoneIsAskedAgainAtOnce) {
  std::string address;
  {
    const test::ScriptedServer gone([](const SeenRequest&) { return Reply{}; });
    address = gone.address();
  }
  EngineHttp http({address, {}, {}}, {}, [this] { return now; });
  EXPECT_FALSE(http.checkConnectionWithCurl());
  EXPECT_TRUE(http.checkStyle()) << "not known: ours must not be sent over it";
  EXPECT_EQ(newerThan(http, ""), std::nullopt);
  EXPECT_EQ(registered(http, one), stampOf(one, 1));
  EXPECT_FALSE(http.didRegister());
}

}  // namespace
}  // namespace tarvo
