// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/platform/engine/set_delivery_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(SetDeliveryTest, locksAreTakenUsedAndGivenBack) {
  web.locks = true;
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(two))) << "the empty file that the lock made is nothing";
  EXPECT_EQ(web.held, payload(two, 1));
  EXPECT_EQ(server.methods(), (Methods{"LOCK", "GET", "PUT", "GET", "UNLOCK"}));
  EXPECT_EQ(server.requests()[2].header("if"), "(<opaquelocktoken:1234>)");
  EXPECT_EQ(server.requests()[2].header("if-none-match"), "");
  EXPECT_EQ(server.requests()[4].header("lock-token"), "<opaquelocktoken:1234>");
  EXPECT_EQ(web.lockToken, "");
}

TEST_F(SetDeliveryTest, whereThereAreNoLocksAFolderIsOne) {
  web.folders = true;
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(two)));
  EXPECT_EQ(server.methods(), (Methods{"LOCK", "MKCOL", "PUT", "GET", "PUT", "GET", "DELETE"}));
  EXPECT_EQ(server.requests()[1].path, "/styles.plist.lock/");
  EXPECT_FALSE(web.isFolderThere);
}

TEST_F(SetDeliveryTest, whileAnotherHasTheFolderItWaits) {
  web.folders = web.isFolderThere = true;
  web.hold(payload(two, 3));
  web.afterwards = [this](const SeenRequest& request, int count) {
    if (request.method == "MKCOL" && count == 3) web.isFolderThere = false;
  };
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(one)));
  EXPECT_EQ(web.counts["MKCOL"], 4);
  EXPECT_EQ(web.held, payload(one, 4));
}

TEST_F(SetDeliveryTest, aFolderThatItsMakerLeftBehindIsRemoved) {
  web.folders = web.isFolderThere = true;
  web.hold(payload(two, 3));
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(one), 10s));
  EXPECT_EQ(web.held, payload(one, 4));
  EXPECT_FALSE(web.isFolderThere);
}

TEST_F(SetDeliveryTest, aFolderThatOthersTakeInTurnIsNotRemoved) {
  web.folders = web.isFolderThere = true;
  web.hold(payload(two, 3));
  web.afterwards = [this](const SeenRequest&, int count) { web.owner = std::to_string(count); };
  SetDelivery home = this->home();
  EXPECT_FALSE(deliver(home, out(one), 4s));
  EXPECT_TRUE(web.isFolderThere);
  EXPECT_EQ(web.held, payload(two, 3));
}

TEST_F(SetDeliveryTest, whenTheLockIsTakenItWaits) {
  web.locks = web.isLockedByAnother = true;
  web.hold(payload(two, 3));
  web.afterwards = [this](const SeenRequest& request, int count) {
    if (request.method == "LOCK" && count == 3) web.isLockedByAnother = false;
  };
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, out(one)));
  EXPECT_EQ(web.held, payload(one, 4));
  EXPECT_EQ(server.methods(), (Methods{"LOCK", "LOCK", "LOCK", "LOCK", "GET", "PUT", "GET", "UNLOCK"}));
}

TEST_F(SetDeliveryTest, aLockThatStaysIsGivenUpAndTheSetIsLeftAlone) {
  web.locks = web.isLockedByAnother = true;
  web.hold(payload(two, 3));
  SetDelivery home = this->home();
  EXPECT_FALSE(deliver(home, out(one), 200ms));
  EXPECT_EQ(web.held, payload(two, 3));
}

TEST_F(SetDeliveryTest, aRaceThatTheServerNoticesIsJoinedWithTheFreshSet) {
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, joining(two)));
  web.counts.clear();
  web.afterwards = [this](const SeenRequest& request, int count) {
    if (request.method == "GET" && count == 1) web.hold(payload(EncodedStyles({"標準", "特許", "theirs"}), 7));
  };
  EXPECT_TRUE(deliver(home, joining(EncodedStyles({"標準", "特許", "mine"}))));
  EXPECT_EQ(heldNames(), (std::vector<std::string>{"標準", "特許", "mine", "theirs"}));
}

TEST_F(SetDeliveryTest, aRaceThatNobodyNoticesIsSeenAfterwardsAndJoined) {
  web.conditions = false;
  web.tags = StyleServer::Tags::same;
  SetDelivery home = this->home();
  EXPECT_TRUE(deliver(home, joining(two)));
  web.counts.clear();
  web.afterwards = [this](const SeenRequest& request, int count) {
    if (request.method == "PUT" && count == 1) web.hold(payload(EncodedStyles({"標準", "特許", "theirs"}), 2));
  };
  EXPECT_TRUE(deliver(home, joining(EncodedStyles({"標準", "特許", "mine"}))));
  EXPECT_EQ(heldNames(), (std::vector<std::string>{"標準", "特許", "mine", "theirs"}));
}

TEST_F(SetDeliveryTest, aSetThatTheServerCutsIsStoredAgain) {
  web.instead = [this](const SeenRequest& request, int count) -> std::optional<Reply> {
    if (request.method != "PUT" || count != 1) return std::nullopt;
    web.hold(request.body.substr(0, request.body.size() - 1));
    return Reply{204, {}, ""};
  };
  for (const bool ranges : {true, false}) {
    web.ranges = ranges;
    web.counts.clear();
    web.held.reset();
    SetDelivery home = this->home();
    EXPECT_TRUE(deliver(home, out(one)));
    EXPECT_EQ(web.held, payload(one, 2));
  }
}

}  // namespace
}  // namespace tarvo::test
