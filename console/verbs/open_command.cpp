// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/open_command.h"

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>

namespace tarvo {

namespace {

namespace fs = std::filesystem;

constexpr const char* windowProgram = "tarvo-manager";

fs::path ownFolder() {
  std::error_code error;
  return fs::read_symlink("/proc/self/exe", error).parent_path();
}

std::optional<std::string> findWindowProgram() {
  for (const fs::path& folder : {ownFolder(), ownFolder() / "../qt"}) {
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
    console.err << windowProgram << " is not there: it belongs beside this program, in " << ownFolder().string()
                << '\n';
    return ExitStatus::refused;
  }
  std::vector<std::string> words{*program};
  words.insert(words.end(), options_.begin(), options_.end());
  words.push_back("--open=" + code_);
  std::vector<char*> arguments;
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  console.out.flush();
  execv(program->c_str(), arguments.data());
  console.err << *program << " cannot be started: " << std::strerror(errno) << '\n';
  return ExitStatus::refused;
}

}  // namespace tarvo
