// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTimer>
#include <chrono>
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <thread>
#include <utility>

#include "platform/engine/style_payload.h"
#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_run_loop.h"
#include "platform/services/plist_file.h"
#include "qt/look/tarvo_style.h"
#include "qt/shell.h"
#include "style/style_keys.h"
#include "tests/bench/quiet_shell.h"
#include "tests/support/style_server.h"

// How long the window handles no event when the style service hangs or is slow: hang_bench ROOT HOME. Prints a line for
// each action of the user and each request at which the service hangs, in each way, or for how slow it is:
// "MILLISECONDS ACTION, REQUEST, WAY".
namespace {

using namespace tarvo;
using test::Reply;
using test::SeenRequest;
using Way = Reply::Way;
using std::chrono::milliseconds;

enum class Action { start, edit, choice };
constexpr const char* actionNames[] = {"start", "edit", "choice of a style whose lists are repaired"};

constexpr milliseconds nearlyAll{925};  // of the time of a probe

// Which request of the action is not answered, and how long its first one and the others take.
struct Stage {
  Action action;
  const char* method;
  int which;
  milliseconds first, each;
  const char* name;
};

constexpr Stage hangs[] = {
    {Action::start, "GET", 1, {}, {}, "probe"},
    {Action::start, "GET", 2, {}, {}, "second probe"},
    {Action::start, "GET", 2, nearlyAll, {}, "second probe after a slow one"},
    {Action::start, "GET", 3, {}, {}, "asking whether there is a set"},
    {Action::start, "GET", 3, nearlyAll, {}, "asking whether there is a set after a slow probe"},
    {Action::start, "GET", 4, {}, {}, "asking which set"},
    {Action::start, "GET", 5, {}, {}, "fetching the set"},
    {Action::edit, "GET", 1, {}, {}, "probe"},
    {Action::edit, "LOCK", 1, {}, {}, "lock"},
    {Action::edit, "GET", 2, {}, {}, "comparing"},
    {Action::edit, "PUT", 1, {}, {}, "storing"},
    {Action::edit, "GET", 3, {}, {}, "looking again"},
    {Action::edit, "UNLOCK", 1, {}, {}, "unlocking"},
    {Action::edit, "LOCK", 1, nearlyAll, {}, "lock after a slow probe"},
    {Action::edit, "PUT", 1, nearlyAll, {}, "storing after a slow probe"},
    {Action::edit, "GET", 3, nearlyAll, {}, "looking again after a slow probe"},
    {Action::choice, "GET", 1, {}, {}, "probe"},
    {Action::choice, "PUT", 1, nearlyAll, {}, "storing after a slow probe"},
    {Action::choice, "PUT", 2, {}, {}, "second storing"},
    {Action::choice, "PUT", 2, nearlyAll, {}, "second storing after a slow probe"},
    {Action::choice, "GET", 7, {}, {}, "third probe"},
    {Action::choice, "PUT", 3, {}, {}, "third storing"},
};

constexpr std::pair<Way, const char*> ways[] = {
    {Way::nothing, "no answer"}, {Way::headOnly, "no body"}, {Way::drip, "a byte each 20 ms"}};

constexpr milliseconds delays[] = {milliseconds(100), milliseconds(350), milliseconds(600), nearlyAll};

class TroubledService {
 public:
  TroubledService(const Stage& stage, Way way, const std::string& set) {
    styles_.locks = true;
    styles_.hold(set);
    trouble_ = [stage, way](const SeenRequest& request, int count) -> std::optional<Reply> {
      std::this_thread::sleep_for(request.method == "GET" && count == 1 ? stage.first : stage.each);
      if (request.method != stage.method || count != stage.which) return std::nullopt;
      return Reply{200, {"Lock-Token: <a>"}, std::string(5000, 'x'), way};
    };
  }
  // Until now it was well.
  void begin() {
    styles_.counts.clear();
    styles_.instead = trouble_;
  }
  std::string address() const { return server_.address(); }

 private:
  decltype(test::StyleServer::instead) trouble_;
  test::StyleServer styles_;
  test::ScriptedServer server_{[this](const SeenRequest& request) { return styles_.answer(request); }};
};

// The longest time between two turns of the event loop, from the first that it sees.
class Heartbeat {
 public:
  Heartbeat() {
    QObject::connect(&timer_, &QTimer::timeout, [this] { beat(); });
    timer_.start(0);
  }
  double longest() const { return longest_; }

