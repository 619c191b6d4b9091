// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/set_parting.h"

namespace tarvo {

Array arrivedAt(const ServiceView& view, Array base, StyleJoiner& joiner) {
  const Array* held = view.held();
  if (view.unheard == nullptr || held == nullptr) return base;
  for (const Array& sent : *view.unheard) base = joiner.withArrived(base, sent, *held);
  return base;
}

Parting partingOf(const ServiceView& view, const SetStamp& lastUpdate, const std::string& mine) {
  const SharedBase* base = view.base.get();
  if (view.showsBase()) return Parting::fromHeld;
  // What the stamp says comes second: a home that kept it may have been stopped before it held the set.
  if (base != nullptr) return view.stamp.revision < base->shown.revision ? Parting::wentBack : Parting::fromBase;
  if (lastUpdate.hash == view.stamp.hash) return Parting::fromHeld;
  if (lastUpdate.revision == 0) return Parting::fromSeed;
  return lastUpdate.hash == mine && lastUpdate.revision < view.stamp.revision ? Parting::fromMine : Parting::unknown;
}

}  // namespace tarvo
