// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// What became of the styles that a write replaced, in words for both shells.
namespace tarvo {

class Texts;
struct Failure;

// Of another program's: kept is their name among the earlier styles; where that is "", beside is their path.
std::string foreignSentence(const std::string& kept, const std::string& beside, const Texts& texts);
// Why they are not among the earlier styles or, where kept is a name, may be taken from there by a power cut.
std::string unkeptSentence(const std::string& kept, const Failure& why, const Texts& texts);

}  // namespace tarvo
