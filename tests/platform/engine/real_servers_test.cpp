// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <barrier>
#include <functional>
#include <thread>

#include "platform/engine/engine_http.h"
#include "tests/support/encoded_styles.h"
#include "tests/support/web_server.h"

// The style service over web servers as they are installed.
namespace tarvo {
namespace {

using test::EncodedStyles;
using test::WebServer;

struct Machine {
  explicit Machine(const WebServer& server) : engine({server.address(), {}, {}}) {}
  void registerStyles(const std::vector<std::string>& names) {
    const EncodedStyles styles(names);
    held = styles.records;
    stamp.clear();
    engine.sendRegistStyle(styles.set(), stamp);
  }
  bool pull() { return engine.requestStyle(held, stamp); }

  EngineHttp engine;
  Array held;
  std::string stamp;
};

class RealServer : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (!server.isHere()) GTEST_SKIP() << GetParam() << " is not installed";
  }
  const WebServer server{GetParam()};
};

TEST_P(RealServer, holdsWhatWasRegistered) {
  Machine here(server), there(server);
  EXPECT_TRUE(here.engine.checkConnectionWithCurl());
  EXPECT_FALSE(here.engine.checkStyle());
  here.registerStyles({"標準", "特許"});
  EXPECT_TRUE(here.engine.didRegister());
  EXPECT_TRUE(there.engine.checkStyle());
  EXPECT_TRUE(there.pull());
  EXPECT_EQ(there.held, here.held);
  EXPECT_EQ(there.stamp, here.stamp);
  EXPECT_FALSE(there.pull());
}

TEST_P(RealServer, setsOfOneLengthAndOneSecondAreToldApart) {
  Machine here(server), there(server);
  for (int i = 10; i < 60; ++i) {
    Machine& one = i % 2 == 0 ? here : there;
    Machine& other = i % 2 == 0 ? there : here;
    one.registerStyles({std::to_string(i)});
    ASSERT_TRUE(one.engine.didRegister());
    ASSERT_TRUE(other.pull()) << i;
    ASSERT_EQ(other.held, one.held) << i;
  }
}

TEST_P(RealServer, machinesThatRegisterAtTheSameTimeAgreeAfterwards) {
  Machine here(server), there(server);
  std::barrier start(2);
  for (int round = 100; round < 200; ++round) {
    const auto race = [&](Machine& machine, const std::string& name) {
      start.arrive_and_wait();
      machine.registerStyles({name + std::to_string(round)});
    };
    std::thread other(race, std::ref(there), "there");
    race(here, "here ");
    other.join();
    ASSERT_TRUE(here.engine.didRegister() && there.engine.didRegister()) << round;
    here.pull();
    there.pull();
    ASSERT_EQ(here.stamp, there.stamp) << round;
    ASSERT_EQ(here.held, there.held) << round;
  }
}

INSTANTIATE_TEST_SUITE_P(Installed, RealServer, testing::Values("nginx", "apache"),
                         [](const auto& test) { return std::string(test.param); });

TEST(SecureServer, isReachedOnlyWithACertificateThatIsTrustedAndItsOwn) {
  const WebServer mine("nginx", "IP:127.0.0.1"), foreign("nginx", "DNS:elsewhere.invalid");
  if (!mine.isHere()) GTEST_SKIP() << "nginx is not installed";
  ASSERT_TRUE(mine.address().starts_with("https://"));
  const struct {
    const WebServer& server;
    DiskPath authorities;
    bool reached;
  } rows[] = {{mine, DiskPath(mine.certificate()), true},
              {mine, {}, false},
              {mine, DiskPath(foreign.certificate()), false},
              {foreign, DiskPath(foreign.certificate()), false}};
  for (const auto& row : rows) {
    EngineHttp engine({row.server.address(), {}, row.authorities});
    EXPECT_EQ(engine.checkConnectionWithCurl(), row.reached);
    std::string stamp;
    engine.sendRegistStyle(EncodedStyles({"a"}).set(), stamp);
    EXPECT_EQ(engine.didRegister().has_value(), row.reached);
    EXPECT_EQ(engine.couldReach(),
              row.reached ? Result<>() : Result<>(Failure{row.server.address(), Attempt::reach, Reason::notTrusted}));
  }
}

}  // namespace
}  // namespace tarvo
