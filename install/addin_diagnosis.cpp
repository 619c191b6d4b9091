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
              .isMarked = isMarkedInstalled(entry),
              .isThere = files.exists(installedItemPath(entry))};
  }

  AddinDiagnosis all() {
    require(found_.application);
    if (!source_) found_.missing.push_back(addinText(entry_, installMacroName));
    require(found_.folder);
    found_.obstacle = common();
    if (found_.obstacle.empty()) found_.obstacle = isMailAddin(entry_) ? ofScripts() : ofMacro();
    if (found_.isThere) found_.removalObstacle = ofRemoval();
    return std::move(found_);
  }

 private:
  void require(const std::string& path) {
    if (!files_.exists(path)) found_.missing.push_back(path);
  }

  std::string common() const {
    if (found_.item.empty()) return "the record names nothing to install";
    if (!isAbsolutePath(found_.folder)) return "the install folder is no absolute path";
    if (!source_) return "what is to be installed is missing from the product";
    const Kind folder = files_.kind(found_.folder);
    if (folder != Kind::absent && folder != Kind::folder) return "the install folder is no folder";
    if (folder == Kind::folder && !files_.isWritable(found_.folder)) return "the install folder cannot be written to";
    return files_.isLink(found_.item) ? "a link is in the way" : "";
  }

  std::string ofMacro() const {
    if (files_.kind(found_.folder) == Kind::absent) return "the install folder is missing";
    return found_.isThere ? "there is something of that name already" : "";
  }

  std::string ofScripts() {
    const auto scripts = files_.list(*source_);
    if (!scripts) return "the scripts of the product cannot be listed";
    if (scripts->empty()) return "the product holds no scripts for it";
    if (!found_.isThere) return "";
    if (files_.kind(found_.item) != Kind::folder) return "a file of that name is in the way";
    std::string taken;
    for (const std::string& script : *scripts) {
      const std::string path = joinPath(found_.item, script);
      if (!files_.exists(path)) {
        found_.missing.push_back(path);
        found_.isPartial = true;
      } else if (taken.empty()) {
        taken = script;
      }
    }
    return taken.empty() ? "" : "there is a script of that name already: " + taken;
  }

  std::string ofRemoval() const {
    if (!files_.isWritable(found_.folder)) return "the install folder cannot be written to";
    if (!isMailAddin(entry_)) return "";
    if (files_.isLink(found_.item)) return "it is a link, which is left alone";
    if (files_.kind(found_.item) != Kind::folder) return "it is no folder of scripts";
    const auto names = files_.list(found_.item);
    if (!names) return "it cannot be listed";
    for (const std::string& name : *names) {
      if (!files_.exists(joinPath(found_.item, name))) return "a link in it leads nowhere: " + name;
    }
    return files_.isWritable(found_.item) ? "" : "it cannot be written to";
  }

  const AddinEntry& entry_;
  const FileService& files_;
  std::optional<std::string> source_;
  AddinDiagnosis found_;
};

}  // namespace

AddinDiagnosis diagnoseAddin(const AddinEntry& entry, const FileService& files, const Bundle& bundle) {
  return Look(entry, files, bundle).all();
}

}  // namespace tarvo
