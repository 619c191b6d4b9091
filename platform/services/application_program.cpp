// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/application_program.h"

#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

bool isPlainName(const std::string& name) { return !name.empty() && name.find('/') == std::string::npos; }

std::string programName(const FileService& files, const std::string& bundle) {
  const Result<Dictionary> information = readDictionary(files, joinPath(bundle, "Contents/Info.plist"));
  const std::string* named = information ? information->string("CFBundleExecutable") : nullptr;
  return named != nullptr && isPlainName(*named) ? *named : deletingPathExtension(lastPathComponent(bundle));
}

}  // namespace

std::optional<std::string> applicationProgram(const FileService& files, const std::vector<std::string>& folders,
                                              const std::string& name) {
  if (!isPlainName(name)) return std::nullopt;
  for (const std::string& folder : folders) {
    std::string program = joinPath(folder, name);
    if (files.kind(program) == FileService::Kind::folder) {
      program = joinPath(program, "Contents/MacOS/" + programName(files, program));
    }
    if (files.kind(program) == FileService::Kind::file) return program;
  }
  return std::nullopt;
}

}  // namespace tarvo
