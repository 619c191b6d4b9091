// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/result.h"

#include <cerrno>

namespace tarvo {
namespace {

class ReasonCategory : public std::error_category {
 public:
  const char* name() const noexcept override { return "tarvo"; }
  std::string message(int reason) const override { return "reason " + std::to_string(reason); }
};

}  // namespace

const std::error_category& reasonCategory() {
  static const ReasonCategory category;
  return category;
}

Failure systemFailure(std::string path, Attempt attempt) {
  const std::error_code cause(errno, std::generic_category());
  return {std::move(path), attempt, cause};
}

bool isAbsence(const Failure& failure) {
  return failure.cause == std::errc::no_such_file_or_directory || failure.cause == std::errc::not_a_directory ||
         failure.cause == Reason::noPath;
}

}  // namespace tarvo
