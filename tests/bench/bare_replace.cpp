// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/bench/bare_replace.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tarvo {
namespace {

void must(bool done, const std::string& what) {
  if (!done) throw std::system_error(errno, std::generic_category(), what);
}

void syncFolder(const std::string& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  must(descriptor >= 0, folder);
  must(fsync(descriptor) == 0, folder);
  close(descriptor);
}

}  // namespace

void bareReplace(const std::string& path, const std::string& bytes) {
  const std::string beside = path + ".new";
  const int descriptor = open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  must(descriptor >= 0, beside);
  must(write(descriptor, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()), beside);
  must(fsync(descriptor) == 0, beside);
  must(close(descriptor) == 0, beside);
  must(std::rename(beside.c_str(), path.c_str()) == 0, path);
  syncFolder(path.substr(0, path.rfind('/')));
}

std::string readWholeFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  must(file.is_open(), path);
  return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace tarvo
