// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/shared_library.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(SharedLibrary, handsOutItsFunctions) {
  const SharedLibrary mathematics("libm.so.6");
  const auto cosine = mathematics.function<double(double)>("cos");
  ASSERT_NE(cosine, nullptr);
  EXPECT_EQ(cosine(0), 1);
  EXPECT_EQ(mathematics.function<void()>("no_such_function"), nullptr);
}

TEST(SharedLibrary, hasNoFunctionsWhenItIsMissing) {
  EXPECT_EQ(SharedLibrary("libno-such-library.so.1").function<double(double)>("cos"), nullptr);
}

}  // namespace
}  // namespace tarvo
