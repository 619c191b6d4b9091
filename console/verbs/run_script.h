// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>

#include "console/script/scenario_session.h"
#include "console/verbs/command.h"

namespace tarvo {

// run FILE|-: a script over the shell without a screen.
// file: as the messages name it. Fails with scriptFailed and "FILE:LINE: reason" on err.
ExitStatus runScript(const ScenarioOptions& options, ScenarioClock& clock, const std::string& file,
                     const std::string& text, std::ostream& out, std::ostream& err);

}  // namespace tarvo
