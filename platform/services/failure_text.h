// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services/result.h"

namespace tarvo {

class Texts;

// The failure in words, in the language of the texts: "PATH: what could not be done; why; what helps". What helps is
// left out where nothing is known to. Causes without words of ours bear those of the system.
std::string failureText(const Failure& failure, const Texts& texts);
// The same without the path.
std::string failureCauseText(const Failure& failure, const Texts& texts);

}  // namespace tarvo
