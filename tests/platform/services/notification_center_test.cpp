// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/notification_center.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

class NotificationCenterTest : public testing::Test {
 protected:
  NotificationCenter::Observer note(const std::string& who) {
    return [this, who](const Notification& each) { heard += who + (each.hasObject ? "(" + each.object + ") " : " "); };
  }
  NotificationCenter center;
  std::string heard;
  int a = 0, b = 0;  // owners
};

TEST_F(NotificationCenterTest, deliversByNameInTheOrderOfRegistration) {
  center.addObserver(&a, "x", note("a"));
  center.addObserver(&b, "x", note("b"));
  center.addObserver(&a, "y", note("a'"));
  center.post("x");
  center.post("y", "style");
  center.post("y", "");
  center.post("z");
  EXPECT_EQ(heard, "a b a'(style) a'() ");
}

TEST_F(NotificationCenterTest, removesByOwnerAndByName) {
  center.addObserver(&a, "x", note("a"));
  center.addObserver(&a, "y", note("a'"));
  center.addObserver(&b, "x", note("b"));
  center.removeObserver(&a, "x");
  center.post("x");
  center.post("y");
  center.removeObserver(&a);
  center.post("y");
  EXPECT_EQ(heard, "b a' ");
}

TEST_F(NotificationCenterTest, whoIsRemovedDuringADeliveryHearsNoMoreOfIt) {
  center.addObserver(&a, "x", [this](const Notification&) {
    heard += "a ";
    center.removeObserver(&a);  // destroys this closure's registration while it runs
    center.removeObserver(&b);
    heard += "done ";
  });
  center.addObserver(&b, "x", note("b"));
  center.post("x");
  center.post("x");
  EXPECT_EQ(heard, "a done ");
}

TEST_F(NotificationCenterTest, whoIsAddedDuringADeliveryHearsTheNextOne) {
  center.addObserver(&a, "x", [this](const Notification&) {
    heard += "a ";
    for (int i = 0; i < 100; ++i) center.addObserver(&b, i == 0 ? "x" : "y", note("b"));
  });
  center.post("x");
  EXPECT_EQ(heard, "a ");
  center.removeObserver(&a);
  center.post("x");
  EXPECT_EQ(heard, "a b ");
}

TEST_F(NotificationCenterTest, postsNestAndAreToldBeforeTheirObservers) {
  center.onPost = [this](const Notification& each) { heard += "post:" + each.name + " "; };
  center.addObserver(&a, "x", [this](const Notification&) {
    center.post("y");
    heard += "x ";
  });
  center.addObserver(&b, "y", note("y"));
  center.post("x");
  EXPECT_EQ(heard, "post:x post:y y x ");
}

}  // namespace
}  // namespace tarvo
