// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <stdexcept>
#include <string>
#include <vector>

#include "install/mail_script_installer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/bundle.h"
#include "platform/services/locations.h"
#include "tests/bench/timing.h"

// Installing and removing a folder of scripts against the system's own commands: addin_bench RESOURCES PLACE COUNT
// RESOURCES holds the folder "Scripts/Many"; it goes to PLACE, an existing folder. Prints the medians in milliseconds:
// "INSTALL CP REMOVAL RM".
namespace {

using namespace tarvo;

void run(const std::string& command) {
  if (std::system(command.c_str()) != 0) throw std::runtime_error(command + " failed");
}

void expect(bool done, const char* what) {
  if (!done) throw std::runtime_error(std::string(what) + " failed");
}

void measure(const std::string& resources, const std::string& place, int count) {
  const Locations locations("/", place);
  PosixFiles files(locations);
  const Bundle bundle(files, DiskPath(resources), {"en"});
  MailScriptInstaller installer(files, bundle, locations);
  AddinEntry entry;
  entry.set(addin_keys::installMacroName, "Scripts/Many");
  entry.set(addin_keys::installFolderPath, place);
  const std::string source = resources + "/Scripts/Many", copy = place + "/Copy";
  std::vector<double> install, cp, removal, rm;
  const std::string copying = "cp -a '" + source + "' '" + copy + "'";
  for (int i = 0; i < count; ++i) {
    install.push_back(milliseconds([&] { expect(installer.installMailScript(entry).has_value(), "the install"); }));
    cp.push_back(milliseconds([&] { run(copying); }));
    removal.push_back(milliseconds([&] { expect(installer.unInstallMailScript(entry).has_value(), "the removal"); }));
    rm.push_back(milliseconds([&] { run("rm -r '" + copy + "'"); }));
  }
  std::printf("%.4f %.4f %.4f %.4f\n", median(install), median(cp), median(removal), median(rm));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  try {
    measure(argv[1], argv[2], std::atoi(argv[3]));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "addin_bench: %s\n", error.what());
    return 1;
  }
}
