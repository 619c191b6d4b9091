// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Rectangles on the screen: points, y upwards, origin bottom left, single precision. Arithmetic on them keeps to float,
// so that frames saved on one machine mean the same on another.
namespace tarvo {

struct Size {
  float width = 0, height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

struct Rect {
  float x = 0, y = 0, width = 0, height = 0;
  float top() const { return y + height; }
  friend bool operator==(const Rect&, const Rect&) = default;
};

// The saved form of a window's frame: "x y w h sx sy sw sh ", the screen last, each number in the shortest decimal form
// that reads back to the same float, one blank after each.
std::string savedFrameString(const Rect& frame, const Rect& screen);
// The frame of such a string: its first four numbers. Nothing when one of them is missing or not finite.
std::optional<Rect> frameFromSavedString(std::string_view text);

}  // namespace tarvo
