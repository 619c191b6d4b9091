// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "platform/plist/property_list.h"
#include "platform/services/result.h"

namespace tarvo {

// The styles as handed over: the records, and each of them encoded (plist_writer.h, at depth 2), so that an engine that
// keeps a property list need not encode them again. Valid for the length of the call only.
struct StyleSet {
  const Array& records;
  std::span<const std::string> encoded;
};

// How the styles are handed over. other: an engine that is none of the product's, as in a scenario.
enum class EngineForm { none, local, http, other };

struct EngineFormRow {
  EngineForm form;
  std::string_view word;  // for people
};
inline constexpr std::array<EngineFormRow, 4> engineFormRows{{{EngineForm::none, "none"},
                                                              {EngineForm::local, "local"},
                                                              {EngineForm::http, "http"},
                                                              {EngineForm::other, "other"}}};

constexpr std::string_view wordOf(EngineForm form) { return engineFormRows[static_cast<std::size_t>(form)].word; }

// The translation engine's side of the styles. Calls are synchronous and answer soon, reachable or not.
class Engine {
 public:
  virtual ~Engine() = default;
  // Whether the engine's service can be reached now.
  virtual bool checkConnectionWithCurl() = 0;
  // Stores the whole set and writes the new update stamp into the string.
  virtual void sendRegistStyle(const StyleSet& styles, std::string& updateString) = 0;
  // Whether the engine holds a style set for this user.
  virtual bool checkStyle() = 0;
  // localUpdate: the stamp of the local set, "" for none. True: the engine's set is newer, styles and stamp are filled
  // in.
  virtual bool requestStyle(Array& styles, std::string& localUpdate) = 0;

  // While on, what is registered stands in for styles that could not be read: an engine of the product leaves a set
  // that it holds alone then, and the registration fails with std::errc::file_exists. Off at first.
  virtual void setStandIn(bool) {}

  virtual EngineForm form() const { return EngineForm::other; }
  // What is behind the answers of the operations, each of the last time and done before the first. The path of a
  // failure is the file or the address of the service. Why the service could not be reached.
  virtual Result<> couldReach() const { return {}; }
  // Why the registration is not known to have been stored.
  virtual Result<> didRegister() const { return {}; }
  // Why a request for a newer set found none that can be read, newer or not.
  virtual Result<> couldRead() const { return {}; }
};

// Why the service could not be reached, also by an engine that does not know.
inline Failure whyUnreached(const Engine& engine) {
  const Result<> reached = engine.couldReach();
  return reached ? Failure{"", Attempt::reach, Reason::unreachable} : reached.error();
}

}  // namespace tarvo
