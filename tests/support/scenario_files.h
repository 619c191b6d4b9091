// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

#include "app/product.h"
#include "tests/support/temporary_folder.h"

// The scenario files below tests/scenarios, a folder a room, and how each wants to be run. Comment lines at its head
// say it:
//   # options: --strings none …   command-line options; relative files start in tests/scenarios
//   # root: NAME                  a copy of fixtures/NAME is the product's root ("plain" when nothing is said)
//   # resources: NAME           the folder NAME of that copy is the resource folder, so that a script can change it
//   # tells: LINE                 a line that the console tool prints on standard error, where nothing else may stand;
//                                "{here}" in it is the folder of the scenario
//   # needs: attributes           only where the disk keeps extended attributes
namespace tarvo::test {

struct ScenarioFile {
  std::string path, folder;  // folder: that of the file, where relative paths of its lines start
  std::string name;          // room and file as one word, "tools_two_tools_with_one_id": a name for a test
  std::vector<std::string> options;
  std::string root = "plain", resources = {}, tells = {};
  bool needsAttributes = false;
};

std::string scenarioFolder();
std::vector<ScenarioFile> scenarioFiles();  // ascending by name
ScenarioFile readScenario(const std::string& path);

// A private copy of the file's root, with a home "Users/taro" below it, gone with this object.
class ScenarioRoot {
 public:
  // above: the folder in which it lies; "" for the system's own place.
  explicit ScenarioRoot(const std::string& fixture, const std::string& above = "");
  std::string root() const { return folder_ / "root"; }
  std::string home() const { return folder_ / "root/Users/taro"; }
  const TemporaryFolder& folder() const { return folder_; }
  // Every path below the root, from the folder on, with the bytes of the files.
  std::map<std::string, std::string> tree() const;

 private:
  TemporaryFolder folder_;
};

// What the file's options and that root come to, on the command line and in the program.
std::vector<std::string> scenarioArguments(const ScenarioFile& file, const ScenarioRoot& root);
ProductOptions scenarioProduct(const ScenarioFile& file, const ScenarioRoot& root);

}  // namespace tarvo::test
