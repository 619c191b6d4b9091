// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/memory_files.h"

#include <array>
#include <functional>

#include "platform/text/text_rules.h"

namespace tarvo::test {

namespace {

Failure failure(const std::string& path, Attempt attempt, std::errc cause) {
  return {path, attempt, std::make_error_code(cause)};
}

}  // namespace

void MemoryFiles::refuse(Operation operation, const std::string& path, std::errc cause) {
  refused_[{operation, path}] = cause;
}

void MemoryFiles::put(const std::string& path, std::string_view bytes) {
  putFolder(deletingLastPathComponent(path));
  nodes_[path] = Node{.kind = Kind::file, .bytes = std::string(bytes)};
}

void MemoryFiles::putOther(const std::string& path) {
  putFolder(deletingLastPathComponent(path));
  nodes_[path] = Node{.kind = Kind::other};
}

std::string MemoryFiles::bytes(const std::string& path) const {
  const auto node = nodes_.find(path);
  return node == nodes_.end() ? std::string() : node->second.bytes;
}

std::vector<std::string> MemoryFiles::paths() const { return below("/"); }

void MemoryFiles::putFolder(const std::string& path) {
  if (path.empty() || path == "/") return;
  putFolder(deletingLastPathComponent(path));
  nodes_.try_emplace(path);
}

FileService::Kind MemoryFiles::kindOf(const std::string& path) const {
  if (path == "/") return Kind::folder;
  const auto node = nodes_.find(path);
  return node == nodes_.end() ? Kind::absent : node->second.kind;
}

Result<FileService::Kind> MemoryFiles::kind(const DiskPath& at) const {
  const std::string& path = at.text();
  if (const auto refused = refusal(Operation::look, path, Attempt::look)) return *refused;
  return kindOf(path);
}

Result<> MemoryFiles::checkWritable(const DiskPath& at) const {
  const std::string& folder = at.text();
  if (isFolder(folder)) return {};
  return failure(folder, Attempt::write, std::errc::no_such_file_or_directory);
}

Result<std::string> MemoryFiles::read(const DiskPath& at) const {
  const std::string& path = at.text();
  if (const auto refused = refusal(Operation::read, path, Attempt::read)) return *refused;
  if (kindOf(path) == Kind::absent) return failure(path, Attempt::read, std::errc::no_such_file_or_directory);
  if (kindOf(path) != Kind::file) return Failure{path, Attempt::read, Reason::noRegularFile};
  return bytes(path);
}

Result<Replaced> MemoryFiles::replace(const DiskPath& at, std::string_view bytes, const Keeping& keeping) {
  const std::string& path = at.text();
  const Kind there = kindOf(path);
  if (!isAbsolutePath(path)) return Failure{path, Attempt::write, Reason::noPath};
  if (there != Kind::file && there != Kind::absent) return Failure{path, Attempt::write, Reason::noRegularFile};
  if (!isFolder(deletingLastPathComponent(path))) {
    return failure(deletingLastPathComponent(path), Attempt::write, std::errc::no_such_file_or_directory);
  }
  if (const auto refused = refusal(Operation::write, path, Attempt::write)) return *refused;
  Replaced replaced;
  if (there == Kind::file && !keeping.folder.empty()) {
    replaced.wasForeign = keeping.expected != stamp(at).value();
    replaced.kept = replaced.wasForeign ? keeping.foreignName : keeping.name;
    if (!replaced.kept.empty()) put((keeping.folder / replaced.kept).text(), nodes_[path].bytes);
  }
  Node& node = nodes_[path];
  node.kind = Kind::file;
  node.bytes = bytes;
  node.written = ++writes_;
  replaced.now = stamp(at).value();
  return replaced;
}

Result<FileStamp> MemoryFiles::stamp(const DiskPath& at) const {
  if (const auto refused = refusal(Operation::look, at.text(), Attempt::look)) return *refused;
  const auto node = nodes_.find(at.text());
  if (node == nodes_.end()) return failure(at.text(), Attempt::look, std::errc::no_such_file_or_directory);
  return FileStamp{.inode = std::hash<std::string>()(at.text()),
                   .size = node->second.bytes.size(),
                   .modified = node->second.written};
}

Result<> MemoryFiles::keepUnreadable(const DiskPath& at) {
  const std::string& path = at.text();
  constexpr std::array<const char*, 5> endings{".unreadable", ".unreadable.2", ".unreadable.3", ".unreadable.4",
                                               ".unreadable.5"};
  if (const auto refused = refusal(Operation::keepUnreadable, path, Attempt::keep)) return *refused;
  if (kindOf(path) != Kind::file) return Failure{path, Attempt::keep, Reason::noRegularFile};
  for (const char* ending : endings) {
    if (kindOf(path + ending) != Kind::absent && ending != endings.back()) continue;
    nodes_[path + ending] = nodes_[path];
    break;
  }
  return {};
}

Result<std::vector<std::string>> MemoryFiles::list(const DiskPath& at) const {
  const std::string& folder = at.text();
  if (const auto refused = refusal(Operation::list, folder, Attempt::list)) return *refused;
  if (!isFolder(folder)) return failure(folder, Attempt::list, std::errc::no_such_file_or_directory);
  std::vector<std::string> names;
  for (const std::string& path : below(folder)) {
    if (deletingLastPathComponent(path) == folder) names.push_back(lastPathComponent(path));
  }
  return names;
}

Result<> MemoryFiles::makeFolder(const DiskPath& at) {
  const std::string& path = at.text();
  if (const auto refused = refusal(Operation::makeFolder, path, Attempt::makeFolder)) return *refused;
  if (!isAbsolutePath(path)) return Failure{path, Attempt::makeFolder, Reason::noPath};
  if (isFolder(path)) return {};
  if (kindOf(path) != Kind::absent) return failure(path, Attempt::makeFolder, std::errc::not_a_directory);
  if (Result<> made = makeFolder(at.folder()); !made) return made;
  nodes_[path] = Node{};
  return {};
}

Result<> MemoryFiles::copyAs(const DiskPath& source, const DiskPath& target, const std::optional<FinderCodes>& codes) {
  const std::string& from = source.text();
  const std::string& to = target.text();
  if (const auto refused = refusal(Operation::copy, from, Attempt::copy)) return *refused;
  if (const auto refused = refusal(Operation::copy, to, Attempt::create)) return *refused;
  if (kindOf(from) == Kind::absent) return failure(from, Attempt::copy, std::errc::no_such_file_or_directory);
  if (kindOf(to) != Kind::absent) return failure(to, Attempt::create, std::errc::file_exists);
  if (!isFolder(deletingLastPathComponent(to))) {
    return failure(to, Attempt::create, std::errc::no_such_file_or_directory);
  }
  nodes_[to] = nodes_[from];
  for (const std::string& path : below(from)) nodes_[to + path.substr(from.size())] = nodes_[path];
  const bool keepsCodes = codes && !refusal(Operation::setCodes, to, Attempt::setCodes);
  if (keepsCodes && kindOf(to) == Kind::file) {
    nodes_[to].type = codes->type;
    nodes_[to].creator = codes->creator;
  }
  return {};
}

Result<> MemoryFiles::makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) {
  if (kindOf(folder.text()) != Kind::absent) return failure(folder.text(), Attempt::create, std::errc::file_exists);
  Result<> made = makeFolder(folder);
  for (auto item = items.begin(); made && item != items.end(); ++item) made = copy(*item, folder / item->name());
  return made;
}

