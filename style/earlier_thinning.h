// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <vector>

#include "style/earlier_styles.h"

namespace tarvo {

struct SizedSet {
  EarlierSet set;
  std::uint64_t size = 0;  // bytes
};

// Those of the sets, newest first, that are not to be kept any longer (see EarlierStyles::thin). Pure.
std::vector<EarlierSet> superfluousSets(const std::vector<SizedSet>& sets, Moment now);

}  // namespace tarvo
