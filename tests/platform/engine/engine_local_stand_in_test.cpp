// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/engine/engine_local.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/encoded_styles.h"
#include "tests/support/temporary_folder.h"

// Styles that stand in for others, handed over to the engine of this machine.
namespace tarvo::test {
namespace {

class StandInsForTheLocalEngine : public testing::Test {
 protected:
  std::string registered(EngineLocal& engine, const EncodedStyles& styles) {
    std::string stamp;
    engine.sendRegistStyle(styles.set(), stamp);
    return stamp;
  }
  // The set that an engine started anew hands over for a local stamp.
  std::optional<Array> newerThan(std::string stamp) {
    Array styles;
    const bool newer = EngineLocal(files, path).requestStyle(styles, stamp);
    return newer ? std::optional(styles) : std::nullopt;
  }
  const std::string file = "TarvoEngine.plist";
  TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
  const DiskPath path = folder.at(file);
  const EncodedStyles two{{"標準", "特許"}}, one{{"E-mail"}};
};

TEST_F(StandInsForTheLocalEngine, leavesItsSetAloneWhileTheStylesStandInForOthers) {
  EngineLocal engine(files, path);
  const std::string first = registered(engine, two);
  engine.setStandIn(true);
  const std::string stamp = registered(engine, one);
  ASSERT_FALSE(engine.didRegister());
  EXPECT_EQ(engine.didRegister().error().cause, std::errc::file_exists);
  EXPECT_EQ(newerThan(""), two.records);
  EXPECT_EQ(newerThan(stamp), std::nullopt) << "it does not come over the styles by itself either";
  engine.setStandIn(false);
  EXPECT_GT(registered(engine, one), first);
  EXPECT_TRUE(engine.didRegister());
  EXPECT_EQ(newerThan(stamp), one.records);
}

TEST_F(StandInsForTheLocalEngine, leavesAFileThatMayHoldASetAloneWhileTheStylesStandIn) {
  folder.write(file, "damaged");
  EngineLocal engine(files, path);
  engine.setStandIn(true);
  registered(engine, one);
  EXPECT_FALSE(engine.didRegister());
  EXPECT_EQ(folder.read(file), "damaged");
}

TEST_F(StandInsForTheLocalEngine, takesStylesThatStandInWhereItHoldsNone) {
  EngineLocal engine(files, path);
  engine.setStandIn(true);
  registered(engine, one);
  EXPECT_TRUE(engine.didRegister());
  EXPECT_EQ(newerThan(""), one.records);
}

}  // namespace
}  // namespace tarvo::test
