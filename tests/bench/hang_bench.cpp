// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <chrono>
#include <cstdio>
#include <exception>
#include <memory>
#include <thread>

#include "app/product.h"
#include "app/program.h"
#include "platform/engine/style_payload.h"
#include "platform/posix/posix_run_loop.h"
#include "tests/bench/quiet_shell.h"
#include "tests/bench/timing.h"
#include "tests/support/style_server.h"

// How long one action of the user stops when the style service hangs: hang_bench ROOT HOME. Prints a line for each
// request at which the service hangs, in each way: "MILLISECONDS ACTION, REQUEST, WAY".
namespace {

using namespace tarvo;
using test::Reply;
using test::SeenRequest;
using Way = Reply::Way;

// Which request of the action is not answered, and whether the probe before it took nearly all of its time.
struct Stage {
  const char* action;
  const char* method;
  int which;
  bool afterSlowProbe;
  const char* name;
};

constexpr Stage stages[] = {
    {"edit", "GET", 1, false, "probe"},
    {"edit", "LOCK", 1, false, "lock"},
    {"edit", "GET", 2, false, "comparing"},
    {"edit", "PUT", 1, false, "storing"},
    {"edit", "GET", 3, false, "looking again"},
    {"edit", "UNLOCK", 1, false, "unlocking"},
    {"edit", "LOCK", 1, true, "lock after a slow probe"},
    {"edit", "PUT", 1, true, "storing after a slow probe"},
    {"edit", "GET", 3, true, "looking again after a slow probe"},
    {"reconciling", "GET", 1, false, "asking whether there is a set"},
    {"reconciling", "GET", 2, false, "asking which set"},
    {"reconciling", "GET", 3, false, "fetching the set"},
};

constexpr std::pair<Way, const char*> ways[] = {
    {Way::nothing, "no answer"}, {Way::headOnly, "no body"}, {Way::drip, "a byte each 20 ms"}};

class HangingService {
 public:
  explicit HangingService(const Stage& stage, Way way) {
    styles_.locks = true;
    styles_.hold(StylePayload(StyleSet{Array(), {}}).bytes(5));
    styles_.instead = [stage, way](const SeenRequest& request, int count) -> std::optional<Reply> {
      const bool isProbe = request.method == "GET" && count == 1;
      if (isProbe && stage.afterSlowProbe) std::this_thread::sleep_for(std::chrono::milliseconds(925));
      if (request.method != stage.method || count != stage.which) return std::nullopt;
      return Reply{200, {"Lock-Token: <a>"}, std::string(5000, 'x'), way};
    };
  }
  std::string address() const { return server_.address(); }

 private:
  test::StyleServer styles_;
  test::ScriptedServer server_{[this](const SeenRequest& request) { return styles_.answer(request); }};
};

double timeOf(const Stage& stage, Way way, ProductOptions options) {
  const HangingService service(stage, way);
  options.engine = service.address();
  Product product(options);
  const auto engine = product.makeEngine(product.files());
  PosixRunLoop loop;
  QuietPanels panels;
  QuietWindows windows;
  QuietWorkspace workspace;
  Program program(product.services(product.files(), *engine, loop, panels, windows, workspace));
  if (!program.construct() || !program.load()) throw std::runtime_error("the program did not start");
  PopUpButton& option = program.interface().options.indexPopups.front();
  const int other = option.indexOfSelectedItem() == 0 ? 1 : 0;
  if (stage.action == std::string_view("edit")) return milliseconds([&] { option.userChoose(other); });
  program.defaults().set("LastUpdate", "");
  return milliseconds([&] { program.notifications().post("SendPlistNoti"); });
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) return 2;
  try {
    ProductOptions options;
    options.root = argv[1];
    options.home = argv[2];
    options.language = "en";
    for (const Stage& stage : stages) {
      for (const auto& [way, name] : ways) {
        std::printf("%.1f %s, %s, %s\n", timeOf(stage, way, options), stage.action, stage.name, name);
      }
    }
  } catch (const std::exception& error) {
    std::fprintf(stderr, "hang_bench: %s\n", error.what());
    return 1;
  }
}
