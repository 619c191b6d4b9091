// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QEventLoop>
#include <QTimer>
#include <optional>

#include "qt/services/bus_service.h"
#include "qt/services/single_instance.h"
#include "tests/qt/private_bus.h"

// The service alone, between real callers and a list of what arrived.
namespace tarvo {
namespace {

constexpr char name[] = "com.wordhaven.TarvoManager";
constexpr char openTool[] = "org.freedesktop.Application.ActivateAction";
constexpr char open[] = "org.freedesktop.Application.Open";
constexpr char event[] = "com.wordhaven.TarvoManager1.HandleEvent";

class Bus : public testing::Test {
 protected:
  Bus() { test::usePrivateBus(); }
  ~Bus() override {
    service_.reset();
    EXPECT_TRUE(test::waitForName(name, false));
  }

  void serve(const BusIdentity& identity = {name, "/家 1", "/root"}) {
    BusRequests requests;
    requests.activate = [this](const std::string& token, const RequestPlace& place) {
      arrived += "activate " + token + "\n";
      if (isHolding) held.push_back(place);
    };
    requests.openFiles = [this](const std::vector<std::string>& paths, const RequestPlace&) {
      arrived += "open";
      for (const std::string& path : paths) arrived += " " + path;
      arrived += "\n";
    };
    requests.openTool = [this](const std::string& code, const RequestPlace&) { arrived += "tool " + code + "\n"; };
    requests.handleEvent = [this](const std::optional<std::string>& bytes, const RequestPlace&) {
      arrived += bytes ? "event " + *bytes + "\n" : "no item\n";
    };
    service_.emplace(identity, std::move(requests));
    ASSERT_TRUE(test::waitForName(name, true));
  }

  static void settle() {
    QEventLoop loop;
    QTimer::singleShot(20, &loop, &QEventLoop::quit);
    loop.exec();
  }

  // What a call leads to.
  std::string after(const QString& method, const QStringList& arguments) {
    const test::Ran call = test::callManager(method, arguments);
    EXPECT_EQ(call.out, "()\n") << call.err;
    EXPECT_EQ(arrived, "") << "a call is answered before its request is handled";
    settle();
    return std::exchange(arrived, {});
  }

  // Calls that many times and has as many answers, errors by their names.
  static std::vector<std::string> answersOf(int first, int count) {
    std::vector<QDBusPendingCall> calls;
    for (int i = first; i < first + count; ++i) {
      QDBusMessage call = QDBusMessage::createMethodCall(name, busObjectPath, applicationInterface, "ActivateAction");
      call << "open-tool" << QVariant(QVariantList{QString::number(i)}) << QVariantMap();
      calls.push_back(QDBusConnection::sessionBus().asyncCall(call));
    }
    std::vector<std::string> answers;
    for (QDBusPendingCall& call : calls) {
      call.waitForFinished();
      answers.push_back(call.isError() ? call.error().name().toStdString() : "done");
    }
    return answers;
  }

  std::string arrived;
  std::vector<RequestPlace> held;  // of requests that are not handled yet
  bool isHolding = false;

