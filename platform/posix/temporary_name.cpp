// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/temporaries.h"

#include <fcntl.h>
#include <sys/random.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <optional>
#include <string>
#include <vector>

#include "platform/posix/descriptor.h"

namespace tarvo {

namespace {

constexpr std::string_view prefix = ".tarvo-";
constexpr std::string_view unknown = "0";

std::optional<std::string> contentOf(const std::string& path) {
  constexpr std::size_t most = 4096;
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  return file ? readAll(file.get(), 0, most) : std::nullopt;
}

// Which start of this machine, in a few digits.
std::string boot() {
  constexpr std::size_t digits = 8;
  const auto id = contentOf("/proc/sys/kernel/random/boot_id");
  return id && id->size() > digits ? id->substr(0, digits) : std::string(unknown);
}

// Which processes are seen from here: a container has its own.
std::string processSpace() {
  std::array<char, 64> link{};
  const ssize_t size = ::readlink("/proc/self/ns/pid", link.data(), link.size());
  std::string number;
  for (ssize_t i = 0; i < size; ++i) {
    const char c = link[static_cast<std::size_t>(i)];
    if (c >= '0' && c <= '9') number += c;
  }
  return number.empty() ? std::string(unknown) : number;
}

// When the process began, in the system's ticks since the boot; the 22nd field, counted behind the name, which may hold
// anything.
std::optional<std::string> beginOf(const std::string& process) {
  constexpr int fieldsBehindName = 20;
  const auto status = contentOf("/proc/" + process + "/stat");
  if (!status) return std::nullopt;
  std::size_t at = status->rfind(')');
  for (int field = 0; field < fieldsBehindName && at != std::string::npos; ++field) at = status->find(' ', at + 1);
  if (at == std::string::npos) return std::nullopt;
  return status->substr(at + 1, status->find(' ', at + 1) - at - 1);
}

std::string ownMark() {
  const std::string process = std::to_string(::getpid());
  return boot() + '-' + processSpace() + '-' + process + '-' + beginOf("self").value_or(std::string(unknown)) + '-';
}

// The parts of a name behind the prefix; empty for a name of another form.
std::vector<std::string> partsOf(std::string_view name) {
  constexpr std::size_t count = 5;
  if (!name.starts_with(prefix)) return {};
  std::vector<std::string> parts;
  for (std::size_t start = prefix.size(); start <= name.size();) {
    const std::size_t end = std::min(name.find('-', start), name.size());
    parts.emplace_back(name.substr(start, end - start));
    start = end + 1;
  }
  const bool isWhole = parts.size() == count && std::ranges::none_of(parts, &std::string::empty);
  const auto isNumber = [](const std::string& part) {
    return part.find_first_not_of("0123456789") == std::string::npos;
  };
  return isWhole && isNumber(parts[1]) && isNumber(parts[2]) && isNumber(parts[3]) ? parts : std::vector<std::string>();
}

}  // namespace

std::string temporaryName() {
  static const std::string mark = ownMark();  // the process keeps it as long as it lives
  std::array<unsigned char, 8> random{};
  if (::getentropy(random.data(), random.size()) != 0) return "";
  std::string name = std::string(prefix) + mark;
  for (const unsigned char byte : random) {
    name += "0123456789abcdef"[byte >> 4];
    name += "0123456789abcdef"[byte & 15];
  }
  return name;
}

bool isLeftBehind(std::string_view name) {
  const std::vector<std::string> maker = partsOf(name);
  if (maker.empty() || maker[0] == unknown) return false;
  const std::string here = boot();
  if (here == unknown) return false;
  if (maker[0] != here) return true;
  if (maker[1] != processSpace() || maker[3] == unknown) return false;
  const std::optional<std::string> began = beginOf(maker[2]);
  return began ? *began != maker[3] : errno == ENOENT || errno == ESRCH;
}

}  // namespace tarvo
