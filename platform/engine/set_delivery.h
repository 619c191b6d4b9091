// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <system_error>

#include "platform/engine/set_parting.h"
#include "platform/services/engine.h"

namespace tarvo {

class FileService;

// What goes out.
struct OutgoingSet {
  EncodedSet set;
  SetStamp lastUpdate;                  // that was kept before this set was handed over
  bool isStored = false;                // the style file holds it
  bool standsIn = false;                // it goes only where the service holds nothing
  std::shared_ptr<StyleJoiner> joiner;  // null: the set goes as it is
};

// What this home and the service say to each other about their sets.
// Duty: look what the service holds; bring a set of this home there, joined with what others have stored since both
// parted, so that nobody's change is lost, and remember what both share then. Not: when that is done; what becomes of
// the styles here. When another machine stores in between, its set is looked at and joined too. For one thread, but for
// cancel().
class SetDelivery {
 public:
  // files: as the thread may use them. Not owned.
  SetDelivery(HttpPlace place, FileService& files, BaseFile base);
  // Sends one short request, and another one for the whole set where it is not known here.
  const ServiceView& look(const Deadline& deadline);
  // Done when the set, or what it became when it was joined, was seen there.
  Result<> deliver(const OutgoingSet& out, const Deadline& deadline);
  // This home holds the set that the service showed under that stamp.
  void settle(const SharedBase& base);
  const ServiceView& view() const { return view_; }
  const std::string& address() const { return resource_.address(); }
  // The greatest revision seen anywhere.
  std::uint64_t greatest() const { return greatest_; }
  void noteRevision(std::uint64_t revision) { greatest_ = std::max(greatest_, revision); }
  // Whether an answer came too late since this was last said.
  bool takeLateness() { return resource_.takeLateness(); }
  void cancel() { resource_.cancel(); }

 private:
  enum class Try { stored, raced, failed };
  // What is to be stored, and what this home shares with the service then.
  struct Prepared {
    EncodedSet stored, shared;
  };
  Failure failure(Attempt attempt) const;
  StyleResource::Front readFront(const Deadline& deadline);
  void fetchHeld(const Deadline& deadline);
  void lookUpBase();
  Try tryToDeliver(const OutgoingSet& out, const Deadline& deadline);
  Prepared prepare(const OutgoingSet& out) const;
  Try store(const Prepared& prepared, const OutgoingSet& out, const StyleResource::Front& before,
            const Deadline& deadline);
  void share(const Prepared& prepared, const SetStamp& shown, bool isStored);
  StyleResource resource_;
  FileService& files_;
  BaseFile base_;
  ServiceView view_;
  std::error_code failed_;  // why a try did
  std::uint64_t greatest_ = 0;
};

}  // namespace tarvo
