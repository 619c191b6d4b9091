// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/process.h"

#include <pwd.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <climits>

namespace tarvo {

Result<DiskPath> programFile() {
  constexpr const char* link = "/proc/self/exe";
  std::array<char, PATH_MAX> content{};
  const ssize_t size = ::readlink(link, content.data(), content.size());
  if (size < 0) return systemFailure(link, Attempt::read);
  return DiskPath(std::string(content.data(), static_cast<std::size_t>(size)));
}

std::string loginName() {
  const passwd* entry = ::getpwuid(::getuid());
  return entry != nullptr && entry->pw_name != nullptr ? entry->pw_name : "";
}

DiskPath loginHome() {
  const passwd* entry = ::getpwuid(::getuid());
  return DiskPath(entry != nullptr && entry->pw_dir != nullptr ? entry->pw_dir : "");
}

void failBeyondFileSizeLimit() {
  struct sigaction ignore{};
  ignore.sa_handler = SIG_IGN;
  sigaction(SIGXFSZ, &ignore, nullptr);
}

Failure becomeProgram(const DiskPath& file, std::vector<std::string> words) {
  std::vector<char*> arguments;
  arguments.reserve(words.size() + 1);
  for (std::string& word : words) arguments.push_back(word.data());
  arguments.push_back(nullptr);
  ::execv(file.text().c_str(), arguments.data());
  return systemFailure(file.text(), Attempt::start);
}

}  // namespace tarvo
