// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/architecture/layering.h"

#include <algorithm>
#include <set>

#include "tests/architecture/standard_headers.h"

namespace tarvo {
namespace {

using Names = std::vector<std::string_view>;

struct Room {
  std::string_view folder;
  Names mayInclude;  // besides itself
};

Names with(Names some, const Names& more) {
  some.insert(some.end(), more.begin(), more.end());
  return some;
}

// The longest folder that holds a file is its room.
const std::vector<Room>& rooms() {
  static const Names platform = {"platform/text", "platform/plist", "platform/services", "platform/controls"};
  static const Names core = with(platform, {"style", "dict", "install", "app"});
  static const Names drawn = with(core, {"qt/look", "qt/bind"});
  static const std::vector<Room> all = {
      {"platform/text", {}},
      {"platform/plist", {"platform/text"}},
      {"platform/services", {"platform/text", "platform/plist"}},
      {"platform/controls", {"platform/text", "platform/plist", "platform/services"}},
      {"platform/posix", {"platform/text", "platform/plist", "platform/services"}},
      {"platform/engine", {"platform/text", "platform/plist", "platform/services"}},
      {"style", platform},
      {"dict", with(platform, {"style"})},
      {"install", platform},
      {"app", with(platform, {"style", "dict", "install"})},
      {"console/script", core},
      {"console/verbs", with(core, {"console/script"})},
      {"console", with(core, {"console/script", "console/verbs"})},
      {"qt/look", core},
      {"qt/services", core},
      {"qt/bind", with(core, {"qt/look"})},
      {"qt/panes", drawn},
      {"qt/sheets", drawn},
      {"qt/window", drawn},
      {"qt", with(drawn, {"qt/panes", "qt/sheets", "qt/window", "qt/services"})},
  };
  return all;
}

// Who puts the real system behind the interfaces.
bool composes(std::string_view path) {
  return path == "app/product.h" || path == "app/product.cpp" || path == "app/product_defaults.cpp" ||
         path == "qt/main.cpp" || path == "console/main.cpp";
}

bool isLeaf(std::string_view folder) { return folder == "platform/posix" || folder == "platform/engine"; }

bool isTest(std::string_view path) { return path.starts_with("tests/"); }

bool isHeader(std::string_view path) { return path.ends_with(".h"); }

const Room* roomOf(std::string_view path) {
  const Room* best = nullptr;
  for (const Room& room : rooms()) {
    const bool inside = path.starts_with(room.folder) && path.substr(room.folder.size()).starts_with('/');
    if (inside && (best == nullptr || best->folder.size() < room.folder.size())) best = &room;
  }
  return best;
}

bool inCore(std::string_view path) {
  const Room* room = roomOf(path);
  return room != nullptr && !room->folder.starts_with("console") && !room->folder.starts_with("qt");
}

std::string at(const std::string& path, const Include& include) {
  return path + ":" + std::to_string(include.line) + ": ";
}

bool mayInclude(std::string_view from, const Room& room, std::string_view to) {
  const Room* other = roomOf(to);
  if (other == nullptr) return false;
  if (other->folder == room.folder || (isLeaf(other->folder) && composes(from))) return true;
  return std::find(room.mayInclude.begin(), room.mayInclude.end(), other->folder) != room.mayInclude.end();
}

// The library that a header in <...> belongs to; "" for those of the system, which platform/posix may use anywhere.
std::string libraryOf(std::string_view name) {
  if (name == "expat.h" || name == "iconv.h") return std::string(name);
  for (const std::string_view prefix : {"unicode/", "CLI/", "curl/", "openssl/", "nlohmann/"}) {
    if (name.starts_with(prefix)) return std::string(prefix);
  }
  const bool toolkit = name.size() > 1 && name[0] == 'Q' && (name[1] == 't' || (name[1] >= 'A' && name[1] <= 'Z'));
  return toolkit ? "Qt" : "";
}

// Headers of the system; what asks it goes through platform/posix.
bool isSystem(std::string_view name) {
  return name.starts_with("sys/") || name == "unistd.h" || name == "fcntl.h" || name == "pwd.h" || name == "dirent.h";
}

// Who may ask the system all the same, for the toolkit's bus alone: whether it answers, and in a process of its own.
bool mayAskTheSystem(std::string_view path) {
  return isTest(path) || path.starts_with("platform/posix/") || path == "qt/services/bus_probe.cpp" ||
         path == "qt/services/single_instance.cpp";
}

// Depth-first; a file that is still open when it is reached again closes a ring.
class LoopFinder {
 public:
  explicit LoopFinder(const SourceTree& tree) : tree_(tree) {}
  void visit(const std::string& path) {
    if (done_.contains(path)) return;
    const auto open = std::find(open_.begin(), open_.end(), path);
    if (open != open_.end()) return report(open);
    const auto found = tree_.find(path);
    if (found == tree_.end()) return;
    open_.push_back(path);
    for (const Include& include : found->second) {
      if (include.quoted) visit(include.name);
    }
    open_.pop_back();
    done_.insert(path);
  }
  std::vector<std::string> loops;

