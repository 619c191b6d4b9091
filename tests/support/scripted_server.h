// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <condition_variable>
#include <functional>
#include <list>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

// An HTTP server on a free port of the loopback interface that answers as a test tells it, in good ways and bad.
namespace tarvo::test {

struct SeenRequest {
  std::string method, path, body;
  std::map<std::string, std::string> headers;  // names in lower case
  std::string header(const std::string& name) const;
};

struct Reply {
  int status = 200;
  std::vector<std::string> headers;
  std::string body;
  // How it is sent. nothing: taken and never answered; headOnly: the body never comes; drip: a byte each 20 ms;
  // half: the connection ends in the middle of the body; dropped: it ends without an answer.
  enum class Way { whole, nothing, headOnly, drip, half, dropped } way = Way::whole;
  std::string interim = {};  // an answer that is sent before this one, as it stands
};

class ScriptedServer {
 public:
  using Handler = std::function<Reply(const SeenRequest&)>;  // called by one connection at a time

  explicit ScriptedServer(Handler handler);
  ~ScriptedServer();
  ScriptedServer(const ScriptedServer&) = delete;
  ScriptedServer& operator=(const ScriptedServer&) = delete;

  std::string address(const std::string& path = "/styles.plist") const;
  std::vector<SeenRequest> requests() const;
  std::vector<std::string> methods() const;
  void forgetRequests();
  int connections() const;

 private:
  void accept();
  void serve(int connection);
  bool answer(int connection, const Reply& reply);
  bool pause(int milliseconds);  // false: the server ends
  Handler handler_;
  int port_ = 0, listener_ = -1;  // the port is found first
  mutable std::mutex mutex_;
  std::condition_variable ends_;
  bool isEnding_ = false;
  int connections_ = 0;
  std::vector<SeenRequest> requests_;
  std::vector<int> open_;
  std::list<std::thread> threads_;
  std::thread acceptor_;
};

}  // namespace tarvo::test
