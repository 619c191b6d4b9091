// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/style_travel_commands.h"

#include "app/product_defaults.h"
#include "app/program.h"
#include "console/verbs/style_choice.h"
#include "console/verbs/verb_program.h"

namespace tarvo {

namespace {

// The file panel that act brings up is answered by the file.
template <class Act>
ExitStatus withStyleAndFile(Console& console, int index, const std::string& file, Act act) {
  if (const ExitStatus status = checkStyleCanBeChosen(console, index); status != ExitStatus::done) return status;
  VerbProgram verb(console);
  verb.answerFilePanels(absolutePath(file));
  return verb.run([&](Program& program, Hand& hand) {
    const StyleChoice choice(program, hand, index);
    act(program);
  });
}

}  // namespace

ExitStatus StyleRenameCommand::run(Console& console) {
  if (const ExitStatus status = checkStyleCanBeChosen(console, index_); status != ExitStatus::done) return status;
  if (index_ == 0) {
    console.err << "style 0 is the standard style: it keeps its name\n";
    return ExitStatus::usage;
  }
  return VerbProgram(console).run([&](Program& program, Hand& hand) {
    NamingOutlets& sheet = program.interface().naming;
    const StyleChoice choice(program, hand, index_);
    hand.press(sheet.StyleNameEditButton);
    hand.type(sheet.styleNameField, name_);
    hand.press(sheet.snOKButton);
    // A refused name, which was told, leaves the sheet up.
    if (program.windows().hostOf(sheet.styleNameWindow) != nullptr) hand.press(sheet.snCancelButton);
  });
}

ExitStatus StyleExportCommand::run(Console& console) {
  return withStyleAndFile(console, index_, file_, [](Program& program) { program.rooms().exchange.exportStyle(); });
}

ExitStatus StyleImportCommand::run(Console& console) {
  return withStyleAndFile(console, index_, file_, [](Program& program) { program.styles().importStyle(); });
}

}  // namespace tarvo