 private:
  void report(std::vector<std::string>::const_iterator first) {
    std::string line = *first + ":1: includes itself";
    for (auto each = first + 1; each != open_.end(); ++each) line += (each == first + 1 ? " through " : ", ") + *each;
    loops.push_back(line);
  }
  const SourceTree& tree_;
  std::vector<std::string> open_;
  std::set<std::string> done_;
};

}  // namespace

std::vector<std::string> faultyArrows(const SourceTree& tree) {
  std::vector<std::string> faults;
  for (const auto& [path, includes] : tree) {
    const Room* room = roomOf(path);
    for (const Include& include : includes) {
      if (!include.quoted) continue;
      if (!tree.contains(include.name)) {
        faults.push_back(at(path, include) + "\"" + include.name + "\" is no file of the tree");
      } else if (room != nullptr && !mayInclude(path, *room, include.name)) {
        faults.push_back(at(path, include) + std::string(room->folder) + "/ must not include " + include.name);
      }
    }
    if (room == nullptr && !isTest(path)) faults.push_back(path + ":1: lies in no known folder");
  }
  return faults;
}

std::vector<std::string> includeLoops(const SourceTree& tree) {
  LoopFinder finder(tree);
  for (const auto& [path, includes] : tree) finder.visit(path);
  return finder.loops;
}

std::vector<std::string> foreignHeaders(const SourceTree& tree) {
  std::vector<std::string> faults;
  for (const auto& [path, includes] : tree) {
    if (!isHeader(path) || !inCore(path)) continue;
    for (const Include& include : includes) {
      if (!include.quoted && !isStandard(include.name)) {
        faults.push_back(at(path, include) + "a header of the core includes <" + include.name + ">");
      }
    }
  }
  return faults;
}

std::vector<std::string> spreadSystem(const SourceTree& tree) {
  std::vector<std::string> faults;
  for (const auto& [path, includes] : tree) {
    if (mayAskTheSystem(path)) continue;
    for (const Include& include : includes) {
      if (!include.quoted && isSystem(include.name)) {
        faults.push_back(at(path, include) + "<" + include.name + "> outside platform/posix/");
      }
    }
  }
  return faults;
}

std::vector<std::string> spreadLibraries(const SourceTree& tree) {
  std::vector<std::string> faults;
  std::map<std::string, std::string> homes;
  for (const auto& [path, includes] : tree) {
    if (isTest(path) || path.starts_with("qt/")) continue;
    for (const Include& include : includes) {
      const std::string library = include.quoted ? "" : libraryOf(include.name);
      if (library == "Qt") faults.push_back(at(path, include) + "<" + include.name + "> outside qt/");
      if (library.empty() || library == "Qt") continue;
      const std::string& home = homes.emplace(library, path).first->second;
      if (home != path) faults.push_back(at(path, include) + "<" + include.name + "> belongs to " + home + " alone");
    }
  }
  return faults;
}

}  // namespace tarvo
