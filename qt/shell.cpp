// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/shell.h"

#include <QApplication>
#include <QDialog>
#include <QLibraryInfo>
#include <QTimer>
#include <QTranslator>
#include <chrono>
#include <utility>

#include "app/t_manager_controller.h"
#include "platform/services/engine.h"
#include "qt/dialogs.h"
#include "qt/panes/mail_pane.h"
#include "qt/panes/office_pane.h"
#include "qt/panes/style_pane.h"
#include "qt/services/first_paint.h"
#include "qt/services/held_input.h"
#include "qt/window/main_window.h"
#include "qt/window/toolbar_customise.h"

namespace tarvo {

namespace {

constexpr std::chrono::minutes endOfSession(2);  // longer than desktops wait for their programs

}  // namespace

std::vector<PageBuilder> paneBuilders(Interface& interface, Binder& binder) {
  using Build = QWidget* (*)(Interface&, Binder&, QWidget*);
  std::vector<PageBuilder> builders;
  for (const Build build : {buildStylePane, buildOfficePane, buildMailPane}) {
    builders.emplace_back([&interface, &binder, build](QWidget* parent) { return build(interface, binder, parent); });
  }
  return builders;
}

Shell::Shell(Product& product, QApplication& application, std::function<std::vector<ProductPath>()> running)
    : product_(product),
      application_(application),
      engine_(product.makeEngine(product.files())),
      panels_({[this](Window& window) { return windows_.widgetOf(window); },
               [this](QDialog& sheet, Window& host) { windows_.hang(sheet, host); },
               product.texts().localized("Alert.details")}),
      workspace_({product.files(), product.paths()}, std::move(running)),
      program_(product.services(product.files(), *engine_, runLoop_, panels_, windows_, workspace_)),
      binder_(product.texts(), product.bundle(), schemeFromEnvironment()) {
  QApplication::setQuitOnLastWindowClosed(false);  // closing the window asks the program, which alone ends the loop
}

Shell::~Shell() {
  bus_.reset();
  program_.requests().bringForward = nullptr;
  program_.manager().customizeToolbar = nullptr;
  windows_.close();
}

bool Shell::start() {
  if (!program_.construct()) return false;
  windows_.open(program_.interface(), program_.windows(), binder_, paneBuilders(program_.interface(), binder_));
  addDialogs(windows_, program_.interface(), binder_);
  windows_.mainWindow()->styleFilesDropped = [this](const std::vector<std::string>& paths) { openFiles(paths); };
  program_.requests().bringForward = [this] { windows_.bringForward(); };
  QObject::connect(&application_, &QGuiApplication::applicationStateChanged, windows_.mainWindow(), [this](auto state) {
    if (state == Qt::ApplicationActive) program_.rooms().news.look();
  });
  program_.manager().customizeToolbar = [this] {
    program_.windows().covers().whenFree(program_.interface().manager.myWindow, [this] { customizeToolbar(); });
  };
  if (!program_.load()) return false;
  afterFirstPaint(*windows_.mainWindow(), [this] { finishLater(); });
  program_.didShow = [this] {
    waitForFirstPaint(*windows_.mainWindow());
    serveWithoutInput([this] { return program_.isTerminated() || !engine_->isAsking(); }, Engine::launchPatience);
  };
  program_.launch();
  return true;
}

void Shell::listen(const BusIdentity& identity) {
  RequestQueue& requests = program_.requests();
  bus_.emplace(identity,
               BusRequests{[&requests](const std::string& token, const RequestPlace& place) {
                             if (!token.empty()) qputenv("XDG_ACTIVATION_TOKEN", token.c_str());
                             requests.activate(place);
                           },
                           [this](const auto& paths, const auto& place) { openFiles(paths, place); },
                           [&requests](const auto& code, const auto& place) { requests.eventText(code, place); },
                           [&requests](const auto& bytes, const auto& place) { requests.event(bytes, place); },
                           requests.places()});
}

void Shell::openFiles(const std::vector<std::string>& paths, RequestPlace place) {
  if (paths.empty()) return;
  program_.requests().openStyleFile(DiskPath(paths.front()), std::move(place));
  if (paths.size() > 1) panels_.beep();
}

void Shell::run() {
  if (program_.isTerminated()) return;
  program_.didTerminate = [] { QApplication::exit(); };
  program_.hasUser = true;
  for (const auto request : {&QGuiApplication::commitDataRequest, &QGuiApplication::saveStateRequest}) {
    QObject::connect(&application_, request, windows_.mainWindow(), [this] { sessionEnds(); });
  }
  QApplication::exec();
  engine_->waitUntilSent(Engine::quitPatience);
}

void Shell::sessionEnds() {
  program_.hasUser = false;
  QTimer::singleShot(endOfSession, windows_.mainWindow(), [this] { program_.hasUser = true; });
}

void Shell::customizeToolbar() {
  Window& host = program_.interface().manager.myWindow;
  Covers& covers = program_.windows().covers();
  QDialog* dialog = buildToolbarCustomise(program_.interface().manager.toolbar, binder_, windows_.mainWindow());
  covers.beginSheet(host, nullptr);
  QObject::connect(dialog, &QDialog::finished, dialog, [&covers, &host] { covers.endSheet(host, nullptr, [] {}); });
  dialog->open();
}

// What nobody sees in the first picture.
void Shell::finishLater() {
  QApplication::setWindowIcon(binder_.icon("TarvoManager"));
  if (product_.language() != "ja") return;
  auto* translator = new QTranslator(&application_);  // of the toolkit's own texts
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (translator->load(QStringLiteral("qtbase_ja"), folder)) QApplication::installTranslator(translator);
}

}  // namespace tarvo
