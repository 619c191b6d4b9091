// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "tests/support/scripted_server.h"

// One resource with the habits of a server that a test wants.
namespace tarvo::test {

struct StyleServer {
  enum class Tags { strong, weak, same, none };
  Tags tags = Tags::strong;
  bool ranges = true, conditions = true, locks = false;
  bool folders = false;        // may be made beside the resource
  bool isFolderThere = false;  // the one that keeps others from storing
  std::string owner;           // of it

  std::optional<std::string> held;
  int revision = 0;       // of the tag
  std::string lockToken;  // "" when nobody holds the lock
  bool isLockedByAnother = false;
  // Asked first at each request, with the number of requests of that method so far (from 1); an answer replaces ours.
  std::function<std::optional<Reply>(const SeenRequest&, int)> instead;
  // Called after a request was answered: another machine comes in between.
  std::function<void(const SeenRequest&, int)> afterwards;
  std::map<std::string, int> counts;

  Reply answer(const SeenRequest& request);
  void hold(std::string bytes);

 private:
  Reply respond(const SeenRequest& request);
  Reply get(const SeenRequest& request) const;
  Reply put(const SeenRequest& request);
  Reply lock();
  Reply folder(const SeenRequest& request);
  std::string tag() const;
};

}  // namespace tarvo::test
