// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "style/direction.h"

// What people read for a dictionary's file name. The medical dictionaries, whose files have short names, are read by
// the names of the products: exactly "cwl.TRet", "cwla.TRet", "cwl" and "cwla".
namespace tarvo {

class Texts;

// In the style pane: without the extension. It goes first, so that the file "cwl.TRet" of either direction bears the
// name that stands for "cwl".
std::string dictionaryDisplayName(const std::string& name, const Texts& texts);
// What people call the direction of a list.
std::string directionName(Direction direction, const Texts& texts);
// In the picker: the file name as it stands.
std::string pickerDisplayName(const std::string& name, const Texts& texts);

}  // namespace tarvo
