// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QWidget>
#include <filesystem>
#include <iostream>
#include <stdexcept>

#include "platform/services/notification_center.h"
#include "qt/look/tarvo_style.h"
#include "qt/shell.h"
#include "tests/bench/bare_replace.h"
#include "tests/bench/changed_files.h"
#include "tests/bench/timing.h"

// How long another program's request takes until its tool is shown: request_bench ROOT HOME FLOOR COUNT
// From the start of "gdbus call" until the pane with the tool's icon is painted, by turns with a floor: a call that the
// bus answers itself, then bare replaces of the same files below the folder FLOOR. Wants a session bus. Prints medians
// in milliseconds and the number of files: "REQUEST FLOOR FILES".
namespace {

using namespace tarvo;

constexpr char name[] = "com.wordhaven.TarvoManager.Bench";

QStringList callOf(const QString& destination, const QString& object, const QString& method, const QStringList& more) {
  return QStringList{"call", "--session", "--dest", destination, "--object-path", object, "--method", method} + more;
}

// The event loop runs until it ends.
void runCall(const QStringList& words) {
  QProcess call;
  QEventLoop loop;
  QObject::connect(&call, &QProcess::finished, &loop, &QEventLoop::quit);
  call.start("gdbus", words);
  loop.exec();
  if (call.exitCode() != 0) throw std::runtime_error(call.readAllStandardError().toStdString());
}

class RequestBench {
 public:
  RequestBench(Shell& shell, std::string root, std::string floor)
      : shell_(shell), root_(std::move(root)), floor_(std::move(floor)) {
    shell.program().notifications().addObserver(this, "ChangeToolbar", [this](const Notification&) {
      QApplication::processEvents();
      shell_.registry().find<QWidget>("style.toolIcon")->repaint();
      shown_ = static_cast<double>(since_.nsecsElapsed()) / 1e6;
    });
  }
  ~RequestBench() { shell_.program().notifications().removeObserver(this); }

  void alternate() {
    const auto before = fileIdentities(root_);
    const QString parameter = QStringLiteral("[<'%1'>]").arg(isOther_ ? "tQB8" : "tTX8");
    isOther_ = !isOther_;
    shown_ = -1;
    since_.start();
    runCall(callOf(name, busObjectPath, "org.freedesktop.Application.ActivateAction", {"open-tool", parameter, "{}"}));
    while (shown_ < 0) QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    requests_.push_back(shown_);
    writeFloor(changedFiles(before, fileIdentities(root_)));
  }

  void forget() {
    requests_.clear();
    floors_.clear();
  }
  void print() const { std::cout << median(requests_) << ' ' << median(floors_) << ' ' << files_ << '\n'; }

 private:
  void writeFloor(const std::vector<std::string>& files) {
    if (files.empty()) throw std::runtime_error("the request replaced no file");
    files_ = files.size();
    std::vector<std::string> contents;
    for (const std::string& file : files) {
      contents.push_back(readWholeFile(file));
      std::filesystem::create_directories(std::filesystem::path(floor_ + file).parent_path());
    }
    floors_.push_back(milliseconds([&] {
      runCall(callOf("org.freedesktop.DBus", "/", "org.freedesktop.DBus.Peer.Ping", {}));
      for (std::size_t i = 0; i < files.size(); ++i) bareReplace(floor_ + files[i], contents[i]);
    }));
  }

  Shell& shell_;
  std::string root_, floor_;
  QElapsedTimer since_;
  double shown_ = -1;
  bool isOther_ = false;
  Times requests_, floors_;
  std::size_t files_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 5) return 2;
  Product product(ProductOptions{.root = argv[1], .home = argv[2], .language = "en", .engine = "none"});
  QApplication application(argc, argv);
  applyLook(Scheme::light, product.language());
  Shell shell(product, application, [] { return std::vector<tarvo::ProductPath>(); });
  shell.listen({name, argv[2], argv[1]});
  if (!shell.start()) return 1;
  int status = 0;
  QMetaObject::invokeMethod(
      &application,
      [&] {
        try {
          RequestBench bench(shell, argv[1], argv[3]);
          for (int i = 0; i < 3; ++i) bench.alternate();
          bench.forget();
          for (int i = std::stoi(argv[4]); i > 0; --i) bench.alternate();
          bench.print();
        } catch (const std::exception& error) {
          std::cerr << "request_bench: " << error.what() << '\n';
          status = 1;
        }
        shell.program().quit();
      },
      Qt::QueuedConnection);
  shell.run();
  return status;
}
