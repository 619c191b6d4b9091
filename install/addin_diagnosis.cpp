// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_diagnosis.h"

#include <optional>

#include "install/installed_files.h"
#include "platform/services/file_service.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

using namespace addin_keys;
using Kind = FileService::Kind;
using Obstacle = std::optional<Failure>;

Obstacle obstacle(const DiskPath& path, Attempt attempt, std::error_code cause) {
  return Failure{path.text(), attempt, cause};
}
Obstacle obstacle(const DiskPath& path, Attempt attempt, std::errc cause) {
  return obstacle(path, attempt, std::make_error_code(cause));
}
template <class T>
Obstacle obstacle(const Result<T>& result) {
  return result ? std::nullopt : Obstacle(result.error());
}

class Look {
 public:
  Look(const AddinEntry& entry, const FileService& files, const Locations& locations, const Bundle& bundle)
      : entry_(entry), files_(files), source_(addinSource(entry, bundle)) {
    found_ = {.kind = kindOf(entry),
              .name = addinText(entry, appName),
              .version = addinText(entry, appVersion),
              .places = placesOf(entry, locations, files),
              .missing = {},
              .obstacle = {},
              .removalObstacle = {},
              .faults = faultsOf(entry, files, locations, bundle),
              .isMarked = isMarkedInstalled(entry)};
    there_ = files.kind(found_.places.item);
    folder_ = files.kind(found_.places.folder);
    found_.isThere = there_ ? *there_ != Kind::absent : found_.isMarked;
  }

  AddinDiagnosis all() {
    require(found_.places.application);
    if (!source_) found_.missing.push_back(addinText(entry_, installMacroName));
    require(found_.places.folder);
    found_.obstacle = common();
    if (!found_.obstacle) found_.obstacle = found_.kind == AddinKind::mail ? ofScripts() : ofMacro();
    if (found_.isThere) found_.removalObstacle = ofRemoval();
    return std::move(found_);
  }

 private:
  void require(const DiskPath& path) {
    if (files_.isAbsent(path)) found_.missing.push_back(path.text());
  }
  bool isLink(const DiskPath& path) const { return files_.ownKind(path) == Kind::link; }

  Obstacle common() const {
    if (!isAbsolutePath(found_.places.folder.text()))
      return Failure{found_.name, Attempt::install, Reason::noInstallFolder};
    if (!source_) return obstacle(source_);
    if (!folder_) return obstacle(folder_);
    if (!there_) return obstacle(there_);
    if (*folder_ != Kind::absent && *folder_ != Kind::folder) {
      return obstacle(found_.places.folder, Attempt::install, std::errc::not_a_directory);
    }
    if (*folder_ == Kind::folder) {
      if (const Result<> writable = files_.checkWritable(found_.places.folder); !writable) return writable.error();
    }
    if (isLink(found_.places.item)) return obstacle(found_.places.item, Attempt::install, Reason::linkInTheWay);
    return std::nullopt;
  }

  Obstacle ofMacro() const {
    if (*folder_ == Kind::absent) {
      return obstacle(found_.places.folder, Attempt::install, std::errc::no_such_file_or_directory);
    }
    if (!found_.isThere) return std::nullopt;
    return obstacle(found_.places.item, Attempt::install, std::errc::file_exists);
  }

  Obstacle ofScripts() {
    const Result<std::vector<std::string>> scripts = files_.list(*source_);
    if (!scripts) return obstacle(scripts);
    if (scripts->empty()) return obstacle(*source_, Attempt::install, Reason::emptyResource);
    if (!found_.isThere) return std::nullopt;
    if (*there_ != Kind::folder) return obstacle(found_.places.item, Attempt::install, std::errc::not_a_directory);
    Obstacle taken;
    for (const std::string& script : *scripts) {
      const DiskPath path = found_.places.item / script;
      if (files_.isAbsent(path)) {
        found_.missing.push_back(path.text());
        found_.isPartial = true;
      } else if (!taken) {
        taken = obstacle(path, Attempt::install, std::errc::file_exists);
      }
    }
    return taken;
  }

  Obstacle ofRemoval() const {
    if (!there_) return obstacle(there_);
    if (const Result<> writable = files_.checkWritable(found_.places.folder); !writable) return writable.error();
    if (found_.kind == AddinKind::office) return std::nullopt;
    if (isLink(found_.places.item)) return obstacle(found_.places.item, Attempt::uninstall, Reason::linkInTheWay);
    if (*there_ != Kind::folder) return obstacle(found_.places.item, Attempt::uninstall, std::errc::not_a_directory);
    const Result<std::vector<std::string>> names = files_.list(found_.places.item);
    if (!names) return obstacle(names);
    for (const std::string& name : *names) {
      const DiskPath path = found_.places.item / name;
      if (files_.isAbsent(path)) return obstacle(path, Attempt::uninstall, Reason::deadLink);
    }
    return obstacle(files_.checkWritable(found_.places.item));
  }

  const AddinEntry& entry_;
  const FileService& files_;
  Result<DiskPath> source_;
  Result<Kind> there_, folder_;
  AddinDiagnosis found_;
};

}  // namespace

AddinDiagnosis diagnoseAddin(const AddinEntry& entry, const FileService& files, const Locations& locations,
                             const Bundle& bundle) {
  return Look(entry, files, locations, bundle).all();
}

std::vector<Failure> faultsOf(const AddinEntry& entry, const FileService& files, const Locations& locations,
                              const Bundle& bundle) {
  const Result<DiskPath> source = addinSource(entry, bundle);
  const DiskPath item = placesOf(entry, locations, files).item;
  if (!source || !files.isThere(item)) return {};
  return differencesOf(item, *source, files);
}

}  // namespace tarvo
