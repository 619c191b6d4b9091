// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

class QObject;

namespace tarvo {

class Shell;

// Walks through the started program by key and mouse, leaves pictures in a folder (made if need be), quits, and prints
// where the pictures and the style file lie. False, with the reason on the error output, when a step does not do what
// it should.
bool takeGuidedTour(Shell& shell, const std::string& folder);

// Nobody sits before a tour: as long as the owner lives, whatever asks for an answer gets its default button.
void answerByDefault(QObject& owner);

}  // namespace tarvo
