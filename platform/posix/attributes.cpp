// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/attributes.h"

#include <sys/xattr.h>

#include <cerrno>
#include <cstring>
#include <optional>

namespace tarvo {
namespace {

// Fetches a value whose size only the system knows; get(buffer, size) answers the size, for a null buffer too.
template <class Get>
std::optional<std::string> sized(Get get) {
  const ssize_t size = get(nullptr, 0);
  if (size < 0) return std::nullopt;
  std::string value(static_cast<std::size_t>(size), '\0');
  if (size == 0) return value;
  const ssize_t filled = get(value.data(), value.size());
  if (filled < 0) return std::nullopt;
  value.resize(static_cast<std::size_t>(filled));
  return value;
}

}  // namespace

Result<std::string> attribute(const DiskPath& path, const char* name) {
  auto value =
      sized([&](char* buffer, std::size_t size) { return ::getxattr(path.text().c_str(), name, buffer, size); });
  if (value) return std::move(*value);
  if (errno == ENODATA || errno == ENOTSUP) return std::string();
  return systemFailure(path.text(), Attempt::look);
}

Result<> setAttribute(const DiskPath& path, const char* name, std::string_view value) {
  if (::setxattr(path.text().c_str(), name, value.data(), value.size(), 0) == 0) return {};
  return systemFailure(path.text(), Attempt::setCodes);
}

std::string attributeOf(int file, const char* name) {
  return sized([&](char* buffer, std::size_t size) { return ::fgetxattr(file, name, buffer, size); }).value_or("");
}

bool giveAttribute(int file, const char* name, std::string_view value) {
  return ::fsetxattr(file, name, value.data(), value.size(), 0) == 0;
}

void copyAttributes(int from, int to) {
  const auto names = sized([from](char* buffer, std::size_t size) { return ::flistxattr(from, buffer, size); });
  if (!names) return;
  // The list is a row of texts, each with its zero byte.
  for (std::size_t at = 0; at < names->size(); at += std::strlen(names->data() + at) + 1) {
    const char* name = names->data() + at;
    const auto value = sized([&](char* buffer, std::size_t size) { return ::fgetxattr(from, name, buffer, size); });
    if (value) static_cast<void>(giveAttribute(to, name, *value));
  }
}

}  // namespace tarvo
