// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/engine/engine_http.h"
#include "tests/platform/engine/set_delivery_fixture.h"

// A style service over HTTP as a program uses it.
namespace tarvo::test {

// A program with one set of styles.
class FakeClient : public EngineClient {
 public:
  explicit FakeClient(std::shared_ptr<ListedJoiner> joiner) : joiner_(std::move(joiner)) {}
  void set(const EncodedStyles& styles) { styles_.emplace(styles); }
  std::optional<StyleSet> presentStyles() override { return styles_ ? std::optional(styles_->set()) : std::nullopt; }
  bool areStored() const override { return stored; }
  std::string lastUpdate() const override { return stamp; }
  std::shared_ptr<StyleJoiner> joiner() override { return joiner_; }
  void didHear() override { ++heard; }

  bool stored = true;
  std::string stamp;
  std::atomic<int> heard = 0;

 private:
  std::shared_ptr<ListedJoiner> joiner_;
  std::optional<EncodedStyles> styles_;
};

class EngineHttpTest : public SetDeliveryTest {
 protected:
  std::unique_ptr<EngineHttp> engine(const std::string& home = "home") {
    return std::make_unique<EngineHttp>(HttpPlace{server.address(), {}, {}}, files, basePath(home), HttpTimes{},
                                        [this] { return std::chrono::steady_clock::now() + passed; });
  }
  // One whose first answer has come, for a program with these styles.
  std::unique_ptr<EngineHttp> answered(FakeClient& program, const std::string& home = "home") {
    std::unique_ptr<EngineHttp> made = engine(home);
    made->attach(&program);
    made->waitForAnswer(10s);
    return made;
  }
  // An edit, as a store makes it.
  void edit(EngineHttp& http, FakeClient& program, const EncodedStyles& styles) {
    program.set(styles);
    http.didStoreStyles();
    if (!http.checkConnectionWithCurl()) return;
    std::string stamp;
    http.sendRegistStyle(styles.set(), stamp);
    program.stamp = stamp;
  }
  // A launch, as a store makes it: what was taken.
  std::optional<std::vector<std::string>> reconcile(EngineHttp& http, FakeClient& program) {
    Array styles;
    std::string stamp = program.stamp;
    if (!http.requestStyle(styles, stamp)) return std::nullopt;
    program.stamp = stamp;
    program.set(EncodedStyles(namesIn(styles)));
    http.didStoreStyles();
    return namesIn(styles);
  }

  std::chrono::seconds passed{0};
  FakeClient client{joiner};
};

}  // namespace tarvo::test
