// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/platform/engine/set_delivery_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(SetDeliveryTest, whatIsDamagedIsNeverTakenAndTheNextSetReplacesIt) {
  const std::string good = payload(two, 5);
  std::string wrongHash = good;
  wrongHash[wrongHash.find("Opt1")] = 'o';
  for (const std::string& bytes : {std::string("<html>Please sign in</html>"), good.substr(0, 100),
                                   good.substr(0, good.size() - 9), wrongHash, std::string(1000, '\0')}) {
    web.hold(bytes);
    SetDelivery home = this->home();
    const ServiceView& view = look(home);
    EXPECT_EQ(view.state, State::damaged);
    EXPECT_EQ(view.held(), nullptr);
    EXPECT_EQ(web.held, bytes);
    EXPECT_TRUE(deliver(home, joining(one)));
    EXPECT_EQ(heldNames(), std::vector<std::string>{"E-mail"});
  }
}

TEST_F(SetDeliveryTest, anAnswerThatBreaksOffIsNoAnswer) {
  web.hold(payload(two, 5));
  for (const Way way : {Way::half, Way::dropped}) {
    web.instead = [=](const SeenRequest&, int) { return Reply{200, {}, "0123456789", way}; };
    SetDelivery home = this->home();
    EXPECT_EQ(look(home).state, State::unknown);
    EXPECT_FALSE(deliver(home, out(one)));
    EXPECT_EQ(web.held, payload(two, 5));
  }
}

TEST_F(SetDeliveryTest, aServerThatRefusesIsNoAnswer) {
  web.hold(payload(two, 5));
  for (const int status : {301, 302, 308, 400, 401, 403, 407, 429, 500, 502, 503}) {
    web.instead = [&](const SeenRequest&, int) {
      return Reply{status, {"Location: " + server.address("/other")}, payload(one, 9)};
    };
    SetDelivery home = this->home();
    server.forgetRequests();
    EXPECT_EQ(look(home).state, State::unknown) << status;
    EXPECT_FALSE(deliver(home, out(one))) << status;
    for (const SeenRequest& request : server.requests()) {
      EXPECT_TRUE(request.path.starts_with("/styles.plist")) << "never redirected";
    }
  }
  EXPECT_EQ(web.held, payload(two, 5));
}

TEST_F(SetDeliveryTest, aServerThatTakesNoSetIsToldAndTheSetThereStays) {
  web.hold(payload(two, 5));
  web.instead = [&](const SeenRequest& request, int) -> std::optional<Reply> {
    return request.method == "PUT" ? std::optional(Reply{507, {}, "full"}) : std::nullopt;
  };
  SetDelivery home = this->home();
  EXPECT_FALSE(deliver(home, out(one)));
  EXPECT_EQ(home.view().state, State::held) << "it can be reached";
  EXPECT_EQ(web.held, payload(two, 5));
}

// At each request of a delivery, in each way, a server that hangs.
struct Hang {
  const char* method;
  int which;
  Reply::Way way;
};

class HangingServer : public SetDeliveryTest, public testing::WithParamInterface<Hang> {};

TEST_P(HangingServer, costsNoSet) {
  const Hang hang = GetParam();
  web.locks = true;
  web.hold(payload(two, 5));
  web.instead = [&](const SeenRequest& request, int count) -> std::optional<Reply> {
    if (request.method != hang.method || count != hang.which) return std::nullopt;
    return Reply{200, {"Lock-Token: <a>"}, std::string(5000, 'x'), hang.way};
  };
  SetDelivery home = this->home();
  const bool isAtTheEnd = std::string(hang.method) == "UNLOCK";
  EXPECT_EQ(deliver(home, joining(one, stampOf(two, 5)), 200ms).has_value(), isAtTheEnd);
  web.instead = nullptr;
  web.lockToken.clear();
  EXPECT_TRUE(deliver(home, joining(one, stampOf(two, 5))));
  EXPECT_EQ(heldNames(), std::vector<std::string>{"E-mail"});
}

INSTANTIATE_TEST_SUITE_P(SetDelivery, HangingServer,
                         testing::Values(Hang{"LOCK", 1, Reply::Way::nothing}, Hang{"LOCK", 1, Reply::Way::drip},
                                         Hang{"GET", 1, Reply::Way::nothing}, Hang{"GET", 1, Reply::Way::headOnly},
                                         Hang{"GET", 1, Reply::Way::drip}, Hang{"GET", 2, Reply::Way::nothing},
                                         Hang{"GET", 2, Reply::Way::headOnly}, Hang{"PUT", 1, Reply::Way::nothing},
                                         Hang{"PUT", 1, Reply::Way::headOnly}, Hang{"GET", 3, Reply::Way::nothing},
                                         Hang{"GET", 3, Reply::Way::drip}, Hang{"UNLOCK", 1, Reply::Way::nothing}));

TEST_F(SetDeliveryTest, whatIsUnderWayCanBeCalledOff) {
  web.instead = [](const SeenRequest&, int) { return Reply{200, {}, "x", Way::nothing}; };
  SetDelivery home = this->home();
  std::thread caller([&home] {
    std::this_thread::sleep_for(50ms);
    home.cancel();
  });
  EXPECT_EQ(look(home, 60s).cause, std::errc::operation_canceled);
  caller.join();
}

TEST_F(SetDeliveryTest, aServerThatIsGoneIsToldByItsCause) {
  std::string address;
  {
    const ScriptedServer gone([](const SeenRequest&) { return Reply{}; });
    address = gone.address();
  }
  SetDelivery home({address, {}, {}}, files, BaseFile(files, basePath(), address));
  EXPECT_EQ(look(home).cause, std::errc::connection_refused);
}

}  // namespace
}  // namespace tarvo::test
