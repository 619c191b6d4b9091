// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_file.h"

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {
// In the root's dictionary values stand at depth 1, the records inside "Style" at depth 2.
constexpr int valueDepth = 1;
}  // namespace

void StyleFile::recordChanged(std::size_t index) {
  if (index < encoded_.size()) encoded_[index].clear();
}

std::span<const std::string> StyleFile::encode(const Dictionary& root) {
  const Array* styles = root.array(keyNameStyle);
  encoded_.resize(styles != nullptr ? styles->size() : 0);
  if (styles == nullptr) return encoded_;
  for (std::size_t i = 0; i < encoded_.size(); ++i) {
    if (encoded_[i].empty()) appendValue(encoded_[i], (*styles)[i], valueDepth + 1);
  }
  return encoded_;
}

Result<> StyleFile::write(const Dictionary& root) {
  const Array* styles = root.array(keyNameStyle);
  std::size_t size = 4096;
  for (const std::string& record : encode(root)) size += record.size();
  std::string bytes;
  bytes.reserve(size);
  bytes += plistHead;
  bytes += "<dict>\n";
  for (const auto& [key, value] : root.entries()) {
    appendKey(bytes, key, valueDepth);
    if (key == keyNameStyle && styles != nullptr) {
      appendEncodedArray(bytes, encoded_, valueDepth);
    } else {
      appendValue(bytes, value, valueDepth);
    }
  }
  bytes += "</dict>\n";
  bytes += plistFoot;
  return file_.write(bytes);
}

bool fitsStyleFile(const PropertyList& record) {
  constexpr int levelsAbove = 2;  // the root and "Style"
  return depthOf(record) + levelsAbove <= plistMaximumDepth;
}

}  // namespace tarvo
