// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "platform/engine/deadline.h"
#include "platform/engine/http_client.h"
#include "platform/engine/style_payload.h"
#include "platform/services/result.h"

// The resource in which a server keeps a user's set.
// Duty: what can be asked of it, one request each, within the deadline given. Not: deciding what to store. Sources:
// RFC 9110 (ranges, conditions), RFC 4918 (locks). Servers are taken as they are: an entity tag is used only in the
// condition of a storing request, and only a strong one, since there are servers that give different sets of one
// second the same tag, give weak tags at first, or name none for what was stored; a condition may be ignored, so a
// set counts as stored when it was seen there. No time of the server is used.
namespace tarvo {

class StyleResource {
 public:
  enum class State { unknown, nothing, damaged, held };  // unknown: the server gave no answer that says it

  struct Front {
    State state = State::unknown;
    std::error_code cause;  // of an unknown state
    SetStamp stamp;         // of what is held
    std::size_t size = 0;   // of the whole payload; 0 when the server does not say
    std::string tag;        // strong entity tag, "" for none
  };
  enum class Storing { done, raced, failed };  // raced: somebody else stores at the moment, or has just stored
  enum class Locking { held, busy, notOffered };

  explicit StyleResource(HttpPlace place);

  // Which set is there; a server that understands ranges sends little more than its stamp.
  Front front(const Deadline& deadline);
  // The set itself.
  Result<ReadPayload> whole(const Deadline& deadline);
  // Stores the bytes unless the resource is known to have changed since the front was read.
  Storing store(std::string_view bytes, const Front& before, const Deadline& deadline);
  // Keeps others from storing until unlock() or for a few seconds, where the server offers that: by a lock, else by a
  // folder beside the resource, which only one can make. One that its maker left behind is removed after two to three
  // seconds; should two find that at the same moment, both may store.
  Locking lock(const Deadline& deadline);
  void unlock();

  // Why the last request did not bring what it asked for.
  const std::error_code& cause() const { return cause_; }
  const std::string& address() const { return client_.address(); }
  // Whether an answer came too late since this was last said.
  bool takeLateness();
  void cancel() { client_.cancel(); }

 private:
  HttpAnswer send(const HttpRequest& request, const Deadline& deadline);
  Locking lockByFolder(const Deadline& deadline);
  Locking waitForFolder(const Deadline& deadline);
  bool isFolderThere(const Deadline& deadline);
  HttpClient client_;
  std::string lockToken_;  // "" when there is no lock
  std::error_code cause_;
  enum class Offered { unknown, yes, no };
  Offered folders_ = Offered::unknown;
  bool offersLocks_ = true, holdsFolder_ = false, isLate_ = false;
  std::optional<std::chrono::steady_clock::time_point> foundFolder_;  // since when another one has it
  std::string ownerThen_, name_;        // of the folder; which tells this one from all others
  std::chrono::milliseconds patience_;  // with it
};

}  // namespace tarvo
