// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/finder_info.h"

#include <algorithm>
#include <cerrno>

#include "platform/posix/attributes.h"

namespace tarvo {
namespace {

constexpr const char* finderInfo = "user.com.apple.FinderInfo";
constexpr std::size_t finderInfoSize = 32, typeAt = 0, creatorAt = 4, codeSize = 4;

void put(std::string& info, std::size_t position, FourCharCode code) {
  for (std::size_t i = 0; i < codeSize; ++i) {
    info[position + i] = static_cast<char>(static_cast<unsigned char>(code >> (24 - 8 * i)));
  }
}

// The attribute with other codes and all else as it was.
std::string withCodes(std::string info, const FinderCodes& codes) {
  info.resize(std::max(info.size(), finderInfoSize));
  put(info, typeAt, codes.type);
  put(info, creatorAt, codes.creator);
  return info;
}

}  // namespace

Result<FourCharCode> finderType(const DiskPath& path) {
  const Result<std::string> info = attribute(path, finderInfo);
  if (!info) return info.error();
  if (info->size() < typeAt + codeSize) return FourCharCode{0};
  FourCharCode code = 0;
  for (std::size_t i = 0; i < codeSize; ++i) code = (code << 8) | static_cast<unsigned char>((*info)[typeAt + i]);
  return code;
}

Result<> setFinderCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) {
  const Result<std::string> info = attribute(path, finderInfo);
  if (!info) return info.error();
  return setAttribute(path, finderInfo, withCodes(*info, {type, creator}));
}

bool giveFinderCodes(int file, const FinderCodes& codes) {
  if (giveAttribute(file, finderInfo, withCodes(attributeOf(file, finderInfo), codes))) return true;
  return errno != EIO && errno != ENOSPC && errno != EDQUOT;
}

}  // namespace tarvo
