// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/plist/property_list.h"
#include "platform/services/result.h"

namespace tarvo {

class FileService;

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

struct JoinedStyles {
  Array styles;
  std::vector<std::optional<std::size_t>> placesOfMine;  // where each record of mine is now; nothing: removed
  bool hasLosses = false;                                // something of theirs is not in it
};

// Brings sets together that were changed apart. Lives on its own: may be used in another thread than that which it was
// made in, in one at a time. files: for that thread.
class StyleJoiner {
 public:
  virtual ~StyleJoiner() = default;
  // base: from which both parted.
  virtual JoinedStyles join(const Array& base, const Array& mine, const Array& theirs, bool mineIsNewer) = 0;
  // From where both parted, when nobody knows whether a set that was sent, made from the base, had arrived before
  // theirs was: the base with what theirs shows of it.
  virtual Array withArrived(const Array& base, const Array& sent, const Array& theirs) = 0;
  // The set of the product, with which every home begins.
  virtual Array seed(const FileService& files) = 0;
  // Keeps a set of the service of which not everything stays, and tells the user at the next occasion.
  virtual void keep(const Array& theirs, FileService& files) = 0;
};

// The program whose styles an engine keeps, as an engine needs it that works on its own. Used in the thread of the
// program, but for didHear().
class EngineClient {
 public:
  virtual ~EngineClient() = default;
  virtual std::optional<StyleSet> presentStyles() = 0;  // nothing where there are none
  virtual bool areStored() const = 0;                   // the style file holds them
  virtual std::string lastUpdate() const = 0;           // the stamp that was kept last, "" for none
  virtual std::shared_ptr<StyleJoiner> joiner() = 0;    // as sets are joined at present
  virtual void didHear() = 0;                           // in any thread: the engine has answers that it had not
};

// The translation engine's side of the styles. Calls are synchronous and answer soon, reachable or not.
class Engine {
 public:
  // How long a launch waits for the first answer; a verb for an answer, and at its end for its styles to arrive; a
  // window that is closed for the same.
  static constexpr std::chrono::milliseconds launchPatience{1000}, verbPatience{3000}, quitPatience{1000};

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

  // For an engine that works on its own; with null, before the program ends, it stops doing so. Not owned.
  virtual void attach(EngineClient*) {}
  // The style file has been written, in whatever way.
  virtual void didStoreStyles() {}
  // There was none, and the styles here begin with these of the product.
  virtual void didSeedStyles(const Array&) {}
  // Whether the first answer of the service is still on its way; whether the styles are that were registered, or were
  // there when the service could not be reached.
  virtual bool isAsking() const { return false; }
  virtual bool isSending() const { return false; }
  // Blocks until that is over, or the time is.
  virtual void waitForAnswer(std::chrono::milliseconds) {}
  virtual void waitUntilSent(std::chrono::milliseconds) {}
  // Where each of the styles that were here is in the set of the last request for a newer one, nothing for one that is
  // gone; empty: each has kept its place.
  virtual std::vector<std::optional<std::size_t>> placesOfRequested() const { return {}; }

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
