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
  std::vector<std::string> files;   // style files, absolute
};

enum class Handover {
  done,      // the running manager has the request
  noBus,     // nobody can be asked: there is no bus, or it does not answer
  nobody,    // no manager has the name
  stranger,  // the one that has it works on another home or product
};

// Hands the request to the manager that runs with this identity. Takes some milliseconds; a bus that takes connections
// and says nothing is waited for without end.
Handover handOver(const BusIdentity& identity, const StartRequest& request);
// The same by a child of this process, which is given two seconds. To be called before there is an application object
// or a second thread.
Handover handOverInTime(const BusIdentity& identity, const StartRequest& request);

}  // namespace tarvo
