// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>
#include <optional>

#include "app/product.h"
#include "app/product_defaults.h"
#include "app/user_files.h"
#include "console/command_line.h"
#include "console/script/manual_run_loop.h"
#include "console/verbs/refusal.h"
#include "console/verbs/run_script.h"
#include "platform/posix/instance_lock.h"
#include "platform/posix/posix_run_loop.h"
#include "platform/posix/process.h"
#include "platform/posix/temporaries.h"
#include "platform/services/failure_text.h"
#include "platform/text/printable.h"

// tarvoctl: a verb or a script, on the real disk and the real clock.
namespace tarvo {

namespace {

// The real clock under a script.
class RealClock : public ScenarioClock {
 public:
  void post(std::function<void()> call) override { loop_.post(std::move(call)); }
  Timer after(double seconds, std::function<void()> call) override { return loop_.after(seconds, std::move(call)); }
  void cancel(Timer timer) override { loop_.cancel(timer); }
  void settle() override { advance(0); }
  void advance(double seconds) override {
    loop_.after(seconds, [this] { loop_.stop(); });
    loop_.run();
  }

 private:
  PosixRunLoop loop_;
};

// Takes the lock of a user's files and keeps it as long as it lives itself; what programs left behind there goes.
class HeldLock {
 public:
  Result<> operator()(const UserPlace& place) {
    lock_.emplace(place.lock);
    switch (lock_->state()) {
      case InstanceLock::State::held: sweepTemporaries(place.home, place.folders); break;
      case InstanceLock::State::heldByAnother:
        return Failure{place.lock.text(), Attempt::write, std::make_error_code(std::errc::device_or_resource_busy)};
      case InstanceLock::State::noFile: return Failure{place.lock.text(), Attempt::write, Reason::noRegularFile};
      case InstanceLock::State::unavailable: break;
    }
    return {};
  }

 private:
  std::optional<InstanceLock> lock_;
};

ExitStatus runVerb(const CommandLine& line, Command& command) {
  Product product(line.product);
  HeldLock lock;
  Console console{product, std::cout, std::cerr, std::ref(lock), becomeProgram};
  console.textsToTell = [&line] { return textsToTell(line); };
  console.json = line.json;
  console.reseed = line.reseed;
  console.engineIsWanted = line.product.engine != "none";
  if (!product.problem().empty()) return tell(console, unknownEngine(product.engineURL()));
  const std::optional<Failure>& unread = product.unread();
  // The doctor tells of a damaged resource among all that it finds.
  const bool isFound = unread && !line.needsResources && DiskPath(unread->path).isIn(product.bundle().folder());
  if (unread && !isFound) return tell(console, *unread);
  return command.run(console);
}

ExitStatus cannotRead(const CommandLine& line, const Failure& failure) {
  std::cerr << "tarvoctl: " << printable(failureText(failure, textsToTell(line))) << '\n';
  return ExitStatus::refused;
}

ExitStatus runScriptFile(const CommandLine& line) {
  const bool fromInput = line.script == "-";
  std::ifstream file;
  if (!fromInput) {
    file.open(line.script);
    if (!file) return cannotRead(line, systemFailure(absolutePath(line.script).text(), Attempt::read));
    if (std::filesystem::is_directory(line.script)) {
      return cannotRead(
          line, {absolutePath(line.script).text(), Attempt::read, std::make_error_code(std::errc::is_a_directory)});
    }
  }
  std::istream& input = fromInput ? std::cin : file;
  const std::string text{std::istreambuf_iterator<char>(input), std::istreambuf_iterator<char>()};
  const std::filesystem::path folder =
      fromInput ? std::filesystem::current_path() : std::filesystem::absolute(line.script).parent_path();
  const std::unique_ptr<ScenarioClock> clock = line.clock == "real"
                                                   ? std::unique_ptr<ScenarioClock>(std::make_unique<RealClock>())
                                                   : std::make_unique<ManualRunLoop>();
  HeldLock lock;
  return runScript({line.product, DiskPath(folder.lexically_normal().string()), std::ref(lock)}, *clock, line.script,
                   text, std::cout, std::cerr);
}

// The verbs that need the product's resources do nothing without them. Told in English: the texts are among what lacks.
ExitStatus refuse(const Failure& missing, const CommandLine& line) {
  std::cerr << "tarvoctl: ";
  if (missing.cause == std::errc::no_such_file_or_directory) {
    std::cerr << printable(missing.path)
              << ": is not there; the folder holds no resources of the product; name another "
              << "one with --resources, or install the product again\n";
  } else {
    std::cerr << printable(failureText(missing, textsToTell(line))) << '\n';
  }
  return ExitStatus::refused;
}

ExitStatus main(int count, char** words) {
  failBeyondFileSizeLimit();
  CommandLine line;
  if (const auto status = readCommandLine(line, {words + 1, words + count}, std::cout, std::cerr)) return *status;
  const auto& resources = line.product.resources;
  const auto missing = missingResource(resources ? absolutePath(*resources) : defaultResources());
  if (line.needsResources && missing) return refuse(*missing, line);
  if (!line.makeCommand) return runScriptFile(line);
  return runVerb(line, *line.makeCommand());
}

}  // namespace

}  // namespace tarvo

// NOLINTNEXTLINE(bugprone-exception-escape): what nobody expected ends the program with its name
int main(int count, char** words) { return static_cast<int>(tarvo::main(count, words)); }
