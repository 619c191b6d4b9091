// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_scan.h"

#include <algorithm>

#include "dict/dictionary_folders.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/machine_texts.h"
#include "platform/services/texts.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

constexpr FourCharCode technicalType = fourCharCode("TRjt");

// The four file names of the Corwell medical dictionary, and the text that says where the data behind each lies. These
// names, and only these, are compared exactly.
struct MedicalFile {
  std::string_view name, dataPathKey;
};
constexpr MedicalFile medicalFiles[] = {
    {"cwl.TRet", "TechECorwell6"}, {"cwla.TRet", "TechECorwell6"}, {"cwl", "TechJCorwell6"}, {"cwla", "TechJCorwell6"}};

class MedicalFilter {
 public:
  explicit MedicalFilter(const DictionaryScan& scan)
      : scan_(scan),
        displayName_(scan.texts.localized("NameJCorwell6")),
        abbreviationName_(scan.texts.localized("NameJCorwellAbbrev")) {}

  // unread: nobody knows whether its data is installed.
  bool keeps(const std::string& name, std::optional<Failure>& unread) const {
    for (const MedicalFile& file : medicalFiles) {
      if (name != file.name) continue;
      const Result<std::string> data = machineText(file.dataPathKey, scan_.texts, scan_.files, scan_.locations);
      if (!data) unread = data.error();
      return !data || !scan_.files.isAbsent(scan_.locations.onDisk(ProductPath(*data)));
    }
    return !equalIgnoringCase(name, displayName_) && !equalIgnoringCase(name, abbreviationName_);
  }

 private:
  const DictionaryScan& scan_;
  std::string displayName_, abbreviationName_;
};

// Whether the type code makes a dictionary of the file. unread: the code cannot be read.
bool hasTechnicalType(const DictionaryScan& scan, const std::string& name, std::optional<Failure>& unread) {
  const DiskPath path = scan.folder / name;
  const Result<FourCharCode> code = scan.files.typeCode(path);
  if (code) return *code == technicalType;
  // Folders bear no type of a file. Some that others made on the dictionaries' disk let nobody look.
  if (scan.files.kind(path) != FileService::Kind::folder && !isAbsence(code.error())) unread = code.error();
  return false;
}

bool isOfKind(const DictionaryScan& scan, const std::string& name, std::optional<Failure>& unread) {
  const std::string extension = pathExtension(name);
  const auto is = [&](std::string_view other) { return equalIgnoringCase(extension, other); };
  if (scan.kind != DictionaryKind::technical) return is(extensionOf(scan.kind, scan.direction));
  if (!canHoldText(name)) return false;  // a style could not keep it
  // The type code is asked for last: it costs a look at the disk.
  return is("TRet") || is("jtd") || hasTechnicalType(scan, name, unread);
}

}  // namespace

DictionaryScan::Found DictionaryScan::find() const {
  Found found;
  Result<std::vector<std::string>> names = namesInDictionaryFolder(files, folder);
  if (!names) {
    found.unread = names.error();
    return found;
  }
  const MedicalFilter medical(*this);
  std::erase_if(*names, [&](const std::string& name) {
    return !medical.keeps(name, found.unread) || !isOfKind(*this, name, found.unread);
  });
  found.names = std::move(*names);
  return found;
}

}  // namespace tarvo
