// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <system_error>

#include "platform/engine/shared_base.h"
#include "platform/engine/style_resource.h"

// Where the set of a home and that of the service have parted. Pure.
namespace tarvo {

// What the service showed last, and what this home shares with it.
struct ServiceView {
  StyleResource::State state = StyleResource::State::unknown;
  std::error_code cause;                   // of an unknown state
  SetStamp stamp;                          // of what is held
  std::shared_ptr<const Array> styles;     // what is held; null where it was not fetched
  std::shared_ptr<const SharedBase> base;  // null for none
  // What this home has sent since without hearing what became of it, oldest first; null for nothing.
  std::shared_ptr<const std::vector<Array>> unheard;

  bool showsBase() const { return base != nullptr && base->set.hash() == stamp.hash; }
  const Array* held() const { return styles.get(); }
};

// The base with what the service shows of what was sent since.
Array arrivedAt(const ServiceView& view, Array base, StyleJoiner& joiner);

enum class Parting {
  fromHeld,  // the service holds what this home has handed over or taken: only the home has gone on
  fromBase,
  fromMine,  // the home's set is what it handed over or took last: only the service has gone on
  fromSeed,  // they have never met: both began with the product's set
  wentBack,  // the service shows an older set than it has shown before: it was set up anew
  unknown    // the newer set counts
};
// lastUpdate: the stamp that the home has kept. mine: the hash of its set.
Parting partingOf(const ServiceView& view, const SetStamp& lastUpdate, const std::string& mine);

}  // namespace tarvo
