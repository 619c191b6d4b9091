// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services/result.h"

namespace tarvo {

class Texts;

// A message in its parts; a part is empty where nothing is known of it.
struct MessageParts {
  std::string what, cause, cure;
};
// "what; cause; cure", without the parts that are empty.
std::string joined(const MessageParts& parts);

// The failure in words, in the language of the texts: "PATH: what could not be done; why; what helps". What helps is
// left out where nothing is known to. Causes without words of ours bear those of the system.
std::string failureText(const Failure& failure, const Texts& texts);
// The same without the path.
std::string failureCauseText(const Failure& failure, const Texts& texts);
MessageParts failureParts(const Failure& failure, const Texts& texts);

}  // namespace tarvo
