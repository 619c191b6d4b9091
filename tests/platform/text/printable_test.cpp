// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/printable.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvo {
namespace {

TEST(Printable, showsWhatATerminalWouldObeyAsItsBytes) {
  EXPECT_EQ(printable("特許 Patents é"), "特許 Patents é");
  EXPECT_EQ(printable("\x1B[31mred\x7F\n\t"), "\\x1B[31mred\\x7F\\x0A\\x09");
  EXPECT_EQ(printable(std::string(1, '\0')), "\\x00");
  EXPECT_EQ(printable("a\u009B31m\u0085\u2028"), "a\\xC2\\x9B31m\\xC2\\x85\\xE2\\x80\\xA8");
  EXPECT_EQ(printable("\u202Efdp.exe\u2066"), "\\xE2\\x80\\xAEfdp.exe\\xE2\\x81\\xA6");
  EXPECT_EQ(printable("\xFF辞\xE8\xBE"), "\\xFF辞\\xE8\\xBE");
}

}  // namespace
}  // namespace tarvo
