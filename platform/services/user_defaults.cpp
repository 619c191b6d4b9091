// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/user_defaults.h"

#include <utility>

#include "platform/services/file_service.h"

namespace tarvo {

UserDefaults::UserDefaults(FileService& files, DiskPath path) : files_(files), file_(files, std::move(path)) {
  Result<Dictionary> values = file_.read();
  if (values) {
    values_ = std::move(*values);
  } else if (!isAbsence(values.error())) {
    unread_ = std::move(values.error());
  }
}

void UserDefaults::set(std::string_view key, PropertyList value) {
  const PropertyList* present = values_.find(key);
  if (present == nullptr || *present != value) {
    values_.set(key, std::move(value));
    changed_ = true;
  }
  if (observer) observer(key, values_.find(key));
}

void UserDefaults::remove(std::string_view key) {
  if (values_.remove(key)) changed_ = true;
  if (observer) observer(key, nullptr);
}

bool UserDefaults::isUnknown() const { return unread_ && unread_->cause.category() != reasonCategory(); }

void UserDefaults::readAgain() {
  Result<Dictionary> present = file_.read();
  if (!present) return;
  for (const auto& [key, value] : values_.entries()) present->set(key, value);
  values_ = std::move(*present);
  unread_.reset();
}

void UserDefaults::synchronize() {
  if (observer) observer({}, nullptr);
  if (!changed_) return;
  if (isUnknown()) readAgain();
  const Result<> made = files_.makeFolder(file_.path().folder());
  const Result<> written = file_.write(values_);
  changed_ = !written;
  unwritten_.reset();
  if (!written) unwritten_ = made ? written.error() : made.error();  // without its folder no file can be
}

}  // namespace tarvo
