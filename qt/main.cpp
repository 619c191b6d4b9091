// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QObject>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <system_error>
#include <thread>

#include "platform/posix/instance_lock.h"
#include "platform/posix/process.h"
#include "platform/posix/running_applications.h"
#include "platform/posix/temporaries.h"
#include "platform/services/failure_text.h"
#include "platform/text/printable.h"
#include "qt/command_line.h"
#include "qt/guided_tour.h"
#include "qt/look/tarvo_style.h"
#include "qt/services/bus_probe.h"
#include "qt/services/single_instance.h"
#include "qt/shell.h"

namespace tarvo {
namespace {

enum Status { done = 0, failed = 1, misused = 2, locked = 3 };

int tell(Status status, const std::string& message) {
  std::cerr << "tarvo-manager: " << printable(message) << '\n';
  return status;
}

constexpr int tries = 50;  // to enter, while another start is coming up
constexpr std::chrono::milliseconds betweenTries(20);

BusIdentity identityOf(const CommandLine& line, const Locations& locations) {
  const auto real = [](const DiskPath& path) {
    std::error_code unknown;  // a path whose links cannot be followed stands for itself
    const std::string followed = std::filesystem::weakly_canonical(path.text(), unknown).string();
    return unknown ? path.text() : followed;
  };
  return {line.busName.value_or(defaultBusName), real(locations.home()), real(locations.root())};
}

// Takes the lock, or hands what this start is to do to the manager that has it: then the answer is the status to end
// with. A manager that is coming up has the lock before its name on the bus; a lock of the console tool is soon free.
std::optional<int> enter(std::optional<InstanceLock>& lock, const CommandLine& line, Product& product,
                         const BusIdentity& identity) {
  const UserPlace place = userPlace(product.files(), product.locations(), product.paths());
  for (int i = 0; i < tries; ++i) {
    lock.emplace(place.lock);
    if (lock->state() == InstanceLock::State::held) {
      sweepTemporaries(place.home, place.folders);
      return std::nullopt;
    }
    if (lock->state() == InstanceLock::State::noFile) {
      return tell(locked, place.lock.text() + ": " + textsToTell(line).localized("Refusal.LockIsNoFile"));
    }
    const Handover handover = line.tour ? Handover::noBus : handOverInTime(identity, {line.open, line.files});
    if (handover == Handover::done) return done;
    if (lock->state() == InstanceLock::State::unavailable) return std::nullopt;
    if (handover != Handover::nobody) break;
    std::this_thread::sleep_for(betweenTries);
  }
  return tell(locked, "the styles of this user are open in another program (it holds " + place.lock.text() + ")");
}

// As desktops and buses know it, and as people read it.
void nameApplication(const Texts& texts) {
  QApplication::setApplicationName(QStringLiteral("tarvo-manager"));
  QApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("com.wordhaven.TarvoManager"));
  QGuiApplication::setApplicationDisplayName(toQString(texts.localized("ApplicationName")));
}

int runManager(const CommandLine& line, int& argc, char** argv) {
  avoidHangingBus();
  Product product(line.product);
  if (!product.problem().empty()) return tell(misused, product.problem());
  if (const std::optional<Failure>& unread = product.unread())
    return tell(failed, failureText(*unread, textsToTell(line)));
  const BusIdentity identity = identityOf(line, product.locations());
  std::optional<InstanceLock> lock;
  if (const auto status = enter(lock, line, product, identity)) return *status;
  QApplication application(argc, argv);
  nameApplication(product.texts());
  applyLook(schemeFromEnvironment(), product.language());
  Shell shell(product, application, [&product] { return runningApplications(product.locations()); });
  if (line.open) shell.program().requests().eventText(*line.open);
  shell.openFiles(line.files);
  if (!line.tour) shell.listen(identity);
  std::optional<QObject> duringStart;
  if (line.tour) answerByDefault(duringStart.emplace());
  if (!shell.start()) return failed;
  duringStart.reset();
  if (line.tour) return takeGuidedTour(shell, *line.tour) ? done : failed;
  shell.run();
  return done;
}

// Help, the version, or words that cannot be understood.
std::optional<int> answerAtOnce(const CommandLine& line) {
  if (!line.help && !line.version && !line.error) return std::nullopt;
  if (line.version) {
    std::cout << "tarvo-manager " TARVO_VERSION "\n";
  } else if (line.help) {
    std::cout << helpOfCommandLine(textsToTell(line));
  } else {
    std::cerr << told(*line.error, "tarvo-manager", textsToTell(line)) << '\n';
    return misused;
  }
  return done;
}

}  // namespace
}  // namespace tarvo

int main(int argc, char** argv) {
  tarvo::failBeyondFileSizeLimit();
  const tarvo::CommandLine line = tarvo::readCommandLine({argv + 1, argv + argc});
  if (const auto status = tarvo::answerAtOnce(line)) return *status;
  const int status = tarvo::runManager(line, argc, argv);
  std::cout.flush();
  std::_Exit(status);  // everything is stored; the bus library would still wait for a bus that never answers
}
