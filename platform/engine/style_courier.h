// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

#include "platform/engine/set_delivery.h"
#include "platform/services/result.h"

namespace tarvo {

struct CourierTimes {
  using Milliseconds = std::chrono::milliseconds;
  Milliseconds contact{30'000};  // for the requests of one look or one delivery together
  Milliseconds between{1'000};   // two deliveries begin, so that a burst of edits goes out as two
  // After how long what could not be delivered is tried again; the last one from then on.
  std::array<Milliseconds, 4> again{Milliseconds(5'000), Milliseconds(30'000), Milliseconds(120'000),
                                    Milliseconds(600'000)};
};

// Talks to the service on a thread of its own.
// Duty: look once at first, bring the set that was handed over last, and try again while it waits; know how that went.
// Not: what a set means (set_delivery.h). Every member but the constructor and the destructor may be used while the
// thread works; none of them waits for the network but those that say so. The destructor stops it.
class StyleCourier {
 public:
  using Clock = std::chrono::steady_clock;
  using Milliseconds = CourierTimes::Milliseconds;

  struct Knowledge {
    bool hasAnswered = false;  // the first look has ended
    bool isWaiting = false;    // a set is to be delivered, or is on its way
    ServiceView view;
    std::uint64_t greatest = 0;
    Result<> contact;                            // how the last one ended
    std::optional<Clock::time_point> contacted;  // when
    std::optional<Result<>> delivered;           // how the last delivery ended; nothing before the first
  };

  // didHear: called by the thread after each change of what is known.
  StyleCourier(std::unique_ptr<SetDelivery> delivery, CourierTimes times, std::function<void()> didHear);
  ~StyleCourier();
  StyleCourier(const StyleCourier&) = delete;
  StyleCourier& operator=(const StyleCourier&) = delete;

  Knowledge known() const;
  // Calls off what is under way; from then on nothing is sent, and nothing of a set's joiner is used.
  void stop();
  bool isStopped() const { return !thread_.joinable(); }
  // Takes the place of a set that has not left yet.
  void deliver(OutgoingSet set);
  // This home holds what the service showed; done before the next delivery.
  void settle(SharedBase base);
  bool isSettling() const;  // that is not in the view yet
  void noteRevision(std::uint64_t revision);
  // Wait for the end of the first look, or until nothing is to be delivered or its delivery has failed.
  void waitForAnswer(Milliseconds limit);
  void waitUntilDelivered(Milliseconds limit);

 private:
  void work();
  void look();
  void tryToDeliver(std::unique_lock<std::mutex>& lock);
  void settleAll(std::unique_lock<std::mutex>& lock);
  void publish(std::unique_lock<std::mutex>& lock);
  Clock::time_point dueAt() const;

  const CourierTimes times_;
  const std::function<void()> didHear_;
  std::unique_ptr<SetDelivery> delivery_;  // of the thread alone, but for cancel()

  mutable std::mutex mutex_;  // of everything below
  std::condition_variable changed_;
  Knowledge known_;
  std::optional<OutgoingSet> waiting_;
  std::vector<SharedBase> settled_;
  std::uint64_t noted_ = 0;
  Clock::time_point begun_{}, failedAt_{};  // of the last delivery
  std::size_t failures_ = 0;                // of the waiting set
  bool hurries_ = false, ends_ = false, isUnderWay_ = false, isSettling_ = false;

  std::thread thread_;
};

}  // namespace tarvo
