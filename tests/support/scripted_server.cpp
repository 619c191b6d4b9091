// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/scripted_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <sstream>
#include <stdexcept>

namespace tarvo::test {
namespace {

std::string lowered(std::string text) {
  for (char& c : text) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return text;
}

int openLoopback(int& port) {
  const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in place{};
  place.sin_family = AF_INET;
  place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof place;
  auto* address = reinterpret_cast<sockaddr*>(&place);
  if (::bind(listener, address, size) != 0 || ::listen(listener, 16) != 0 ||
      ::getsockname(listener, address, &size) != 0) {
    throw std::runtime_error("no port for a test server");
  }
  port = ntohs(place.sin_port);
  return listener;
}

bool sendAll(int connection, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

bool receiveMore(int connection, std::string& bytes) {
  char buffer[65536];
  const ssize_t size = ::recv(connection, buffer, sizeof buffer, 0);
  if (size <= 0) return false;
  bytes.append(buffer, static_cast<std::size_t>(size));
  return true;
}

SeenRequest parseHead(const std::string& head) {
  SeenRequest request;
  std::istringstream lines(head);
  lines >> request.method >> request.path;
  std::string line;
  std::getline(lines, line);
  while (std::getline(lines, line)) {
    const auto colon = line.find(": ");
    if (colon == std::string::npos) continue;
    request.headers[lowered(line.substr(0, colon))] = line.substr(colon + 2, line.find('\r') - colon - 2);
  }
  return request;
}

// The next request; pending holds bytes that belong to the one after it.
std::optional<SeenRequest> receive(int connection, std::string& pending) {
  std::size_t end = 0;
  while ((end = pending.find("\r\n\r\n")) == std::string::npos) {
    if (!receiveMore(connection, pending)) return std::nullopt;
  }
  SeenRequest request = parseHead(pending.substr(0, end + 2));
  pending.erase(0, end + 4);
  const std::string length = request.header("content-length");
  const std::size_t size = length.empty() ? 0 : std::stoul(length);
  while (pending.size() < size) {
    if (!receiveMore(connection, pending)) return std::nullopt;
  }
  request.body = pending.substr(0, size);
  pending.erase(0, size);
  return request;
}

std::string headOf(const Reply& reply) {
  std::string head = "HTTP/1.1 " + std::to_string(reply.status) + " Said\r\n";
  for (const std::string& header : reply.headers) head += header + "\r\n";
  return head + "Content-Length: " + std::to_string(reply.body.size()) + "\r\n\r\n";
}

}  // namespace

std::string SeenRequest::header(const std::string& name) const {
  const auto found = headers.find(name);
  return found == headers.end() ? "" : found->second;
}

ScriptedServer::ScriptedServer(Handler handler) : handler_(std::move(handler)), listener_(openLoopback(port_)) {
  acceptor_ = std::thread([this] { accept(); });
}

ScriptedServer::~ScriptedServer() {
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
    for (const int connection : open_) ::shutdown(connection, SHUT_RDWR);
  }
  ends_.notify_all();
  ::shutdown(listener_, SHUT_RDWR);
  acceptor_.join();
  for (std::thread& thread : threads_) thread.join();
  ::close(listener_);
}

void ScriptedServer::accept() {
  for (;;) {
    const int connection = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (connection < 0) return;
    const std::lock_guard lock(mutex_);
    if (isEnding_) return static_cast<void>(::close(connection));
    ++connections_;
    open_.push_back(connection);
    threads_.emplace_back([this, connection] { serve(connection); });
  }
}

void ScriptedServer::serve(int connection) {
  std::string pending;
  while (const auto request = receive(connection, pending)) {
    Reply reply;
    {
      const std::lock_guard lock(mutex_);
      requests_.push_back(*request);
      reply = handler_(*request);
    }
    if (!answer(connection, reply)) break;
  }
  const std::lock_guard lock(mutex_);
  std::erase(open_, connection);
  ::close(connection);
}

// Whether the connection goes on.
bool ScriptedServer::answer(int connection, const Reply& reply) {
  using Way = Reply::Way;
  const std::string head = reply.interim + headOf(reply);
  constexpr int forever = 3'600'000, betweenBytes = 20;
  switch (reply.way) {
    case Way::whole: return sendAll(connection, head + reply.body);
    case Way::nothing: return pause(forever);
    case Way::headOnly: return sendAll(connection, head) && pause(forever);
    case Way::half: sendAll(connection, head + reply.body.substr(0, reply.body.size() / 2)); return false;
    case Way::dropped: return false;
    case Way::drip: break;
  }
  for (const char byte : head + reply.body) {
    if (!sendAll(connection, {&byte, 1}) || !pause(betweenBytes)) return false;
  }
  return true;
}

bool ScriptedServer::pause(int milliseconds) {
  std::unique_lock lock(mutex_);
  return !ends_.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return isEnding_; });
}

std::string ScriptedServer::address(const std::string& path) const {
  return "http://127.0.0.1:" + std::to_string(port_) + path;
}

std::vector<SeenRequest> ScriptedServer::requests() const {
  const std::lock_guard lock(mutex_);
  return requests_;
}

std::vector<std::string> ScriptedServer::methods() const {
  std::vector<std::string> methods;
  for (const SeenRequest& request : requests()) methods.push_back(request.method);
  return methods;
}

void ScriptedServer::forgetRequests() {
  const std::lock_guard lock(mutex_);
  requests_.clear();
}

int ScriptedServer::connections() const {
  const std::lock_guard lock(mutex_);
  return connections_;
}

}  // namespace tarvo::test
