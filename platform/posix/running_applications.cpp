// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/running_applications.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdlib>
#include <memory>
#include <set>

#include "platform/posix/descriptor.h"
#include "platform/services/locations.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

std::string programOf(int processes, const std::string& process) {
  std::array<char, PATH_MAX> content{};
  const ssize_t size = ::readlinkat(processes, (process + "/exe").c_str(), content.data(), content.size());
  return size > 0 ? std::string(content.data(), static_cast<std::size_t>(size)) : "";
}

std::string bundleAround(const std::string& program) {
  for (std::string folder = deletingLastPathComponent(program); folder.size() > 1;
       folder = deletingLastPathComponent(folder)) {
    if (equalIgnoringCase(pathExtension(folder), "app")) return folder;
  }
  return "";
}

// The system answers paths without links; the root may be spelled with some.
Locations withoutLinks(const Locations& locations) {
  const std::string& root = locations.root().text();
  const std::unique_ptr<char, decltype(&std::free)> real(::realpath(root.c_str(), nullptr), &std::free);
  return {real ? real.get() : root, locations.home().text()};
}

}  // namespace

std::vector<ProductPath> runningApplications(const Locations& locations) {
  const Locations real = withoutLinks(locations);
  const Descriptor processes = openFolder(AT_FDCWD, "/proc");
  const auto names = processes ? namesIn(processes.get()) : std::nullopt;
  std::set<ProductPath> bundles;
  for (const std::string& name : names.value_or(std::vector<std::string>{})) {
    if (!std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; })) continue;
    const std::string bundle = bundleAround(programOf(processes.get(), name));
    if (!bundle.empty()) bundles.insert(real.inProduct(DiskPath(bundle)));
  }
  return {bundles.begin(), bundles.end()};
}

}  // namespace tarvo