 private:
  void beat() {
    if (since_.isValid()) longest_ = std::max(longest_, static_cast<double>(since_.nsecsElapsed()) / 1e6);
    since_.start();
  }
  QTimer timer_;
  QElapsedTimer since_;
  double longest_ = 0;
};

void letEventsPass() {
  QEventLoop loop;
  QTimer::singleShot(50, &loop, &QEventLoop::quit);
  loop.exec();
}

class HangBench {
 public:
  HangBench(QApplication& application, ProductOptions options)
      : application_(application), options_(std::move(options)) {
    options_.engine = "none";
    Product product(options_);
    const auto engine = product.makeEngine(product.files());
    PosixRunLoop loop;
    QuietPanels panels;
    QuietWindows windows;
    QuietWorkspace workspace;
    Program program(product.services(product.files(), *engine, loop, panels, windows, workspace));
    if (!program.construct() || !program.load()) throw std::runtime_error("the program did not start");
    const Array& styles = *program.rooms().store.getAllStyle();
    std::vector<std::string> encoded;
    for (const PropertyList& style : styles) appendValue(encoded.emplace_back(), style, 2);
    set_ = StylePayload(StyleSet{styles, encoded}).bytes(5);
  }

  void measure(const Stage& stage, Way way, const char* wayName) {
    TroubledService service(stage, way, set_);
    options_.engine = service.address();
    Product product(options_);
    answerTheService(product);
    if (stage.action == Action::start) service.begin();  // it is asked as soon as there is a window to be
    Shell shell(product, application_, [] { return std::vector<tarvo::ProductPath>(); });
    if (stage.action != Action::start && !shell.start()) throw std::runtime_error("the window did not start");
    prepare(shell, stage.action);
    letEventsPass();
    if (stage.action != Action::start) service.begin();
    const Heartbeat heartbeat;
    letEventsPass();
    if (stage.action == Action::start && !shell.start()) throw std::runtime_error("the window did not start");
    QTimer::singleShot(0, &application_, [&] { act(shell, stage.action); });
    letEventsPass();
    std::printf("%.1f %s, %s, %s\n", heartbeat.longest(), actionNames[static_cast<int>(stage.action)], stage.name,
                wayName);
    std::fflush(stdout);
    shell.program().quit();
  }

 private:
  static constexpr int chosen = 2;

  // So that a start takes the set of the service at once.
  static void answerTheService(Product& product) {
    Dictionary settings;
    settings.set("ConnectServer", true);
    if (!PlistFile(product.files(), userDefaultsPath(product.locations())).write(settings)) {
      throw std::runtime_error("the settings could not be written");
    }
  }

  static void prepare(Shell& shell, Action action) {
    if (action != Action::choice) return;
    StyleStore& store = shell.program().rooms().store;
    std::optional<Dictionary> style = store.getStyleAtIndex(chosen);
    for (const std::string_view half : {keyNameEJ, keyNameJE}) {
      style->dictionary(half)->array(keyNameTD)->emplace_back("is not there.TRet");
    }
    store.setAwakening(true);
    store.setStyle(chosen, *style);
    store.setAwakening(false);
  }

  static void act(Shell& shell, Action action) {
    Interface& interface = shell.program().interface();
    PopUpButton& option = interface.options.indexPopups.front();
    if (action == Action::edit) option.userChoose(option.indexOfSelectedItem() == 0 ? 1 : 0);
    if (action == Action::choice) interface.style.stylePopup.userChoose(chosen);
  }

  QApplication& application_;
  ProductOptions options_;
  std::string set_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  QApplication application(argc, argv);
  applyLook(Scheme::light, "en");
  try {
    HangBench bench(application, ProductOptions{.root = argv[1], .home = argv[2], .language = "en"});
    for (const Stage& stage : hangs) {
      for (const auto& [way, name] : ways) bench.measure(stage, way, name);
    }
    for (const Action action : {Action::start, Action::edit, Action::choice}) {
      for (const milliseconds delay : delays) {
        const std::string name = "each after " + std::to_string(delay.count()) + " ms";
        bench.measure({action, "", 0, delay, delay, "all requests"}, Way::whole, name.c_str());
      }
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "hang_bench: %s\n", error.what());
    return 1;
  }
}
