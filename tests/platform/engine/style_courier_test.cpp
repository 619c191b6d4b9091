// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/style_courier.h"

#include <gtest/gtest.h>

#include <atomic>

#include "tests/platform/engine/set_delivery_fixture.h"

namespace tarvo::test {
namespace {

class StyleCourierTest : public SetDeliveryTest {
 protected:
  StyleCourier courier(const CourierTimes& times = {}) {
    return StyleCourier(std::unique_ptr<SetDelivery>(new SetDelivery(home())), times, [this] { ++heard; });
  }
  std::atomic<int> heard = 0;
};

TEST_F(StyleCourierTest, looksOnceAtFirst) {
  web.hold(payload(two, 5));
  StyleCourier courier = this->courier();
  courier.waitForAnswer(5s);
  const StyleCourier::Knowledge known = courier.known();
  EXPECT_TRUE(known.hasAnswered);
  EXPECT_TRUE(known.contact);
  EXPECT_EQ(known.view.stamp.text(), stampOf(two, 5));
  EXPECT_EQ(known.greatest, 5U);
  EXPECT_FALSE(known.isWaiting);
}

TEST_F(StyleCourierTest, handingOverNeverWaitsForAServerThatHangs) {
  web.instead = [](const SeenRequest&, int) { return Reply{200, {}, "x", Way::nothing}; };
  const auto began = std::chrono::steady_clock::now();
  {
    StyleCourier courier = this->courier();
    for (int i = 0; i < 100; ++i) courier.deliver(out(two));
    EXPECT_TRUE(courier.known().isWaiting);
    EXPECT_FALSE(courier.known().hasAnswered);
  }
  EXPECT_LT(std::chrono::steady_clock::now() - began, 10s) << "the end calls off what is under way";
}

TEST_F(StyleCourierTest, aBurstGoesOutAsTwo) {
  StyleCourier courier = this->courier();
  courier.waitForAnswer(5s);
  for (int i = 0; i < 10; ++i) courier.deliver(out(EncodedStyles({"edit " + std::to_string(i)})));
  courier.waitUntilDelivered(5s);
  EXPECT_EQ(heldNames(), std::vector<std::string>{"edit 9"});
  EXPECT_LE(web.counts["PUT"], 2);
  EXPECT_FALSE(courier.known().isWaiting);
}

TEST_F(StyleCourierTest, whatCouldNotBeDeliveredIsTriedAgainUntilItArrives) {
  web.instead = [this](const SeenRequest& request, int count) -> std::optional<Reply> {
    const bool fails = request.method == "PUT" && count <= 3;
    return fails ? std::optional(Reply{503, {}, "busy"}) : std::nullopt;
  };
  StyleCourier courier = this->courier({.contact = 5s, .between = 1ms, .again = {10ms, 20ms, 30ms, 40ms}});
  courier.deliver(out(one));
  courier.waitUntilDelivered(5s);
  ASSERT_TRUE(courier.known().delivered);
  EXPECT_FALSE(*courier.known().delivered) << "waiting ends with the first failure";
  for (int i = 0; i < 500 && courier.known().isWaiting; ++i) std::this_thread::sleep_for(10ms);
  EXPECT_TRUE(*courier.known().delivered);
  EXPECT_EQ(heldNames(), std::vector<std::string>{"E-mail"});
  EXPECT_EQ(web.counts["PUT"], 4);
}

TEST_F(StyleCourierTest, anEditAsksAServiceThatFailedAtOnce) {
  bool fails = true;
  web.instead = [&fails](const SeenRequest&, int) {
    return fails ? std::optional(Reply{503, {}, "busy"}) : std::nullopt;
  };
  StyleCourier courier = this->courier();
  courier.deliver(out(two));
  courier.waitUntilDelivered(5s);
  EXPECT_FALSE(courier.known().contact);
  fails = false;
  courier.deliver(out(one));
  courier.waitUntilDelivered(5s);
  EXPECT_TRUE(courier.known().contact);
  EXPECT_EQ(heldNames(), std::vector<std::string>{"E-mail"});
}

TEST_F(StyleCourierTest, aSetThatIsLeftAloneIsNotTriedAgain) {
  web.hold(payload(two, 5));
  StyleCourier courier = this->courier({.contact = 5s, .between = 1ms, .again = {1ms, 1ms, 1ms, 1ms}});
  OutgoingSet set = out(one);
  set.standsIn = true;
  courier.deliver(std::move(set));
  courier.waitUntilDelivered(5s);
  EXPECT_FALSE(courier.known().isWaiting);
  EXPECT_TRUE(courier.known().contact) << "the service was reached";
  ASSERT_TRUE(courier.known().delivered && !*courier.known().delivered);
  EXPECT_EQ(courier.known().delivered->error().cause, std::errc::file_exists);
}

TEST_F(StyleCourierTest, whatIsSharedIsKeptBeforeTheWaitEnds) {
  web.hold(payload(two, 5));
  {
    StyleCourier courier = this->courier();
    courier.waitForAnswer(5s);
    courier.settle({courier.known().view.stamp, EncodedSet(two.records)});
    courier.waitUntilDelivered(5s);
  }
  const BaseFile base(files, basePath(), server.address());
  EXPECT_TRUE(base.holding(SetStamp::parse(stampOf(two, 5))));
}

TEST_F(StyleCourierTest, eachAnswerIsTold) {
  StyleCourier courier = this->courier();
  courier.waitForAnswer(5s);
  courier.deliver(out(two));
  courier.waitUntilDelivered(5s);
  courier.stop();
  EXPECT_EQ(heard, 2);
}

TEST_F(StyleCourierTest, afterTheStopNothingIsSent) {
  StyleCourier courier = this->courier();
  courier.waitForAnswer(5s);
  courier.stop();
  EXPECT_TRUE(courier.isStopped());
  courier.deliver(out(two));
  courier.waitUntilDelivered(50ms);
  EXPECT_EQ(web.held, std::nullopt);
}

}  // namespace
}  // namespace tarvo::test
