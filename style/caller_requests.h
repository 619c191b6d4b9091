// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "style/sibling_tools.h"

// What the product's other tools ask for: a short code that names the caller.
// Duty: read the code. Not: receiving or carrying out a request.
namespace tarvo {

struct CallerRequest {
  std::optional<Tool> tool;  // nothing: the Office add-in pane is asked for
  friend bool operator==(const CallerRequest&, const CallerRequest&) = default;
};

// Codes are compared exactly; every unknown one means this manager itself.
CallerRequest callerRequestForCode(std::string_view code);
// A request as raw bytes, as old and new callers send them: UTF-16 on systems of version 105 and above (see
// system_version.h), Shift_JIS below. Nothing for a request without bytes, or with bytes that are no text.
std::optional<CallerRequest> decodeCallerRequest(const std::optional<std::string>& bytes, int version);

}  // namespace tarvo