Result<> MemoryFiles::move(const DiskPath& from, const DiskPath& to) {
  if (Result<> copied = copy(from, to); !copied) return copied;
  return remove(from);
}

Result<> MemoryFiles::remove(const DiskPath& at) {
  const std::string& path = at.text();
  if (const auto refused = refusal(Operation::remove, path, Attempt::remove)) return *refused;
  if (nodes_.count(path) == 0) return failure(path, Attempt::remove, std::errc::no_such_file_or_directory);
  for (const std::string& each : below(path)) nodes_.erase(each);
  nodes_.erase(path);
  return {};
}

Result<> MemoryFiles::removeEmptyFolder(const DiskPath& at) {
  const std::string& path = at.text();
  if (const auto refused = refusal(Operation::removeEmptyFolder, path, Attempt::remove)) return *refused;
  if (path == "/" || !isFolder(path)) return failure(path, Attempt::remove, std::errc::not_a_directory);
  if (!below(path).empty()) return failure(path, Attempt::remove, std::errc::directory_not_empty);
  nodes_.erase(path);
  return {};
}

Result<FourCharCode> MemoryFiles::typeCode(const DiskPath& at) const {
  const std::string& path = at.text();
  const auto node = nodes_.find(path);
  return node == nodes_.end() ? 0 : node->second.type;
}

Result<> MemoryFiles::setCodes(const DiskPath& at, FourCharCode type, FourCharCode creator) {
  const std::string& path = at.text();
  if (const auto refused = refusal(Operation::setCodes, path, Attempt::setCodes)) return *refused;
  if (kindOf(path) != Kind::file) return Failure{path, Attempt::setCodes, Reason::noRegularFile};
  nodes_[path].type = type;
  nodes_[path].creator = creator;
  return {};
}

std::optional<Failure> MemoryFiles::refusal(Operation operation, const std::string& path, Attempt attempt) const {
  auto found = refused_.find({operation, path});
  if (found == refused_.end()) found = refused_.find({operation, anyPath});
  return found != refused_.end() ? std::optional(failure(path, attempt, found->second)) : std::nullopt;
}

std::vector<std::string> MemoryFiles::below(const std::string& folder) const {
  std::vector<std::string> found;
  for (const auto& [path, node] : nodes_) {
    if (path != folder && isBelow(path, folder)) found.push_back(path);
  }
  return found;
}

}  // namespace tarvo::test
