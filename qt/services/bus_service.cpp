// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/bus_service.h"

#include <utility>

#include "qt/services/bus_object.h"

namespace tarvo {
namespace {

// The same call, made from the event loop of the receiver's thread.
template <class Argument>
std::function<void(Argument)> inThreadOf(QObject& receiver, std::function<void(Argument)> call) {
  return [&receiver, call = std::move(call)](Argument argument) {
    QMetaObject::invokeMethod(
        &receiver, [call, argument = std::move(argument)] { call(argument); }, Qt::QueuedConnection);
  };
}

}  // namespace

BusService::BusService(const BusIdentity& identity, BusRequests requests) {
  if (identity.name == "none" || !hasSessionBus()) return;
  auto* object = new BusObject(
      identity,
      {inThreadOf(receiver_, std::move(requests.activate)), inThreadOf(receiver_, std::move(requests.openFiles)),
       inThreadOf(receiver_, std::move(requests.openTool)), inThreadOf(receiver_, std::move(requests.handleEvent))});
  object->moveToThread(&thread_);
  QObject::connect(&thread_, &QThread::started, object, [object] { object->appear(); });
  QObject::connect(&thread_, &QThread::finished, object, &QObject::deleteLater);
  thread_.start();
}

BusService::~BusService() {
  thread_.quit();
  thread_.wait();
}

}  // namespace tarvo
