// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/bus_service.h"

#include <QObject>
#include <QThread>
#include <utility>

#include "qt/services/bus_object.h"

namespace tarvo {
namespace {

constexpr unsigned long patience = 300;  // ms for the thread to end

// In the thread of the requests, which alone touches isOver.
struct Receiver : QObject {
  bool isOver = false;
};

// The same call, made from the event loop of the receiver's thread.
template <class Argument>
std::function<void(Argument, RequestPlace)> inThreadOf(Receiver& receiver,
                                                       std::function<void(Argument, RequestPlace)> call) {
  return [&receiver, call = std::move(call)](Argument argument, RequestPlace place) {
    QMetaObject::invokeMethod(
        &receiver,
        [&receiver, call, argument = std::move(argument), place = std::move(place)] {
          if (!receiver.isOver) call(argument, place);
        },
        Qt::QueuedConnection);
  };
}

}  // namespace

struct BusService::Parts {
  Receiver receiver;
  QThread thread;
};

BusService::BusService(const BusIdentity& identity, BusRequests requests) {
  if (identity.name == "none" || !hasSessionBus()) return;
  parts_ = std::make_unique<Parts>();
  auto& [receiver, thread] = *parts_;
  auto* object = new BusObject(identity, {inThreadOf(receiver, std::move(requests.activate)),
                                          inThreadOf(receiver, std::move(requests.openFiles)),
                                          inThreadOf(receiver, std::move(requests.openTool)),
                                          inThreadOf(receiver, std::move(requests.handleEvent)), requests.places});
  object->moveToThread(&thread);
  QObject::connect(&thread, &QThread::started, object, [object] { object->appear(); });
  QObject::connect(&thread, &QThread::finished, object, &QObject::deleteLater);
  thread.start();
}

BusService::~BusService() {
  if (!parts_) return;
  parts_->receiver.isOver = true;
  parts_->thread.quit();
  if (!parts_->thread.wait(patience)) static_cast<void>(parts_.release());  // it still waits for the bus
}

}  // namespace tarvo
