// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <barrier>
#include <functional>
#include <thread>

#include "platform/engine/engine_http.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/encoded_styles.h"
#include "tests/support/listed_joiner.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/web_server.h"

// The style service over web servers as they are installed.
namespace tarvo {
namespace {

using test::EncodedStyles;
using test::WebServer;

class Machine {
 public:
  Machine(const WebServer& server, FileService& files, const DiskPath& basePath)
      : delivery_({server.address(), {}, {}}, files, BaseFile(files, basePath, server.address())) {}
  Result<> deliver(const std::vector<std::string>& names) {
    OutgoingSet set{.set = EncodedSet(EncodedStyles(names).records), .lastUpdate = {}, .isStored = true};
    set.joiner = std::make_shared<test::ListedJoiner>();
    return delivery_.deliver(set, Deadline(std::chrono::seconds(10)));
  }
  std::vector<std::string> seen() {
    const ServiceView& view = delivery_.look(Deadline(std::chrono::seconds(10)));
    return view.held() != nullptr ? test::namesIn(*view.held()) : std::vector<std::string>();
  }

 private:
  SetDelivery delivery_;
};

using Names = std::vector<std::string>;

class RealServer : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    if (!server.isHere()) GTEST_SKIP() << GetParam() << " is not installed";
  }
  Machine machine(const std::string& name) { return {server, files, folder.at(name)}; }
  const WebServer server{GetParam()};
  const test::TemporaryFolder folder;
  const Locations locations{"/", folder.path()};
  PosixFiles files{locations};
};

TEST_P(RealServer, holdsWhatWasDelivered) {
  Machine here = machine("here"), there = machine("there");
  EXPECT_EQ(here.seen(), Names());
  EXPECT_TRUE(here.deliver({"標準", "特許"}));
  EXPECT_EQ(there.seen(), (Names{"標準", "特許"}));
}

TEST_P(RealServer, setsOfOneLengthAndOneSecondAreToldApart) {
  Machine here = machine("here"), there = machine("there");
  for (int i = 10; i < 60; ++i) {
    Machine& one = i % 2 == 0 ? here : there;
    Machine& other = i % 2 == 0 ? there : here;
    ASSERT_TRUE(one.deliver({std::to_string(i)}));
    other.seen();
  }
  EXPECT_EQ(here.seen(), there.seen());
}

TEST_P(RealServer, machinesThatDeliverAtTheSameTimeLoseNothing) {
  Machine here = machine("here"), there = machine("there");
  ASSERT_TRUE(here.deliver({"標準", "特許"}));
  std::barrier start(2);
  Names mine{"標準", "特許"}, theirs = mine, all = mine;
  for (int round = 100; round < 150; ++round) {
    const auto race = [&](Machine& machine, Names& names, const std::string& name) {
      names.push_back(name + std::to_string(round));
      start.arrive_and_wait();
      EXPECT_TRUE(machine.deliver(names)) << round;
    };
    std::thread other(race, std::ref(there), std::ref(theirs), "there");
    race(here, mine, "here");
    other.join();
    all.push_back(mine.back());
    all.push_back(theirs.back());
  }
  Names held = here.seen();
  std::ranges::sort(held);
  std::ranges::sort(all);
  EXPECT_EQ(held, all);
}

INSTANTIATE_TEST_SUITE_P(Installed, RealServer, testing::Values("nginx", "apache"),
                         [](const auto& test) { return std::string(test.param); });

TEST(SecureServer, isReachedOnlyWithACertificateThatIsTrustedAndItsOwn) {
  const WebServer mine("nginx", "IP:127.0.0.1"), foreign("nginx", "DNS:elsewhere.invalid");
  if (!mine.isHere()) GTEST_SKIP() << "nginx is not installed";
  ASSERT_TRUE(mine.address().starts_with("https://"));
  const Locations locations("/", "/");
  PosixFiles files(locations);
  const struct {
    const WebServer& server;
    DiskPath authorities;
    bool reached;
  } rows[] = {{mine, DiskPath(mine.certificate()), true},
              {mine, {}, false},
              {mine, DiskPath(foreign.certificate()), false},
              {foreign, DiskPath(foreign.certificate()), false}};
  for (const auto& row : rows) {
    EngineHttp engine({row.server.address(), {}, row.authorities}, files, {});
    engine.waitForAnswer(std::chrono::seconds(10));
    EXPECT_EQ(engine.checkConnectionWithCurl(), row.reached);
    const Result<> reached = engine.couldReach();
    std::string stamp;
    engine.sendRegistStyle(EncodedStyles({"a"}).set(), stamp);
    engine.waitUntilSent(std::chrono::seconds(10));
    EXPECT_EQ(engine.didRegister().has_value(), row.reached);
    EXPECT_EQ(reached,
              row.reached ? Result<>() : Result<>(Failure{row.server.address(), Attempt::reach, Reason::notTrusted}));
  }
}

}  // namespace
}  // namespace tarvo
