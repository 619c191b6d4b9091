// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <optional>

#include "platform/engine/style_resource.h"
#include "platform/services/engine.h"

// The engine's style set on a server, one resource for each user (docs/engine.md).
// Duty: the four operations within their time. Not: transport (http_client.h), the bytes (style_payload.h).
// Every operation has a limit that its requests share. When one runs out, the service counts as unreachable and is not
// asked for a while, so that a server that hangs stops the user once and not at each edit. Operations without a pause
// between them belong to one action of the user and share a limit too: a service that is merely slow is then not asked
// for the rest of the action. Those that it answers promptly do not count.
// The stamp is that of the payload (SetStamp). What is not known is answered so that nothing is lost: a service that
// cannot say whether it holds a set is taken to hold one, since the answer to "no" is to send ours over it; and after
// a registration that failed or whose end is not known, the stamp handed back is that of the set as it would have been
// stored, so that the older set of the service does not count as newer.
namespace tarvo {

struct HttpTimes {
  using Milliseconds = std::chrono::milliseconds;
  // A little below 1 s and 2 s, and 3 s for an action with the files that it writes.
  Milliseconds probe{950}, operation{1900}, silence{30'000}, action{2800}, prompt{250}, pause{500};
};

class EngineHttp : public Engine {
 public:
  using Milliseconds = HttpTimes::Milliseconds;
  // Monotonic time since whenever.
  using Now = std::function<std::chrono::steady_clock::duration()>;

  explicit EngineHttp(HttpPlace place, HttpTimes times = {}, Now now = {});
  // Whether the service says what it holds, damaged or not.
  bool checkConnectionWithCurl() override;
  // Stores the set with the next revision, whatever is there; when another machine stores at the same time, again.
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override;
  bool checkStyle() override;
  bool requestStyle(Array& styles, std::string& localUpdate) override;
  void setStandIn(bool standsIn) override { standsIn_ = standsIn; }
  EngineForm form() const override { return EngineForm::http; }
  Result<> couldReach() const override { return couldReach_; }
  Result<> didRegister() const override { return didRegister_; }
  Result<> couldRead() const override { return couldRead_; }

 private:
  enum class Try { stored, raced, failed };
  Failure failure(Attempt attempt, std::error_code cause) const { return {resource_.address(), attempt, cause}; }
  // An operation begins: until when, or nothing when the service is not to be asked. One that began is finished.
  std::optional<Deadline> begin(Milliseconds limit);
  void finish();
  std::uint64_t nextRevision() const;
  StyleResource::Front readFront(const Deadline& deadline);
  std::optional<ReadPayload> readWhole(const Deadline& deadline);
  Result<> keepTrying(const StylePayload& payload, SetStamp& stamp, const Deadline& deadline);
  Try tryToStore(const StylePayload& payload, SetStamp& stamp, const Deadline& deadline);
  std::error_code failed_;  // why a try did
  StyleResource resource_;
  HttpTimes times_;
  Now now_;
  std::chrono::steady_clock::duration silentUntil_{}, begun_{}, finished_{};
  std::chrono::steady_clock::duration spent_{};  // of the action
  std::uint64_t known_ = 0;                      // the greatest revision that was seen anywhere
  bool standsIn_ = false;
  Result<> couldReach_, didRegister_, couldRead_;
};

}  // namespace tarvo
