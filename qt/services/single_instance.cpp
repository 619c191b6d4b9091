// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/single_instance.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QVariant>
#include <utility>

namespace tarvo {
namespace {

constexpr int patience = 2000;  // ms for each answer, and for all of them
constexpr char connectionName[] = "second start";

// The manager that has the name, as this start calls it.
class RunningManager {
 public:
  explicit RunningManager(const std::string& name)
      : bus_(QDBusConnection::connectToBus(QDBusConnection::SessionBus, QLatin1String(connectionName))),
        name_(QString::fromStdString(name)) {}
  ~RunningManager() { QDBusConnection::disconnectFromBus(QLatin1String(connectionName)); }
  RunningManager(const RunningManager&) = delete;
  RunningManager& operator=(const RunningManager&) = delete;

  bool isConnected() const { return bus_.isConnected(); }

  QDBusMessage ask(const char* interface, const char* method, const QVariantList& arguments) {
    QDBusMessage call = QDBusMessage::createMethodCall(name_, QLatin1String(busObjectPath), QLatin1String(interface),
                                                       QLatin1String(method));
    call.setArguments(arguments);
    call.setAutoStartService(false);  // this start is the one that becomes the manager
    return bus_.call(call, QDBus::Block, patience);
  }

  // Nothing when nobody has the name.
  std::optional<std::string> property(const char* name) {
    const QDBusMessage answer =
        ask("org.freedesktop.DBus.Properties", "Get", {QLatin1String(managerInterface), QString::fromLatin1(name)});
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) return std::nullopt;
    return answer.arguments().first().value<QDBusVariant>().variant().toString().toStdString();
  }

 private:
  QDBusConnection bus_;
  QString name_;
};

// What lets the running window come to the front of this start's place.
QVariantMap desktopData() {
  QVariantMap data;
  const auto pass = [&data](const char* variable, const char* key) {
    const QString value = qEnvironmentVariable(variable);
    if (!value.isEmpty()) data.insert(QString::fromLatin1(key), value);
  };
  pass("XDG_ACTIVATION_TOKEN", "activation-token");
  pass("DESKTOP_STARTUP_ID", "desktop-startup-id");
  return data;
}

bool sendAll(RunningManager& manager, const StartRequest& request) {
  const QVariantMap data = desktopData();
  const auto send = [&manager](const char* method, const QVariantList& arguments) {
    return manager.ask(applicationInterface, method, arguments).type() == QDBusMessage::ReplyMessage;
  };
  bool isTaken = true;
  if (request.code) {
    const QVariantList parameter{QString::fromStdString(*request.code)};
    isTaken = send("ActivateAction", {QString::fromLatin1(openToolAction), QVariant(parameter), data});
  }
  if (!request.files.empty()) {
    QStringList addresses;
    for (const std::string& path : request.files) addresses << fileAddress(path);
    isTaken = send("Open", {addresses, data}) && isTaken;
  }
  if (!request.code && request.files.empty()) isTaken = send("Activate", {data});
  return isTaken;
}

}  // namespace

Handover handOver(const BusIdentity& identity, const StartRequest& request) {
  if (identity.name == "none" || !hasSessionBus()) return Handover::noBus;
  RunningManager manager(identity.name);
  if (!manager.isConnected()) return Handover::noBus;
  const std::optional<std::string> home = manager.property("Home"), root = manager.property("Root");
  if (!home || !root) return Handover::nobody;
  if (*home != identity.home || *root != identity.root) return Handover::stranger;
  return sendAll(manager, request) ? Handover::done : Handover::nobody;
}

// The child takes everything that it uses along and is gone before this call returns.
Handover handOverInTime(const BusIdentity& identity, const StartRequest& request) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return Handover::noBus;
  const pid_t child = fork();
  if (child == 0) {
    int none = 0;
    const QCoreApplication application(none, nullptr);
    const Handover answer = handOver(identity, request);
    _exit(write(ends[1], &answer, sizeof answer) == sizeof answer ? 0 : 1);
  }
  close(ends[1]);
  Handover answer = Handover::noBus;  // also of a bus that does not answer
  pollfd answered{ends[0], POLLIN, 0};
  if (child > 0 && poll(&answered, 1, patience) > 0) {
    Handover told{};
    if (read(ends[0], &told, sizeof told) == sizeof told) answer = told;
  }
  close(ends[0]);
  if (child > 0) {
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
  }
  return answer;
}

}  // namespace tarvo
