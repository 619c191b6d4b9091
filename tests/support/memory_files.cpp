// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/memory_files.h"

#include <array>

#include "platform/text/text_rules.h"

namespace tarvo::test {

void MemoryFiles::refuse(Operation operation, const std::string& path) { refused_.emplace(operation, path); }

void MemoryFiles::put(const std::string& path, std::string_view bytes) {
  makeFolder(deletingLastPathComponent(path));
  nodes_[path] = Node{Kind::file, std::string(bytes)};
}

void MemoryFiles::putOther(const std::string& path) {
  makeFolder(deletingLastPathComponent(path));
  nodes_[path] = Node{Kind::other, {}};
}

std::string MemoryFiles::bytes(const std::string& path) const {
  const auto node = nodes_.find(path);
  return node == nodes_.end() ? std::string() : node->second.bytes;
}

std::vector<std::string> MemoryFiles::paths() const { return below("/"); }

FileService::Kind MemoryFiles::kind(const std::string& path) const {
  if (path == "/") return Kind::folder;
  const auto node = nodes_.find(path);
  return node == nodes_.end() ? Kind::absent : node->second.kind;
}

std::optional<std::string> MemoryFiles::read(const std::string& path) const {
  if (kind(path) != Kind::file || isRefused(Operation::read, path)) return std::nullopt;
  return bytes(path);
}

bool MemoryFiles::write(const std::string& path, std::string_view bytes) {
  const Kind there = kind(path);
  if (!isAbsolutePath(path) || (there != Kind::file && there != Kind::absent)) return false;
  if (!isFolder(deletingLastPathComponent(path)) || isRefused(Operation::write, path)) return false;
  Node& node = nodes_[path];
  node.kind = Kind::file;
  node.bytes = bytes;
  ++writes_;
  return true;
}

bool MemoryFiles::keepUnreadable(const std::string& path) {
  constexpr std::array<const char*, 5> endings{".unreadable", ".unreadable.2", ".unreadable.3", ".unreadable.4",
                                               ".unreadable.5"};
  if (kind(path) != Kind::file || isRefused(Operation::keepUnreadable, path)) return false;
  for (const char* ending : endings) {
    if (exists(path + ending) && ending != endings.back()) continue;
    nodes_[path + ending] = nodes_[path];
    break;
  }
  return true;
}

std::optional<std::vector<std::string>> MemoryFiles::list(const std::string& folder) const {
  if (!isFolder(folder) || isRefused(Operation::list, folder)) return std::nullopt;
  std::vector<std::string> names;
  for (const std::string& path : below(folder)) {
    if (deletingLastPathComponent(path) == folder) names.push_back(lastPathComponent(path));
  }
  return names;
}

bool MemoryFiles::makeFolder(const std::string& path) {
  if (!isAbsolutePath(path) || isRefused(Operation::makeFolder, path)) return false;
  if (exists(path)) return isFolder(path);
  if (!makeFolder(deletingLastPathComponent(path))) return false;
  nodes_[path] = Node{};
  return true;
}

bool MemoryFiles::copy(const std::string& from, const std::string& to) {
  if (!exists(from) || exists(to) || !isFolder(deletingLastPathComponent(to))) return false;
  if (isRefused(Operation::copy, from) || isRefused(Operation::copy, to)) return false;
  nodes_[to] = nodes_[from];
  for (const std::string& path : below(from)) nodes_[to + path.substr(from.size())] = nodes_[path];
  return true;
}

bool MemoryFiles::remove(const std::string& path) {
  if (nodes_.count(path) == 0 || isRefused(Operation::remove, path)) return false;
  for (const std::string& each : below(path)) nodes_.erase(each);
  nodes_.erase(path);
  return true;
}

bool MemoryFiles::removeEmptyFolder(const std::string& path) {
  if (path == "/" || !isFolder(path) || !below(path).empty()) return false;
  if (isRefused(Operation::removeEmptyFolder, path)) return false;
  nodes_.erase(path);
  return true;
}

FourCharCode MemoryFiles::typeCode(const std::string& path) const {
  const auto node = nodes_.find(path);
  return node == nodes_.end() ? 0 : node->second.type;
}

bool MemoryFiles::setCodes(const std::string& path, FourCharCode type, FourCharCode creator) {
  if (kind(path) != Kind::file || isRefused(Operation::setCodes, path)) return false;
  nodes_[path].type = type;
  nodes_[path].creator = creator;
  return true;
}

bool MemoryFiles::isRefused(Operation operation, const std::string& path) const {
  return refused_.count({operation, path}) != 0 || refused_.count({operation, anyPath}) != 0;
}

std::vector<std::string> MemoryFiles::below(const std::string& folder) const {
  std::vector<std::string> found;
  for (const auto& [path, node] : nodes_) {
    if (path != folder && isBelow(path, folder)) found.push_back(path);
  }
  return found;
}

}  // namespace tarvo::test
