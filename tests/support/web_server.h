// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo::test {

// A real web server for the length of a test (tests/servers/web_servers.py). kind: "nginx" or "apache".
class WebServer {
 public:
  // certificate: "" for none, else the host name for which one is made; it is then found in certificate().
  explicit WebServer(const std::string& kind, const std::string& certificateFor = "");
  ~WebServer();
  WebServer(const WebServer&) = delete;
  WebServer& operator=(const WebServer&) = delete;

  bool isHere() const { return !address_.empty(); }  // false: not installed
  const std::string& address() const { return address_; }
  std::string certificate() const { return folder_ + "/certificate.pem"; }

 private:
  std::string folder_;  // of a plain name: the servers' configurations cannot quote everything
  std::string process_, address_;
};

}  // namespace tarvo::test
