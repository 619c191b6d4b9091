// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_diagnosis.h"

#include <optional>

#include "platform/services/file_service.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

using namespace addin_keys;
using Kind = FileService::Kind;
using Obstacle = std::optional<Failure>;

Obstacle obstacle(const std::string& path, Attempt attempt, std::error_code cause) {
  return Failure{path, attempt, cause};
}
Obstacle obstacle(const std::string& path, Attempt attempt, std::errc cause) {
  return obstacle(path, attempt, std::make_error_code(cause));
}
template <class T>
Obstacle obstacle(const Result<T>& result) {
  return result ? std::nullopt : Obstacle(result.error());
}

class Look {
 public:
  Look(const AddinEntry& entry, const FileService& files, const Bundle& bundle)
      : entry_(entry), files_(files), source_(addinSource(entry, bundle)) {
    found_ = {.table = isMailAddin(entry) ? "mail" : "office",
              .name = addinText(entry, appName),
              .version = addinText(entry, appVersion),
              .application = addinText(entry, appPath),
              .folder = addinText(entry, installFolderPath),
              .item = installedItemPath(entry),
              .missing = {},
              .obstacle = {},
              .removalObstacle = {},
              .isMarked = isMarkedInstalled(entry)};
    there_ = files.kind(found_.item);
    folder_ = files.kind(found_.folder);
    found_.isThere = there_ ? *there_ != Kind::absent : found_.isMarked;
  }

  AddinDiagnosis all() {
    require(found_.application);
    if (!source_) found_.missing.push_back(addinText(entry_, installMacroName));
    require(found_.folder);
    found_.obstacle = common();
    if (!found_.obstacle) found_.obstacle = isMailAddin(entry_) ? ofScripts() : ofMacro();
    if (found_.isThere) found_.removalObstacle = ofRemoval();
    return std::move(found_);
  }

 private:
  void require(const std::string& path) {
    if (files_.isAbsent(path)) found_.missing.push_back(path);
  }
  bool isLink(const std::string& path) const { return files_.ownKind(path) == Kind::link; }

  Obstacle common() const {
    if (!isAbsolutePath(found_.folder)) return obstacle(found_.name, Attempt::install, Reason::noInstallFolder);
    if (!source_) return obstacle(source_);
    if (!folder_) return obstacle(folder_);
    if (!there_) return obstacle(there_);
    if (*folder_ != Kind::absent && *folder_ != Kind::folder) {
      return obstacle(found_.folder, Attempt::install, std::errc::not_a_directory);
    }
    if (*folder_ == Kind::folder) {
      if (const Result<> writable = files_.checkWritable(found_.folder); !writable) return writable.error();
    }
    if (isLink(found_.item)) return obstacle(found_.item, Attempt::install, Reason::linkInTheWay);
    return std::nullopt;
  }

  Obstacle ofMacro() const {
    if (*folder_ == Kind::absent) {
      return obstacle(found_.folder, Attempt::install, std::errc::no_such_file_or_directory);
    }
    if (!found_.isThere) return std::nullopt;
    return obstacle(found_.item, Attempt::install, std::errc::file_exists);
  }

  Obstacle ofScripts() {
    const Result<std::vector<std::string>> scripts = files_.list(*source_);
    if (!scripts) return obstacle(scripts);
    if (scripts->empty()) return obstacle(*source_, Attempt::install, Reason::emptyResource);
    if (!found_.isThere) return std::nullopt;
    if (*there_ != Kind::folder) return obstacle(found_.item, Attempt::install, std::errc::not_a_directory);
    Obstacle taken;
    for (const std::string& script : *scripts) {
      const std::string path = joinPath(found_.item, script);
      if (files_.isAbsent(path)) {
        found_.missing.push_back(path);
        found_.isPartial = true;
      } else if (!taken) {
        taken = obstacle(path, Attempt::install, std::errc::file_exists);
      }
    }
    return taken;
  }

  Obstacle ofRemoval() const {
    if (!there_) return obstacle(there_);
    if (const Result<> writable = files_.checkWritable(found_.folder); !writable) return writable.error();
    if (!isMailAddin(entry_)) return std::nullopt;
    if (isLink(found_.item)) return obstacle(found_.item, Attempt::uninstall, Reason::linkInTheWay);
    if (*there_ != Kind::folder) return obstacle(found_.item, Attempt::uninstall, std::errc::not_a_directory);
    const Result<std::vector<std::string>> names = files_.list(found_.item);
    if (!names) return obstacle(names);
    for (const std::string& name : *names) {
      const std::string path = joinPath(found_.item, name);
      if (files_.isAbsent(path)) return obstacle(path, Attempt::uninstall, Reason::deadLink);
    }
    return obstacle(files_.checkWritable(found_.item));
  }

  const AddinEntry& entry_;
  const FileService& files_;
  Result<std::string> source_;
  Result<Kind> there_, folder_;
  AddinDiagnosis found_;
};

}  // namespace

AddinDiagnosis diagnoseAddin(const AddinEntry& entry, const FileService& files, const Bundle& bundle) {
  return Look(entry, files, bundle).all();
}

}  // namespace tarvo
