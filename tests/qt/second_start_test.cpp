// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QThread>
#include <filesystem>
#include <memory>

#include "platform/plist/plist_reader.h"
#include "platform/plist/property_list.h"
#include "platform/posix/instance_lock.h"
#include "qt/services/bus_probe.h"
#include "tests/qt/hanging_bus.h"
#include "tests/qt/private_bus.h"
#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

// The built program, started more than once.
namespace tarvo {
namespace {

const QString name = "com.wordhaven.TarvoManager";
constexpr const char* codes[] = {"tMG8", "tQB8", "tTX8", "tGD8", "tTM8", "tNP8", "PPT3", "OPIM"};
constexpr const char* tags[] = {"MG", "QB", "TX", "GD", "TMA", "NP", "ADD", "MAIL"};

// A product of its own for each: a root and the home of its user.
struct SomeProduct {
  SomeProduct() {
    test::outputOf(test::quoted(TARVO_SOURCE_DIR "/sample/install") + " " + test::quoted(folder / "root"));
  }
  QString root() const { return QString::fromStdString(folder / "root"); }
  QString home() const { return root() + "/Users/taro"; }
  QStringList options() const { return {"--root", root(), "--home", home(), "--engine", "none"}; }
  std::string tool() const {
    const auto settings =
        readPropertyList(folder.read("root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist"));
    const std::string* tag =
        settings && settings->dictionary() ? settings->dictionary()->string("SMSelectedTag") : nullptr;
    return tag != nullptr ? *tag : std::string();
  }
  // Waits until that tool is stored, ten seconds at most.
  bool shows(const std::string& tag) const {
    for (int i = 0; i < 1000 && tool() != tag; ++i) QThread::msleep(10);
    return tool() == tag;
  }
  test::TemporaryFolder folder;
};

class Manager {
 public:
  explicit Manager(const QStringList& options) {
    process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process_.setProcessChannelMode(QProcess::MergedChannels);
    process_.start(TARVO_MANAGER, options);
    process_.waitForStarted();
  }
  ~Manager() {
    process_.kill();
    process_.waitForFinished();
  }
  bool isRunning() { return !process_.waitForFinished(1) && process_.state() == QProcess::Running; }

 private:
  QProcess process_;
};

class SecondStart : public testing::Test {
 protected:
  SecondStart() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    test::usePrivateBus();
  }
  ~SecondStart() override {
    manager_.reset();
    EXPECT_TRUE(test::waitForName(name, false));
  }
  void run(const QStringList& more = {}) {
    manager_ = std::make_unique<Manager>(product.options() + more);
    ASSERT_TRUE(test::waitForName(name, true));
  }
  test::Ran start(const QStringList& options) { return test::runProgram(TARVO_MANAGER, options); }

  SomeProduct product;
  std::unique_ptr<Manager> manager_;
};

TEST_F(SecondStart, otherProgramsSelectEachTool) {
  run();
  for (std::size_t i = 0; i < std::size(codes); ++i) {
    const test::Ran call = test::callManager("org.freedesktop.Application.ActivateAction",
                                             {"open-tool", QString("[<'%1'>]").arg(codes[i]), "{}"});
    EXPECT_EQ(call.out, "()\n") << call.err;
    EXPECT_TRUE(product.shows(tags[i])) << product.tool();
  }
}

TEST_F(SecondStart, handsItsRequestOverAndEnds) {
  run();
  ASSERT_TRUE(product.shows("MG"));
  const test::Ran second = start(product.options() + QStringList{"--open", "tGD8"});
  EXPECT_EQ(second.status, 0) << second.err;
  EXPECT_EQ(second.err, "");
  EXPECT_TRUE(product.shows("GD"));
  EXPECT_EQ(start(product.options()).status, 0);
  EXPECT_TRUE(manager_->isRunning());
}

TEST_F(SecondStart, theSamePlacesInOtherWordsAreTheSame) {
  run();
  const test::Ran second =
      start({"--root", product.root() + "/Users/..", "--home", product.home() + "/./", "--open", "tGD8"});
  EXPECT_EQ(second.status, 0) << second.err;
  EXPECT_TRUE(product.shows("GD"));
}

TEST_F(SecondStart, whileTheFirstIsComingUpLosesNothing) {
  manager_ = std::make_unique<Manager>(product.options());
  const DiskPath lock = product.folder.at("root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.lock");
  for (int i = 0; i < 5000 && InstanceLock(lock).state() == InstanceLock::State::held; ++i) QThread::msleep(1);
  const test::Ran second = start(product.options() + QStringList{"--open", "tGD8"});
  EXPECT_EQ(second.status, 0) << second.err;
  EXPECT_TRUE(product.shows("GD"));
}

TEST_F(SecondStart, forAnotherHomeIsAManagerOfItsOwn) {
  run();
  const SomeProduct other;
  const Manager second(other.options() + QStringList{"--open", "tGD8"});
  EXPECT_TRUE(other.shows("GD"));
  EXPECT_TRUE(product.shows("MG"));
}

TEST_F(SecondStart, forAnotherProductWithTheSameHomeIsLockedOut) {
  run();
  const test::Ran second = start({"--root", "/", "--home", product.home(), "--open", "tGD8"});
  EXPECT_EQ(second.status, 3);
  EXPECT_NE(second.err.find("open in another program"), std::string::npos) << second.err;
}

TEST_F(SecondStart, withoutABusIsLockedOut) {
  const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS");
  qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(product.folder.path()));
  qunsetenv("DBUS_SESSION_BUS_ADDRESS");
  manager_ = std::make_unique<Manager>(product.options() + QStringList{"--open", "tGD8"});
  EXPECT_TRUE(product.shows("GD"));
  EXPECT_EQ(start(product.options()).status, 3);
  qunsetenv("XDG_RUNTIME_DIR");
  qputenv("DBUS_SESSION_BUS_ADDRESS", address);
}

