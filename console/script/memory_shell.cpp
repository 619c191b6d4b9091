// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/memory_shell.h"

#include "app/program.h"

namespace tarvo {

void MemoryShell::programMade(Program& program) {
  windows_.toolbarHidden = [&toolbar = program.interface().manager.toolbar] { return !toolbar.isShown(); };
}

}  // namespace tarvo
