// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <mutex>
#include <string>

#include "platform/engine/style_courier.h"
#include "platform/services/engine.h"

// The engine's style set on a server, one resource for each user (docs/engine.md).
// Duty: the four operations, answered at once from what is known. Not: talking to the server (style_courier.h).
// What is not known is answered so that nothing is lost: a service that has not answered yet counts as one that can be
// reached and holds a set, since the answer to "no" is to send ours over it. The stamp of a registration is that which
// the set will have when nobody else stores before it arrives. Where sets can be joined (EngineClient), neither side
// loses what it changed.
namespace tarvo {

class FileService;

struct HttpTimes : CourierTimes {
  Milliseconds silence{30'000};  // so long after a contact that failed the service counts as unreachable
};

class EngineHttp : public Engine {
 public:
  using Milliseconds = HttpTimes::Milliseconds;
  // Monotonic time.
  using Now = std::function<std::chrono::steady_clock::time_point()>;

  // basePath: of the file in which the home keeps what it shares with the service (shared_base.h); empty keeps nothing.
  // files: used by the thread of the engine too.
  EngineHttp(HttpPlace place, FileService& files, const DiskPath& basePath, HttpTimes times = {},
             Now now = std::chrono::steady_clock::now);
  ~EngineHttp() override;
  EngineHttp(const EngineHttp&) = delete;
  EngineHttp& operator=(const EngineHttp&) = delete;

  // False only after a contact that failed a short while ago; then the present set is sent when it can be.
  bool checkConnectionWithCurl() override;
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override;
  bool checkStyle() override;
  bool requestStyle(Array& styles, std::string& localUpdate) override;
  void setStandIn(bool standsIn) override { standsIn_ = standsIn; }
  void attach(EngineClient* client) override;
  void didStoreStyles() override;
  void didSeedStyles(const Array& styles) override;
  bool isAsking() const override;
  bool isSending() const override;
  void waitForAnswer(std::chrono::milliseconds limit) override { courier_->waitForAnswer(limit); }
  void waitUntilSent(std::chrono::milliseconds limit) override { courier_->waitUntilDelivered(limit); }
  std::vector<std::optional<std::size_t>> placesOfRequested() const override { return places_; }
  EngineForm form() const override { return EngineForm::http; }
  Result<> couldReach() const override { return couldReach_; }
  Result<> didRegister() const override;
  Result<> couldRead() const override { return couldRead_; }

 private:
  using Knowledge = StyleCourier::Knowledge;
  Failure failure(Attempt attempt, std::error_code cause) const { return {place_.address, attempt, cause}; }
  std::uint64_t nextRevision() const;
  void send(EncodedSet set);
  void sendPresent();
  std::optional<Array> newerThan(const StyleSet& present, const ServiceView& view, const SetStamp& local);
  std::optional<Array> joined(const Array& mine, const ServiceView& view, const Array& base, StyleJoiner& joiner);
  std::unique_ptr<StyleCourier> makeCourier();
  void settle(SharedBase base);
  ServiceView view() const;
  void hear();
  FileService& files_;
  HttpPlace place_;
  DiskPath basePath_;
  HttpTimes times_;
  Now now_;
  std::mutex attaching_;
  EngineClient* client_ = nullptr;
  bool standsIn_ = false;
  struct Taken {
    SharedBase theirs;
    bool isJoined;  // with what this home has changed
  };
  std::optional<Taken> taken_;              // by the last request, and not in the style file yet
  std::shared_ptr<const SharedBase> base_;  // what this program has settled before the thread knows of it
  std::vector<std::optional<std::size_t>> places_;
  Result<> couldReach_, couldRead_;
  std::unique_ptr<StyleCourier> courier_;  // never null
};

}  // namespace tarvo
