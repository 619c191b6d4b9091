// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/services/engine.h"
#include "platform/services/plist_file.h"

// The engine's style set in a file of this machine: a property list with the array "Style" and the text "Stamp".
// Duty: keep the set and its stamp; always reachable. Not: translating. A stamp is a counter of fixed width, one more
// at each registration, and the time in UTC: "00000000000000000042 2026-03-31T08:15:00Z". Every other text counts as 0.
// The set is newer than a local one when its counter is greater. After a failed write the stamp handed back is that of
// the set which the file lacks, so that the older one does not count as newer; a file that cannot be read is kept
// beside the new one (see PlistFile).
namespace tarvo {

class FileService;

class EngineLocal : public Engine {
 public:
  // path: of the file; its folder is made on demand.
  EngineLocal(FileService& files, DiskPath path);
  bool checkConnectionWithCurl() override;
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override;
  bool checkStyle() override;
  bool requestStyle(Array& styles, std::string& localUpdate) override;
  void setStandIn(bool standsIn) override { standsIn_ = standsIn; }
  EngineForm form() const override { return EngineForm::local; }
  Result<> didRegister() const override { return didRegister_; }
  Result<> couldRead() const override { return couldRead_; }

 private:
  Result<Dictionary> readSet();
  bool keepsItsSet();
  FileService& files_;
  PlistFile file_;
  std::optional<std::uint64_t> counter_;  // of the file, once it could be read: a registration need not read it again
  Result<> didRegister_, couldRead_;
  bool standsIn_ = false;
};

}  // namespace tarvo
