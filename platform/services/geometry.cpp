// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/geometry.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tarvo {
namespace {

void appendNumber(std::string& out, float number) {
  std::array<char, 64> buffer{};  // the longest float without an exponent has 48 characters
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::fixed).ptr;
  out.append(buffer.data(), end).push_back(' ');
}

// Takes a number and the blank or end behind it off the front of the text.
std::optional<float> takeNumber(std::string_view& text) {
  text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
  float number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || !std::isfinite(number)) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return text.empty() || text.front() == ' ' ? std::optional(number) : std::nullopt;
}

}  // namespace

std::string savedFrameString(const Rect& frame, const Rect& screen) {
  std::string out;
  for (const Rect& rect : {frame, screen}) {
    for (const float number : {rect.x, rect.y, rect.width, rect.height}) appendNumber(out, number);
  }
  return out;
}

std::optional<Rect> frameFromSavedString(std::string_view text) {
  Rect frame;
  for (float* number : {&frame.x, &frame.y, &frame.width, &frame.height}) {
    const auto taken = takeNumber(text);
    if (!taken) return std::nullopt;
    *number = *taken;
  }
  return frame;
}

}  // namespace tarvo
