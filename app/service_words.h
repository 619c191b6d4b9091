// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tarvo {

class Texts;
struct ServiceNews;

// What was heard of the style service, in sentences for people; none where nothing concerns them.
std::vector<std::string> sentencesOf(const ServiceNews& news, const Texts& texts);

}  // namespace tarvo
