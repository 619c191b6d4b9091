// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

// Leaves a session bus that hangs out of this process. The toolkit asks the bus while the window is made, for
// accessibility and for the desktop's look, and would wait without end for one that takes connections and never
// answers. A bus on a local socket is given a second to say how callers may identify themselves (the words of D-Bus's
// own authentication); every other one is left alone. To be called before anything uses the bus; takes a fraction of a
// millisecond when it answers.
void avoidHangingBus();

}  // namespace tarvo
