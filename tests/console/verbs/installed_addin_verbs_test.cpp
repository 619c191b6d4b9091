// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/console/verbs/addin_verb_test.h"

// What is installed and no longer the product's.
namespace tarvo::test {
namespace {

TEST_F(AddinVerbs, aMacroThatIsNotTheProductsIsNotSaidToBeInstalledAlready) {
  for (const auto& [held, cause] : {std::pair{"",
                                              "it is emptied: nothing is in it any more; remove the add-in and "
                                              "install it again"},
                                    std::pair{"x",
                                              "it is foreign: what is in it is not what the product has; remove "
                                              "the add-in and install it again, unless you changed it yourself"}}) {
    put(macro, held);
    expect({"addin", "install", "Word 2011"}, 1, "",
           told(real(macro), std::string("is not as the product put it there; ") + cause));
    EXPECT_EQ(read(macro), held);
  }
}

}  // namespace
}  // namespace tarvo::test
