// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/descriptor.h"

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>
#include <utility>

namespace tarvo {

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
  if (this != &other) {
    close();
    number_ = other.release();
  }
  return *this;
}

Descriptor::~Descriptor() {
  const int cause = errno;  // of what failed before, which is still to be told
  close();
  errno = cause;
}

int Descriptor::release() { return std::exchange(number_, -1); }

bool Descriptor::close() {
  const int number = release();
  return number < 0 || ::close(number) == 0;
}

bool writeAll(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t done = ::write(file, bytes.data(), bytes.size());
    if (done < 0 && errno == EINTR) continue;
    if (done == 0) errno = EIO;
    if (done <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(done));
  }
  return true;
}

std::optional<std::string> readAll(int file, std::size_t expected, std::size_t limit) {
  constexpr std::size_t step = std::size_t{64} * 1024;
  errno = EFBIG;
  if (expected > limit) return std::nullopt;
  std::string bytes;
  std::size_t filled = 0;
  // One byte more than expected, so that the end is met without growing.
  bytes.resize(expected + 1);
  while (true) {
    if (filled == bytes.size()) bytes.resize(bytes.size() * 2 + step);
    const ssize_t done = ::read(file, bytes.data() + filled, bytes.size() - filled);
    if (done < 0 && errno == EINTR) continue;
    if (done < 0) return std::nullopt;
    if (done == 0) break;
    filled += static_cast<std::size_t>(done);
    errno = EFBIG;
    if (filled > limit) return std::nullopt;
  }
  bytes.resize(filled);
  return bytes;
}

Descriptor openFolder(int base, const std::string& path, int flags) {
  return Descriptor(::openat(base, path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | flags));
}

std::optional<std::vector<std::string>> namesIn(int folder) {
  // The stream owns its descriptor and moves its position, so it gets one of its own.
  Descriptor own(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!own) return std::nullopt;
  const auto closeStream = [](DIR* stream) {
    const int cause = errno;
    ::closedir(stream);
    errno = cause;
  };
  const std::unique_ptr<DIR, decltype(closeStream)> stream(::fdopendir(own.get()), closeStream);
  if (!stream) return std::nullopt;
  own.release();
  std::vector<std::string> names;
  errno = 0;
  while (const dirent* entry = ::readdir(stream.get())) {
    if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
      names.emplace_back(entry->d_name);
    errno = 0;
  }
  if (errno != 0) return std::nullopt;
  return names;
}

bool syncFolder(int folder) { return ::fsync(folder) == 0 || (errno != EIO && errno != ENOSPC); }

bool syncFileIn(int folder, const std::string& name) {
  const Descriptor file(::openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  // What cannot be opened is reached with everything else on its disk.
  const bool isOnDisk = file ? ::fsync(file.get()) == 0 : errno == EACCES && ::syncfs(folder) == 0;
  return isOnDisk && syncFolder(folder);
}

}  // namespace tarvo
