// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/qt/hanging_bus.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <string_view>
#include <system_error>
#include <vector>

namespace tarvo::test {
namespace {

void say(int connection, std::string_view line) { send(connection, line.data(), line.size(), MSG_NOSIGNAL); }

// Lines may come in pieces, but callers wait for each answer.
void letIn(int connection, std::string_view heard) {
  if (heard.find("AUTH EXTERNAL") != std::string_view::npos) {
    say(connection, "OK 0123456789abcdef0123456789abcdef\r\n");
  } else if (heard.find("AUTH") != std::string_view::npos) {
    say(connection, "REJECTED EXTERNAL\r\n");
  } else if (heard.find("NEGOTIATE_UNIX_FD") != std::string_view::npos) {
    say(connection, "AGREE_UNIX_FD\r\n");
  }
}

}  // namespace

HangingBus::HangingBus(bool letsIn) : name_("tarvo-hanging-bus-" + QByteArray::number(getpid())) {
  listener_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  std::copy(name_.begin(), name_.end(), address.sun_path + 1);
  const auto size =
      static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + static_cast<std::size_t>(name_.size()));
  if (bind(listener_, reinterpret_cast<const sockaddr*>(&address), size) != 0 || listen(listener_, 8) != 0)
    throw std::system_error(errno, std::generic_category(), "a bus that hangs");
  thread_ = std::thread([this, letsIn] { serve(letsIn); });
}

HangingBus::~HangingBus() {
  isEnding_ = true;
  thread_.join();
}

void HangingBus::serve(bool letsIn) {
  std::vector<pollfd> ends{{listener_, POLLIN, 0}};
  while (!isEnding_) {
    poll(ends.data(), ends.size(), 20);
    for (std::size_t i = 1; i < ends.size(); ++i) {
      char heard[512];
      if (ends[i].revents == 0) continue;
      const ssize_t size = read(ends[i].fd, heard, sizeof heard);
      if (size <= 0) ends[i].events = 0;
      if (size > 0 && letsIn) letIn(ends[i].fd, {heard, static_cast<std::size_t>(size)});
    }
    if (ends[0].revents == 0) continue;
    wasAsked_ = true;
    ends.push_back({accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC), POLLIN, 0});
  }
  for (const pollfd& end : ends) close(end.fd);
}

}  // namespace tarvo::test
