// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/request_queue.h"
#include "qt/services/bus_names.h"

namespace tarvo {

// What callers can ask for. Each call has a place among those that wait, which it keeps until all copies of it are
// gone.
struct BusRequests {
  // Before every other request too: the window comes to the front. token: the desktop's leave to do so, may be empty.
  std::function<void(std::string token, RequestPlace place)> activate;
  std::function<void(std::vector<std::string> paths, RequestPlace place)> openFiles;  // absolute, at least one
  std::function<void(std::string code, RequestPlace place)> openTool;
  // nothing: a request without a first item
  std::function<void(std::optional<std::string> bytes, RequestPlace place)> handleEvent;
  RequestPlaces places;  // a call that gets none is answered by an error and leads to nothing
};

// The manager on the session bus: "org.freedesktop.Application" and an interface of its own for raw requests.
// Duty: own the name, answer each call as soon as its request is queued, hand the requests over in the order of the
// calls. Not: acting on them. It has a thread of its own, so that no caller waits for files or for a style server.
//
// The requests arrive from the event loop of the thread that made the service, one at a time, also in nested loops;
// none after its end. Without a bus, or where another manager has the name, it does nothing. A bus that takes calls and
// never answers holds up neither the making nor the end of a service: its thread is then left to the end of the
// process.
class BusService {
 public:
  BusService(const BusIdentity& identity, BusRequests requests);
  ~BusService();
  BusService(const BusService&) = delete;
  BusService& operator=(const BusService&) = delete;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace tarvo
