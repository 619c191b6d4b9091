// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/application_program.h"

#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

bool isPlainName(const std::string& name) { return !name.empty() && name.find('/') == std::string::npos; }

std::string programName(const FileService& files, const DiskPath& bundle) {
  const Result<Dictionary> information = readDictionary(files, bundle / "Contents/Info.plist");
  const std::string* named = information ? information->string("CFBundleExecutable") : nullptr;
  return named != nullptr && isPlainName(*named) ? *named : deletingPathExtension(bundle.name());
}

}  // namespace

std::optional<DiskPath> applicationProgram(const FileService& files, const std::vector<DiskPath>& folders,
                                           const std::string& name) {
  if (!isPlainName(name)) return std::nullopt;
  for (const DiskPath& folder : folders) {
    DiskPath program = folder / name;
    if (files.kind(program) == FileService::Kind::folder) {
      program = program / ("Contents/MacOS/" + programName(files, program));
    }
    if (files.kind(program) == FileService::Kind::file) return program;
  }
  return std::nullopt;
}

}  // namespace tarvo
