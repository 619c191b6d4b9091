// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/style_choice.h"

#include "app/product.h"
#include "app/program.h"
#include "console/script/hand.h"
#include "console/verbs/style_reading.h"
#include "style/divider.h"

namespace tarvo {

ExitStatus checkStyleCanBeChosen(Console& console, int index) {
  const std::optional<Dictionary> root = readStyles(console);
  if (!root) return ExitStatus::refused;
  const Dictionary* record = findStyle(console, *root, index);
  if (record == nullptr) return ExitStatus::usage;
  if (!isDivider(*record, console.product.texts())) return ExitStatus::done;
  console.err << "style " << index << " is the divider\n";
  return ExitStatus::usage;
}

StyleChoice::StyleChoice(Program& program, Hand& hand, int index)
    : program_(program), former_(program.interface().style.stylePopup.indexOfSelectedItem()) {
  hand.choose(program.interface().style.stylePopup, index);
}

StyleChoice::~StyleChoice() {
  // As a tool brings its style back: the former one may be the divider, which nobody can click.
  program_.interface().style.stylePopup.selectItemAtIndex(former_);
  program_.styles().changeStyle();
}

}  // namespace tarvo
