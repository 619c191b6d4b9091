// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

class Binder;
class Interface;
class QtWindows;

// Tells how each window beside the main one is built, when it is first needed. All outlive the windows.
void addDialogs(QtWindows& windows, Interface& interface, Binder& binder);

}  // namespace tarvo
