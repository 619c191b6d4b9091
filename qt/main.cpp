// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <iostream>

#include "platform/posix/instance_lock.h"
#include "platform/posix/running_applications.h"
#include "qt/command_line.h"
#include "qt/guided_tour.h"
#include "qt/look/tarvo_style.h"
#include "qt/shell.h"

namespace tarvo {
namespace {

enum Status { done = 0, failed = 1, misused = 2, locked = 3 };

int tell(Status status, const std::string& message) {
  std::cerr << "tarvo-manager: " << message << '\n';
  return status;
}

int runManager(const CommandLine& line, int& argc, char** argv) {
  Product product(line.product);
  if (!product.problem().empty()) return tell(misused, product.problem());
  const std::string lockFile = product.locations().resolve(lockPath(product.locations()));
  const InstanceLock lock(lockFile);
  if (lock.state() == InstanceLock::State::heldByAnother) {
    return tell(locked, "the styles of this user are open in another program (it holds " + lockFile + ")");
  }
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("tarvo-manager"));
  QApplication::setApplicationVersion(QStringLiteral(TARVO_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("com.wordhaven.TarvoManager"));
  QGuiApplication::setApplicationDisplayName(toQString(product.texts().localized("ApplicationName")));
  applyLook(application, schemeFromEnvironment(), product.language());
  Shell shell(product, application, [&product] { return runningApplications(product.locations()); });
  if (line.tour) answerByDefault(application);
  if (!shell.start()) return failed;
  if (line.tour) return takeGuidedTour(shell, product, *line.tour) ? done : failed;
  shell.run();
  return done;
}

}  // namespace
}  // namespace tarvo

int main(int argc, char** argv) {
  const tarvo::CommandLine line = tarvo::readCommandLine({argv + 1, argv + argc});
  if (!line.problem.empty()) return tarvo::tell(tarvo::misused, line.problem + "\n" + tarvo::usage());
  if (line.help || line.version) {
    std::cout << (line.help ? tarvo::usage() : std::string("tarvo-manager " TARVO_VERSION "\n"));
    return tarvo::done;
  }
  return tarvo::runManager(line, argc, argv);
}
