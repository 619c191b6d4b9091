// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/platform/engine/engine_http_fixture.h"

namespace tarvo::test {
namespace {

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

TEST_F(EngineHttpTest, aServerThatIsGoneIsAskedAgainAtOnce) {
  std::string address;
  {
    const ScriptedServer gone([](const SeenRequest&) { return Reply{}; });
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
}  // namespace tarvo::test
