// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <string>

// A session bus for this test program alone, and the desktop's own tools as callers.
namespace tarvo::test {

// Starts the bus if need be and makes it the session bus of this process and of the programs it starts.
void usePrivateBus();
// What the bus runs for a call to "com.wordhaven.TarvoManager" that nobody answers yet; "" for nothing.
void setManagerToStart(const std::string& command);

struct Ran {
  int status = -1;
  std::string out, err;
};
// Waits for its end; no event of this process is handled meanwhile. Its bus is this process's.
Ran runProgram(const QString& program, const QStringList& arguments);

// gdbus call on the manager's object. method: with its interface; arguments as gdbus reads them.
Ran callManager(const QString& method, const QStringList& arguments = {},
                const QString& name = "com.wordhaven.TarvoManager");

// Waits until the name is taken or free, ten seconds at most; answers whether it came to that.
bool waitForName(const QString& name, bool isTaken);

}  // namespace tarvo::test
