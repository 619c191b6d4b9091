// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/failure_text.h"

#include <algorithm>
#include <cerrno>

#include "platform/services/failure_words.h"
#include "platform/services/texts.h"

namespace tarvo {
namespace {

// The keys are "Cause." and one of these, and "Cure." and the same where something helps.
struct SystemCause {
  std::errc error;
  const char* key;
};
constexpr SystemCause systemCauses[] = {{std::errc::permission_denied, "noPermission"},
                                        {std::errc::operation_not_permitted, "noPermission"},
                                        {std::errc::no_such_file_or_directory, "absent"},
                                        {std::errc::not_a_directory, "noFolder"},
                                        {std::errc::is_a_directory, "isFolder"},
                                        {std::errc::file_exists, "exists"},
                                        {std::errc::directory_not_empty, "notEmpty"},
                                        {std::errc::no_space_on_device, "diskFull"},
                                        {std::errc::read_only_file_system, "readOnly"},
                                        {std::errc::filename_too_long, "tooLong"},
                                        {std::errc::file_too_large, "tooLarge"},
                                        {std::errc::io_error, "ioError"},
                                        {std::errc::no_such_device, "diskGone"},
                                        {std::errc::no_such_device_or_address, "diskGone"},
                                        {std::errc::too_many_files_open, "tooManyFiles"},
                                        {std::errc::too_many_files_open_in_system, "tooManyFiles"},
                                        {std::errc::too_many_symbolic_link_levels, "linkLoop"},
                                        {std::errc::too_many_links, "tooManyLinks"},
                                        {std::errc::cross_device_link, "otherDisk"},
                                        {std::errc::device_or_resource_busy, "busy"},
                                        {std::errc::text_file_busy, "busy"},
                                        {std::errc::resource_unavailable_try_again, "busy"},
                                        {std::errc::resource_deadlock_would_occur, "busy"},
                                        {std::errc::not_enough_memory, "noMemory"},
                                        {std::errc::not_supported, "notSupported"},
                                        {std::errc::operation_not_supported, "notSupported"},
                                        {std::errc::function_not_supported, "notSupported"},
                                        {std::errc::timed_out, "timedOut"},
                                        {std::errc::connection_refused, "connectionRefused"},
                                        {std::errc::illegal_byte_sequence, "badName"},
                                        {std::errc::invalid_argument, "badName"}};

const char* keyOf(const std::error_code& cause) {
  if (cause.category() == reasonCategory()) return wordOf(static_cast<Reason>(cause.value()));
  // Errors of the system without a name in the standard library.
  if (cause.value() == EDQUOT) return "quota";
  if (cause.value() == ESTALE) return "stale";
  const auto* found = std::find_if(std::begin(systemCauses), std::end(systemCauses),
                                   [&](const SystemCause& each) { return cause == each.error; });
  return found != std::end(systemCauses) ? found->key : nullptr;
}

std::string placeText(const Failure& failure, const Texts& texts) {
  return filledInAll(texts.localized("DamagePlace"), {std::to_string(failure.line), std::to_string(failure.column)});
}

}  // namespace

std::string joined(const MessageParts& parts) {
  std::string text = parts.what;
  for (const std::string* part : {&parts.cause, &parts.cure}) {
    if (!part->empty()) text += "; " + *part;
  }
  return text;
}

MessageParts failureParts(const Failure& failure, const Texts& texts) {
  const char* key = keyOf(failure.cause);
  const std::string cause = key != nullptr ? texts.localized(std::string("Cause.") + key) : failure.cause.message();
  const std::string* cure = key != nullptr ? texts.find(std::string("Cure.") + key) : nullptr;
  return {texts.localized(std::string("Failure.") + wordOf(failure.attempt)),
          failure.line == 0 ? cause : cause + placeText(failure, texts), cure != nullptr ? *cure : std::string()};
}

std::string failureCauseText(const Failure& failure, const Texts& texts) {
  return joined(failureParts(failure, texts));
}

std::string failureText(const Failure& failure, const Texts& texts) {
  return (failure.path.empty() ? "" : failure.path + ": ") + failureCauseText(failure, texts);
}

}  // namespace tarvo
