// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/user_defaults.h"

#include <utility>

#include "platform/services/file_service.h"
#include "platform/services/patient_reading.h"

namespace tarvo {

UserDefaults::UserDefaults(FileService& files, DiskPath path) : files_(files), file_(files, std::move(path)) {
  Result<Dictionary> values = readPatiently([this] { return file_.read(); });
  if (values) {
    values_ = std::move(*values);
  } else if (!isAbsence(values.error())) {
    unread_ = std::move(values.error());
  }
}

void UserDefaults::put(std::string_view key, PropertyList value) {
  const PropertyList* present = values_.find(key);
  if (forgetLater(key) || present == nullptr || *present != value) {
    values_.set(key, std::move(value));
    changed_ = true;
  }
}

void UserDefaults::set(std::string_view key, PropertyList value) {
  put(key, std::move(value));
  if (observer) observer(key, values_.find(key));
}

void UserDefaults::setLater(std::string_view key, PropertyList value, std::function<bool()> mayStore) {
  noteLater(key, std::move(value), std::move(mayStore));
  if (observer) observer(key, values_.find(key));
}

void UserDefaults::noteLater(std::string_view key, PropertyList value, std::function<bool()> mayStore) {
  const bool others = changed_;
  put(key, std::move(value));
  changed_ = others;
  later_.push_back({std::string(key), std::move(mayStore)});
}

bool UserDefaults::forgetLater(std::string_view key) {
  return std::erase_if(later_, [key](const Later& each) { return each.key == key; }) > 0;
}

Dictionary UserDefaults::toStore() const {
  Dictionary values = values_;
  for (const Later& each : later_) values.remove(each.key);
  return values;
}

void UserDefaults::forget(std::string_view key) {
  forgetLater(key);
  if (values_.remove(key)) changed_ = true;
}

void UserDefaults::remove(std::string_view key) {
  forget(key);
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
  if (std::erase_if(later_, [](const Later& each) { return each.mayStore(); }) > 0) changed_ = true;
  if (!changed_) return;
  if (isUnknown()) readAgain();
  const Result<> made = files_.makeFolder(file_.path().folder());
  const Result<> written = file_.write(later_.empty() ? values_ : toStore());
  changed_ = !written;
  const bool isNews = !written && !unwritten_;
  unwritten_.reset();
  if (!written) unwritten_ = made ? written.error() : made.error();  // without its folder no file can be
  if (isNews && unwritten_ && didFail) didFail(*unwritten_);
}

}  // namespace tarvo
