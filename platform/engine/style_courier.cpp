// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/style_courier.h"

#include <algorithm>
#include <utility>

namespace tarvo {

StyleCourier::StyleCourier(std::unique_ptr<SetDelivery> delivery, CourierTimes times, std::function<void()> didHear)
    : times_(times), didHear_(std::move(didHear)), delivery_(std::move(delivery)), thread_([this] { work(); }) {}

StyleCourier::~StyleCourier() { stop(); }

void StyleCourier::stop() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    ends_ = true;
  }
  changed_.notify_all();
  delivery_->cancel();
  thread_.join();
}

StyleCourier::Knowledge StyleCourier::known() const {
  const std::lock_guard lock(mutex_);
  return known_;
}

void StyleCourier::deliver(OutgoingSet set) {
  {
    const std::lock_guard lock(mutex_);
    waiting_ = std::move(set);
    known_.isWaiting = true;
    known_.delivered.reset();
    failures_ = 0;  // somebody has made an edit: the service is asked again at once
  }
  changed_.notify_all();
}

void StyleCourier::settle(SharedBase base) {
  {
    const std::lock_guard lock(mutex_);
    settled_.push_back(std::move(base));
  }
  changed_.notify_all();
}

bool StyleCourier::isSettling() const {
  const std::lock_guard lock(mutex_);
  return isSettling_ || !settled_.empty();
}

void StyleCourier::noteRevision(std::uint64_t revision) {
  const std::lock_guard lock(mutex_);
  noted_ = std::max(noted_, revision);
  known_.greatest = std::max(known_.greatest, revision);
}

void StyleCourier::waitForAnswer(Milliseconds limit) {
  std::unique_lock lock(mutex_);
  changed_.wait_for(lock, limit, [this] { return known_.hasAnswered; });
}

void StyleCourier::waitUntilDelivered(Milliseconds limit) {
  std::unique_lock lock(mutex_);
  hurries_ = true;
  changed_.notify_all();
  changed_.wait_for(lock, limit, [this] {
    const bool isDelivered = !waiting_ || failures_ > 0;
    return known_.hasAnswered && !isUnderWay_ && !isSettling_ && isDelivered && settled_.empty();
  });
  hurries_ = false;
}

// When the waiting set may go.
StyleCourier::Clock::time_point StyleCourier::dueAt() const {
  if (failures_ > 0) return failedAt_ + times_.again[std::min(failures_, times_.again.size()) - 1];
  return hurries_ || begun_ == Clock::time_point() ? Clock::time_point() : begun_ + times_.between;
}

void StyleCourier::work() {
  look();
  std::unique_lock lock(mutex_);
  while (!ends_) {
    settleAll(lock);
    if (waiting_ && Clock::now() >= dueAt()) {
      tryToDeliver(lock);
    } else if (ends_ || !settled_.empty()) {
      continue;
    } else if (waiting_) {
      changed_.wait_until(lock, dueAt());
    } else {
      changed_.wait(lock);
    }
  }
}

void StyleCourier::look() {
  delivery_->look(Deadline(times_.contact));
  std::unique_lock lock(mutex_);
  known_.hasAnswered = true;
  publish(lock);
}

void StyleCourier::tryToDeliver(std::unique_lock<std::mutex>& lock) {
  OutgoingSet set = std::move(*waiting_);
  waiting_.reset();
  begun_ = Clock::now();
  isUnderWay_ = true;
  delivery_->noteRevision(noted_);
  lock.unlock();
  const Result<> delivered = delivery_->deliver(set, Deadline(times_.contact));
  lock.lock();
  isUnderWay_ = false;
  if (!waiting_) {  // else it is another one that counts now
    known_.delivered = delivered;
    const bool isLeftAlone = !delivered && delivered.error().cause == std::errc::file_exists;
    if (!delivered && !isLeftAlone) {
      waiting_ = std::move(set);
      failedAt_ = Clock::now();
      ++failures_;
    }
  }
  publish(lock);
}

void StyleCourier::settleAll(std::unique_lock<std::mutex>& lock) {
  if (settled_.empty()) return;
  const std::vector<SharedBase> settled = std::exchange(settled_, {});
  isSettling_ = true;
  lock.unlock();
  for (const SharedBase& base : settled) delivery_->settle(base);
  lock.lock();
  isSettling_ = false;
  known_.view = delivery_->view();
  changed_.notify_all();
}

void StyleCourier::publish(std::unique_lock<std::mutex>& lock) {
  const ServiceView& view = known_.view = delivery_->view();
  const bool hasAnswered = view.state != StyleResource::State::unknown;
  known_.greatest = std::max(known_.greatest, delivery_->greatest());
  known_.isWaiting = waiting_.has_value();
  known_.contact = hasAnswered ? Result<>() : Failure{delivery_->address(), Attempt::reach, view.cause};
  known_.contacted = Clock::now();
  changed_.notify_all();
  lock.unlock();
  if (didHear_) didHear_();
  lock.lock();
}

}  // namespace tarvo
