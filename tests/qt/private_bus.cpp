// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/qt/private_bus.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QProcess>
#include <QThread>
#include <optional>

#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

constexpr const char* configuration =
    R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <servicedir>%1</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
  <limit name="max_replies_per_connection">50000</limit>
</busconfig>
)";

// The bus library remembers the first address that it was told: one bus serves all tests of the program.
class BusEnvironment : public testing::Environment {
 public:
  void start() {
    if (bus_) return;
    folder_.emplace();
    folder_->makeFolder("services");
    folder_->write("bus.conf", QString(configuration).arg(QString::fromStdString(*folder_ / "services")).toStdString());
    bus_.emplace();
    bus_->setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    bus_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    bus_->start("dbus-daemon", {"--config-file=" + QString::fromStdString(*folder_ / "bus.conf"), "--nofork",
                                "--nopidfile", "--print-address"});
    bus_->waitForReadyRead();
    qputenv("DBUS_SESSION_BUS_ADDRESS", bus_->readLine().trimmed());
  }

  void setManagerToStart(const std::string& command) {
    start();
    const std::string service = "services/com.wordhaven.TarvoManager.service";
    folder_->write(service, command.empty()
                                ? std::string()
                                : "[D-BUS Service]\nName=com.wordhaven.TarvoManager\nExec=" + command + "\n");
    QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                                      "org.freedesktop.DBus", "ReloadConfig"));
  }

  void TearDown() override {
    if (!bus_) return;
    bus_->terminate();
    bus_->waitForFinished();
    bus_.reset();
    folder_.reset();
  }

 private:
  std::optional<TemporaryFolder> folder_;
  std::optional<QProcess> bus_;
};

auto* const environment = static_cast<BusEnvironment*>(testing::AddGlobalTestEnvironment(new BusEnvironment));

}  // namespace

void usePrivateBus() { environment->start(); }

void setManagerToStart(const std::string& command) { environment->setManagerToStart(command); }

Ran runProgram(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  const bool isOver = process.waitForFinished();
  return {isOver && process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
          process.readAllStandardOutput().toStdString(), process.readAllStandardError().toStdString()};
}

Ran callManager(const QString& method, const QStringList& arguments, const QString& name) {
  return runProgram("gdbus", QStringList{"call", "--session", "--dest", name, "--object-path",
                                         "/com/wordhaven/TarvoManager", "--method", method} +
                                 arguments);
}

bool waitForName(const QString& name, bool isTaken) {
  for (int i = 0; i < 1000; ++i) {
    if (QDBusConnection::sessionBus().interface()->isServiceRegistered(name) == isTaken) return true;
    QThread::msleep(10);
  }
  return false;
}

}  // namespace tarvo::test
