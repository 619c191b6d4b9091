// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "install/addin_lists.h"
#include "platform/services/result.h"

// What an edit does to an add-in, whoever asks for it: the box of its row, or a command.
namespace tarvo {

class MacroInstaller;
class MailScriptInstaller;

// There is a row at that place. Puts the add-in where its application finds it, or takes it out again; the row says
// then what is so. A failure leaves it as it was, even where the disk says otherwise: the next start looks at the disk
// again.
Result<> setInstalled(AddinLists& lists, AddinPlace place, bool on, MacroInstaller& macros,
                      MailScriptInstaller& mailScripts);

}  // namespace tarvo