 private:
  std::optional<BusService> service_;
};

TEST_F(Bus, callsBecomeRequests) {
  serve();
  EXPECT_EQ(after("org.freedesktop.Application.Activate", {"{'activation-token': <'t1'>}"}), "activate t1\n");
  EXPECT_EQ(after(openTool, {"open-tool", "[<'tQB8'>]", "{}"}), "activate \ntool tQB8\n");
  EXPECT_EQ(after(open, {"['file:///a%20b/%E6%97%A5.whstyle']", "{}"}), "activate \nopen /a b/日.whstyle\n");
  EXPECT_EQ(after(open, {"['file:///1', 'file://localhost/2', '/3']", "{}"}), "activate \nopen /1 /2 /3\n");
  EXPECT_EQ(after(open, {"@as []", "{}"}), "activate \n");
}

TEST_F(Bus, rawRequestsArriveByteByByte) {
  serve();
  using namespace std::string_literals;
  EXPECT_EQ(after(event, {"[[byte 0x74, 0, 0xff, 0xfe]]"}), "activate \nevent t\0\xff\xfe\n"s);
  EXPECT_EQ(after(event, {"[b'tQB8', b'more']"}), "activate \nevent tQB8\0\n"s);  // gdbus ends such texts with a zero
  EXPECT_EQ(after(event, {"[@ay []]"}), "activate \nevent \n");
  EXPECT_EQ(after(event, {"@aay []"}), "activate \nno item\n");
}

TEST_F(Bus, whatTheManagerDoesNotHaveIsAnError) {
  serve();
  const std::pair<const char*, QStringList> calls[] = {{openTool, {"close-tool", "[<'tQB8'>]", "{}"}},
                                                       {openTool, {"open-tool", "[<8>]", "{}"}},
                                                       {openTool, {"open-tool", "@av []", "{}"}},
                                                       {open, {"['http://example.invalid/x.whstyle']", "{}"}},
                                                       {open, {"['/a.whstyle', 'b.whstyle']", "{}"}}};
  for (const auto& [method, arguments] : calls) {
    const test::Ran call = test::callManager(method, arguments);
    EXPECT_EQ(call.status, 1) << method << call.out;
    EXPECT_NE(call.err.find("InvalidArgs"), std::string::npos) << call.err;
  }
  settle();
  EXPECT_EQ(arrived, "");
}

TEST_F(Bus, describesItselfToTools) {
  serve();
  const test::Ran told =
      test::runProgram("gdbus", {"introspect", "--session", "--dest", name, "--object-path", busObjectPath});
  EXPECT_EQ(told.status, 0) << told.err;
  for (const char* line :
       {"interface org.freedesktop.Application", "Activate(in  a{sv} platform_data)", "Open(in  as uris",
        "ActivateAction(in  s action_name", "in  av parameter", "interface com.wordhaven.TarvoManager1",
        "HandleEvent(in  aay items)", "readonly s Home = '/家 1'", "readonly s Root = '/root'"}) {
    EXPECT_NE(told.out.find(line), std::string::npos) << line << "\n" << told.out;
  }
}

TEST_F(Bus, aThousandRequestsArriveInTheirOrder) {
  serve();
  std::string expected;
  for (int i = 0; i < 1000; i += 50) {
    EXPECT_EQ(answersOf(i, 50), std::vector<std::string>(50, "done"));
    for (int each = i; each < i + 50; ++each) expected += "activate \ntool " + std::to_string(each) + "\n";
    for (int rounds = 0; rounds < 500 && arrived.size() < expected.size(); ++rounds) settle();
  }
  EXPECT_EQ(arrived, expected);
}

TEST_F(Bus, theSixtyFifthRequestThatWaitsIsRefusedAndNoneIsLost) {
  serve();
  isHolding = true;
  EXPECT_EQ(answersOf(0, 64), std::vector<std::string>(64, "done"));
  EXPECT_EQ(answersOf(64, 2), std::vector<std::string>(2, "com.wordhaven.TarvoManager1.Error.Busy"));
  std::string expected;
  for (int i = 0; i < 64; ++i) expected += "activate \ntool " + std::to_string(i) + "\n";
  for (int rounds = 0; rounds < 500 && held.size() < 64; ++rounds) settle();
  EXPECT_EQ(arrived, expected);
  EXPECT_EQ(answersOf(66, 1).front(), "com.wordhaven.TarvoManager1.Error.Busy") << "taken up, and still not handled";
  held.pop_back();
  EXPECT_EQ(answersOf(67, 1).front(), "done");
  EXPECT_EQ(answersOf(68, 1).front(), "com.wordhaven.TarvoManager1.Error.Busy");
}

TEST_F(Bus, aSecondOneGoesWithoutTheName) {
  serve();
  std::string others;
  {
    const BusService second({name, "/other", "/root"},
                            {.activate = [&](const std::string&, const RequestPlace&) { others += "!"; }});
    settle();
    EXPECT_EQ(after("org.freedesktop.Application.Activate", {"{}"}), "activate \n");
  }
  EXPECT_EQ(others, "");
  EXPECT_EQ(after("org.freedesktop.Application.Activate", {"{}"}), "activate \n");
}

TEST_F(Bus, nothingIsServedUnderTheNameNone) {
  const BusService service({"none", "/h", "/"}, {});
  settle();
  EXPECT_EQ(test::callManager("org.freedesktop.Application.Activate", {"{}"}).status, 1);
}

TEST_F(Bus, aStartHandsItsRequestOver) {
  serve();
  const BusIdentity same{name, "/家 1", "/root"};
  EXPECT_EQ(handOver(same, {}), Handover::done);
  EXPECT_EQ(handOver(same, {.code = "tGD8"}), Handover::done);
  EXPECT_EQ(handOver(same, {.files = {"/a %41/日\xff.whstyle"}}), Handover::done);
  settle();
  EXPECT_EQ(arrived, "activate \nactivate \ntool tGD8\nactivate \nopen /a %41/日\xff.whstyle\n");
}

TEST_F(Bus, aStartForAnotherHomeOrProductHandsNothingOver) {
  serve();
  EXPECT_EQ(handOver({name, "/家 2", "/root"}, {.code = "tGD8"}), Handover::stranger);
  EXPECT_EQ(handOver({name, "/家 1", "/"}, {.code = "tGD8"}), Handover::stranger);
  EXPECT_EQ(handOver({"com.example.Nobody", "/家 1", "/root"}, {.code = "tGD8"}), Handover::nobody);
  EXPECT_EQ(handOver({"none", "/家 1", "/root"}, {.code = "tGD8"}), Handover::noBus);
  settle();
  EXPECT_EQ(arrived, "");
}

TEST_F(Bus, thereIsNoneWithoutAnAddress) {
  const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS"), runtime = qgetenv("XDG_RUNTIME_DIR");
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  qputenv("XDG_RUNTIME_DIR", "/nowhere");
  EXPECT_FALSE(hasSessionBus());
  EXPECT_EQ(handOver({name, "/h", "/"}, {}), Handover::noBus);
  {
    const BusService service({name, "/h", "/"}, {});
  }
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
  runtime.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", runtime);
  EXPECT_TRUE(hasSessionBus());
}

}  // namespace
}  // namespace tarvo
