// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "qt/services/bus_names.h"

namespace tarvo {

// What a start of the program asks the manager for, besides showing itself.
struct StartRequest {
  std::optional<std::string> code;  // a caller's code
  std::vector<std::string> files;   // style files, absolute real paths
};

enum class Handover {
  done,      // the running manager has the request
  noBus,     // nobody can be asked: there is no bus, or it does not answer
  nobody,    // no manager has the name
  stranger,  // the one that has it works on another home or product
};

// Hands the request to the manager that runs with this identity. Takes some milliseconds and needs no application
// object: nothing of the window is loaded yet.
Handover handOver(const BusIdentity& identity, const StartRequest& request);

}  // namespace tarvo
