// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <vector>

#include "dict/dict_controller.h"
#include "platform/plist/property_list.h"
#include "style/direction.h"

// What is mended in styles that were loaded, in words for both shells.
// Duty: find it and say it. Not: mending.
namespace tarvo {

using NamesByDirection = std::array<Names, 2>;  // in the order of bothDirections

// Names without a file that stand in a list beside others that have one, of all styles, each once: such a list loses
// them when its style is shown. A list with none of its files is left alone, since their disk may just be away, and a
// folder that cannot be read says nothing of what is gone. Only reads.
NamesByDirection goneDictionaries(const DictController::Services& services, const Dictionary& root);

// One sentence of each direction's names; none where there are none.
std::vector<std::string> goneSentences(const NamesByDirection& gone, const Texts& texts);
// One sentence of the options that were missing and have their defaults now.
std::string defaultsSentence(const std::vector<std::string>& options, const Texts& texts);

}  // namespace tarvo
