// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/open_command.h"

#include <filesystem>
#include <optional>

#include "app/product.h"
#include "app/product_defaults.h"
#include "platform/services/failure_text.h"
#include "platform/text/printable.h"

namespace tarvo {

namespace {

namespace fs = std::filesystem;

constexpr const char* windowProgram = "tarvo-manager";

std::optional<std::string> findWindowProgram() {
  const fs::path own = programFolder().text();
  for (const fs::path& folder : {own, own / "../qt"}) {
    const fs::path program = (folder / windowProgram).lexically_normal();
    std::error_code error;
    if (fs::is_regular_file(program, error)) return program.string();
  }
  return std::nullopt;
}

}  // namespace

ExitStatus OpenCommand::run(Console& console) {
  const std::optional<std::string> program = findWindowProgram();
  if (!program) {
    console.err << windowProgram << " is not there: it belongs beside this program, in "
                << printable(programFolder().text()) << '\n';
    return ExitStatus::refused;
  }
  std::vector<std::string> words{*program};
  words.insert(words.end(), options_.begin(), options_.end());
  words.push_back("--open=" + code_);
  console.out.flush();
  const Failure failure = console.become(DiskPath(*program), std::move(words));
  console.err << printable(failureText(failure, console.product.texts())) << '\n';
  return ExitStatus::refused;
}

}  // namespace tarvo
