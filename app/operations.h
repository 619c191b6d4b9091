// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/plist/property_list.h"

namespace tarvo {

class Program;

// Operations by name, for callers without a control: the console's "call". An operation is named by its owner and the
// operation's own name.
struct Operation {
  std::string_view name;  // "style.setSelection"
  int argumentCount;
  // The result, or nothing for an operation that answers nothing. Arguments are texts; integers are read by
  // leadingInteger.
  std::function<std::optional<PropertyList>(Program&, std::span<const std::string> arguments)> run;
  bool takesMore = false;   // any number of further texts stands before these arguments: a list
  bool takesPaths = false;  // the arguments are paths on this disk
};

std::span<const Operation> operations();
const Operation* findOperation(std::string_view name);  // null for an unknown one

}  // namespace tarvo
