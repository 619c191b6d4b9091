// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>
#include <string>

// How the manager is found on the session bus, for itself and for a second start.
namespace tarvo {

inline constexpr const char* busObjectPath = "/com/wordhaven/TarvoManager";
inline constexpr const char* applicationInterface = "org.freedesktop.Application";
inline constexpr const char* managerInterface = "com.wordhaven.TarvoManager1";
inline constexpr const char* openToolAction = "open-tool";
inline constexpr const char* busyError = "com.wordhaven.TarvoManager1.Error.Busy";  // as many requests wait as may

// One manager among those that may run: the name that it wants on the bus ("none": it stays off the bus), and the real
// paths of the home and the product root that it works on.
struct BusIdentity {
  std::string name, home, root;
};

// Whether there is a session bus to ask. Without one the bus library would try to start one.
bool hasSessionBus();

// A file as callers name it on the bus: its path byte by byte, percent-encoded, behind "file://". Plain absolute paths
// are understood too; nothing for an address that is no file of this machine.
QString fileAddress(const std::string& path);
std::optional<std::string> pathOfAddress(const QString& address);

}  // namespace tarvo
