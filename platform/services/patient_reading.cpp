// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/patient_reading.h"

#include <algorithm>
#include <array>
#include <cerrno>

namespace tarvo {

bool mayPass(const std::error_code& cause) {
  constexpr std::array causes{std::errc::io_error,
                              std::errc::resource_unavailable_try_again,
                              std::errc::too_many_files_open,
                              std::errc::too_many_files_open_in_system,
                              std::errc::not_enough_memory,
                              std::errc::permission_denied};
  return cause == std::error_code(ESTALE, std::generic_category()) ||
         std::ranges::any_of(causes, [&cause](std::errc one) { return cause == one; });
}

}  // namespace tarvo
