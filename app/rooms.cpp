// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/rooms.h"

#include <utility>

namespace tarvo {

Rooms::Rooms(With with) : with_(std::move(with)) {}

Rooms::~Rooms() = default;

}  // namespace tarvo
