// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_presence.h"

#include <gtest/gtest.h>

#include "tests/dict/dictionary_world.h"
#include "tests/support/faulty_files.h"

namespace tarvo::test {
namespace {

class DictionaryPresenceTest : public testing::Test {
 protected:
  DictionaryPresenceTest() { world_.put({"a.TRet", "b.TRet"}); }
  DictionaryWorld world_;
};

TEST_F(DictionaryPresenceTest, knowsNamesWhateverTheirLetterCase) {
  DictionaryPresence files(world_.services(), EJ);
  EXPECT_TRUE(files.isKnown());
  EXPECT_TRUE(files.has("A.tret"));
  EXPECT_FALSE(files.has("c.TRet"));
}

TEST_F(DictionaryPresenceTest, looksForANameOnceHoweverOftenItIsAskedFor) {
  FaultyFiles disk(world_.files);
  DictionaryPresence files(world_.servicesOver(disk), EJ);
  EXPECT_FALSE(files.has("c.TRet"));
  disk.forget();
  for (const char* name : {"c.TRet", "C.tret", "c.TRet"}) EXPECT_FALSE(files.has(name));
  EXPECT_TRUE(disk.uses().empty()) << "the folder was listed again";
  EXPECT_FALSE(files.has("d.TRet"));
  EXPECT_FALSE(disk.uses().empty());
}

}  // namespace
}  // namespace tarvo::test
