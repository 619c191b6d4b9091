// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/doctor_former_styles.h"

#include <algorithm>
#include <array>
#include <utility>

#include "app/product.h"
#include "platform/services/failure_text.h"
#include "platform/services/file_service.h"
#include "platform/services/kept_copies.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

// They lie there until somebody has looked after them.
struct KeptBeside {
  const char *ending, *detail;
};
constexpr std::array<KeptBeside, 2> keptBeside{
    {{kept_copies::unreadable,
      "a style file that could not be read; bring its styles back with restore, then remove the copy"},
     {kept_copies::foreign, "the styles that another program had written; look after them, then remove the copy"}}};

Finding folderOfEarlierStyles(Product& product, const DiskPath& folder) {
  const FileService& files = product.files();
  const auto finding = [&](const char* state, std::string detail) {
    return Finding{product.locations().shown(folder), "earlier styles", state, std::move(detail)};
  };
  const Result<FileService::Kind> kind = files.ownKind(folder);
  if (kind == FileService::Kind::absent) return finding("missing", "made at the first change");
  if (kind == FileService::Kind::link) return finding("problem", "is a link, so nothing is kept there");
  const Result<std::vector<std::string>> sets = files.list(folder);
  if (!sets) return finding("problem", failureCauseText(sets.error(), product.texts()));
  if (const Result<> writable = files.checkWritable(folder); !writable)
    return finding("problem", failureCauseText(writable.error(), product.texts()));
  return finding("ok", std::to_string(sets->size()) + " entries");
}

}  // namespace

std::vector<Finding> examineFormerStyles(Product& product) {
  std::vector<Finding> findings;
  const DiskPath path = product.locations().inHome(gStylePath), folder = product.locations().inHome(gEarlierStyles);
  const Result<std::vector<std::string>> names = product.files().list(path.folder());
  for (const std::string& name : names.value_or(std::vector<std::string>())) {  // a failure is told for the file itself
    const auto kept = std::ranges::find_if(
        keptBeside, [&](const KeptBeside& one) { return name.starts_with(path.name() + one.ending); });
    if (kept == keptBeside.end()) continue;
    findings.push_back({product.locations().shown(path.folder() / name), "kept copy", "problem", kept->detail});
  }
  findings.push_back(folderOfEarlierStyles(product, folder));
  return findings;
}

}  // namespace tarvo