// With a bus that takes connections and says nothing, or lets callers in and answers no call.
class StartWithHangingBus : public testing::TestWithParam<bool> {
 protected:
  StartWithHangingBus() {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus.address());
  }
  ~StartWithHangingBus() override {
    qputenv("DBUS_SESSION_BUS_ADDRESS", address_);
    EXPECT_TRUE(bus.wasAsked());
  }
  SomeProduct product;
  test::HangingBus bus{GetParam()};

 private:
  QByteArray address_ = qgetenv("DBUS_SESSION_BUS_ADDRESS");
};

TEST_P(StartWithHangingBus, comesUpAndQuits) {
  qputenv("TARVO_PAINT_PROBE_FD", "1");
  qputenv("TARVO_PAINT_PROBE_QUIT", "1");
  const test::Ran run = test::runProgram(TARVO_PROBED_MANAGER, product.options());
  qunsetenv("TARVO_PAINT_PROBE_FD");
  qunsetenv("TARVO_PAINT_PROBE_QUIT");
  EXPECT_EQ(run.out, "first-paint\n");
  EXPECT_EQ(run.status, 0) << "-1: it does not end; " << run.err;
}

TEST_P(StartWithHangingBus, isLockedOutBesideAnother) {
  Manager first(product.options());
  ASSERT_TRUE(product.shows("MG"));
  const test::Ran second = test::runProgram(TARVO_MANAGER, product.options() + QStringList{"--open", "tGD8"});
  EXPECT_EQ(second.status, 3) << "-1: it does not end; " << second.err;
  EXPECT_TRUE(first.isRunning());
}

// The toolkit has its own use for the bus.
TEST_P(StartWithHangingBus, goesOnWithoutABusThatIsSilent) {
  avoidHangingBus();
  EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), GetParam() ? bus.address() : QByteArray("disabled:"));
}

INSTANTIATE_TEST_SUITE_P(Buses, StartWithHangingBus, testing::Bool(),
                         [](const auto& test) { return test.param ? "thatLetsIn" : "thatIsSilent"; });

TEST_F(SecondStart, leavesEveryOtherBusAlone) {
  const QByteArray real = qgetenv("DBUS_SESSION_BUS_ADDRESS");
  ASSERT_TRUE(real.startsWith("unix:path=")) << real.toStdString();
  for (const QByteArray& address :
       {real, QByteArray("unix:path=/nowhere/%e5%ae%b6,guid=1;unix:abstract=x"),
        QByteArray("unix:abstract=nobody-listens-here"), QByteArray("unix:"),
        QByteArray("unix:path=/" + QByteArray(200, 'x')), QByteArray("tcp:host=x,port=1")}) {
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    avoidHangingBus();
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), address);
  }
  qputenv("DBUS_SESSION_BUS_ADDRESS", real);
}

TEST_F(SecondStart, ofAHomeThatCannotBeLookedAtTellsSoAndEnds) {
  std::filesystem::create_symlink("home", product.folder / "home");
  const QString home = QString::fromStdString(product.folder / "home/taro");
  const test::Ran run = start({"--root", product.root(), "--home", home, "--engine", "none", "--tour",
                               QString::fromStdString(product.folder / "tour")});
  EXPECT_EQ(run.status, 1) << run.err;
}

TEST_F(SecondStart, ofNoneIsTheFirst) {
  manager_ = std::make_unique<Manager>(product.options() + QStringList{"--open", "tQB8"});
  EXPECT_TRUE(product.shows("QB"));
}

TEST_F(SecondStart, theBusStartsTheManagerForACall) {
  std::string command = "/usr/bin/env QT_QPA_PLATFORM=offscreen " + test::quoted(TARVO_MANAGER);
  for (const QString& option : product.options()) command += " " + test::quoted(option.toStdString());
  test::setManagerToStart(command);
  EXPECT_EQ(test::callManager("org.freedesktop.Application.ActivateAction", {"open-tool", "[<'tNP8'>]", "{}"}).out,
            "()\n");
  EXPECT_TRUE(product.shows("NP"));
  test::setManagerToStart("");

  const test::Ran owner = test::runProgram(
      "gdbus", {"call", "--session", "--dest", "org.freedesktop.DBus", "--object-path", "/org/freedesktop/DBus",
                "--method", "org.freedesktop.DBus.GetConnectionUnixProcessID", name});
  const int process = QString::fromStdString(owner.out).remove("(uint32 ").split(',').first().toInt();
  ASSERT_GT(process, 1) << owner.out << owner.err;
  ::kill(process, SIGKILL);
}

}  // namespace
}  // namespace tarvo
