// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/services/engine.h"

// What a style service stores for a user, as bytes: a property list (plist_writer.h) with "Hash", "Revision" and the
// array "Style", in this order.
// Duty: write it, read it, tell which of two sets is newer. Not: transport. "Revision" is one more at each
// registration. "Hash" is the contentHash of all bytes behind the line "<key>Style</key>", so that a set that lost
// something on its way is known as damaged. Everything else, also the same values written in another way, is damaged
// too: only this program writes here, and nothing doubtful may replace the user's styles.
namespace tarvo {

// Which set it is. As a text: the revision in 20 digits, a blank, the hash.
struct SetStamp {
  std::uint64_t revision = 0;
  std::string hash;

  std::string text() const;
  // A text of another kind, "" and the local engine's among them, is the stamp of no set: revision 0.
  static SetStamp parse(std::string_view text);
  // A greater revision is newer; so is the same one with another hash, which two machines came to at the same time.
  bool isNewerThan(const SetStamp& other) const;
  friend bool operator==(const SetStamp&, const SetStamp&) = default;
};

// Revisions above it are no revisions: counting on must never come to an end.
constexpr std::uint64_t lastRevision = 999'999'999'999'999'999;
// A front, that is everything up to "Style", fits into so many bytes.
constexpr std::size_t payloadFrontSize = 512;

// A set to be stored, encoded once; its revision is known only when the service was asked.
class StylePayload {
 public:
  explicit StylePayload(const StyleSet& styles);
  SetStamp stamp(std::uint64_t revision) const { return {revision, hash_}; }
  const std::string& hash() const { return hash_; }
  std::string bytes(std::uint64_t revision) const;

 private:
  std::string rest_, hash_;  // rest: everything behind the front
};

// The stamp from the first bytes of a payload (payloadFrontSize of them suffice); nothing when they are none.
std::optional<SetStamp> readPayloadFront(std::string_view bytes);

struct ReadPayload {
  SetStamp stamp;
  Array styles;
};
// Nothing when the payload is damaged, "Style" is no array of dictionaries, or holds a date that is none (isSoundDate).
std::optional<ReadPayload> readPayload(std::string_view bytes);

}  // namespace tarvo
