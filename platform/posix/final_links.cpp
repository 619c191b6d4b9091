// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/final_links.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <utility>

#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

constexpr int maximumLinks = 40;  // as the system follows itself

// Where an open link leads. An empty name stands for the link itself: nobody can put another into its place.
Result<std::string> contentOf(const Descriptor& link, const Failure& failure) {
  std::string content(PATH_MAX, '\0');
  const ssize_t size = ::readlinkat(link.get(), "", content.data(), content.size());
  if (size < 0) return Failure{failure.path, failure.attempt, std::error_code(errno, std::generic_category())};
  if (static_cast<std::size_t>(size) == content.size())
    return Failure{failure.path, failure.attempt, std::make_error_code(std::errc::filename_too_long)};
  content.resize(static_cast<std::size_t>(size));
  return content;
}

}  // namespace

Result<FinalTarget> followFinalLinks(const DiskPath& asked, Attempt attempt) {
  std::string path = asked.text();
  for (int links = 0; links <= maximumLinks; ++links) {
    Descriptor found(::open(path.c_str(), O_PATH | O_NOFOLLOW | O_CLOEXEC));
    struct stat status{};
    if (!found && errno == ENOENT) return FinalTarget{DiskPath(path), Descriptor()};
    if (!found || ::fstat(found.get(), &status) != 0) return systemFailure(path, attempt);
    if (!S_ISLNK(status.st_mode)) return FinalTarget{DiskPath(path), std::move(found)};
    if (status.st_uid != 0 && status.st_uid != ::geteuid()) return Failure{path, attempt, Reason::foreignLink};
    const Result<std::string> content = contentOf(found, {path, attempt, {}});
    if (!content) return content.error();
    path = isAbsolutePath(*content) ? *content : joinPath(deletingLastPathComponent(path), *content);
  }
  return Failure{asked.text(), attempt, std::make_error_code(std::errc::too_many_symbolic_link_levels)};
}

}  // namespace tarvo
