// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "platform/text/paths.h"

// Requests to one address over HTTP/1.1 or HTTP/2 (RFC 9110), with or without TLS.
// Duty: send one request and wait for its answer, no longer than told; keep the connection for the next one. Not: what
// an answer means. Certificates and host names are always verified; credentials come from the user's netrc alone, never
// from the address, and go out over TLS or to this machine only, unless plain ones are allowed; no redirect is
// followed, so neither styles nor credentials go to a place that nobody configured. Proxies as the environment names
// them, but for this machine, which needs none. No signal is raised or left handled otherwise. The library that does it
// is loaded with the first request; without it nothing is sent and no answer comes. For one thread, but for cancel().
namespace tarvo {

struct HttpPlace {
  std::string address;   // see isHttpAddress()
  DiskPath netrc;        // may be missing
  DiskPath authorities;  // PEM file of the certificates to trust instead of the system's; empty for the system's
  bool allowsPlainPasswords = false;  // credentials may go out without TLS
};

struct HttpRequest {
  std::string method;
  std::vector<std::string> headers;  // "Name: value"
  std::string_view body;
  std::string_view behindAddress = "";  // what stands behind the address to name a neighbour of it
};

struct HttpAnswer {
  enum class Arrival { whole, none, late };  // none: refused, broken off, not to be trusted, or too large
  Arrival arrival = Arrival::none;
  // Why none came, or none in time; plainPassword also of one that asks for credentials which were kept back.
  std::error_code cause;
  int status = 0;
  std::map<std::string, std::string> headers;  // names in lower case
  std::string body;

  bool isWhole() const { return arrival == Arrival::whole; }
  std::string header(const std::string& name) const;  // "" when there is none
};

constexpr std::size_t largestHttpBody = std::size_t{64} << 20;  // bytes that are sent or taken

class HttpClient {
 public:
  using Milliseconds = std::chrono::milliseconds;

  explicit HttpClient(HttpPlace place);
  ~HttpClient();
  HttpClient(const HttpClient&) = delete;
  HttpClient& operator=(const HttpClient&) = delete;

  const std::string& address() const { return place_.address; }
  // Blocks no longer than the limit; without any time left nothing is sent and the answer is late.
  HttpAnswer send(const HttpRequest& request, Milliseconds limit);
  // From any thread: the request that is under way ends at once with std::errc::operation_canceled, and so does every
  // later one.
  void cancel();

 private:
  struct Handle;
  Handle* handle();
  HttpPlace place_;
  std::mutex making_;               // of the handle
  std::unique_ptr<Handle> handle_;  // null until the first request
  std::atomic<bool> cancelled_ = false;
};

}  // namespace tarvo
