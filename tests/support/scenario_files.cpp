// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/scenario_files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace tarvo::test {

namespace fs = std::filesystem;

namespace {

std::vector<std::string> wordsOf(const std::string& line) {
  std::istringstream in(line);
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

std::string inFolder(const std::string& file) { return file == "none" ? file : scenarioFolder() + "/" + file; }

// "tools/two_tools_with_one_id.scenario" gives "tools_two_tools_with_one_id".
std::string nameOf(fs::path path) {
  std::string name = path.replace_extension().generic_string();
  std::replace(name.begin(), name.end(), '/', '_');
  return name;
}

// "{here}" stands for the folder of the scenario.
std::string withFolder(std::string line, const std::string& folder) {
  constexpr std::string_view here = "{here}";
  const std::size_t at = line.find(here);
  return at == std::string::npos ? line : line.replace(at, here.size(), folder);
}

}  // namespace

std::string scenarioFolder() { return TARVO_SOURCE_DIR "/tests/scenarios"; }

ScenarioFile readScenario(const std::string& path) {
  ScenarioFile file;
  file.path = path;
  file.folder = fs::path(path).parent_path().string();
  file.name = nameOf(fs::path(path).lexically_relative(scenarioFolder()));
  std::ifstream in(path);
  for (std::string line; std::getline(in, line) && line.starts_with('#');) {
    const std::size_t colon = line.find(": ");
    if (colon == std::string::npos) continue;
    const std::string key = line.substr(2, colon - 2), value = line.substr(colon + 2);
    if (key == "options") file.options = wordsOf(value);
    if (key == "root") file.root = value;
    if (key == "resources") file.resources = value;
    if (key == "tells") file.tells += withFolder(value, file.folder) + "\n";
    if (key == "needs") file.needsAttributes = value == "attributes";
  }
  return file;
}

std::vector<ScenarioFile> scenarioFiles() {
  std::vector<ScenarioFile> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(scenarioFolder())) {
    if (entry.path().extension() == ".scenario") files.push_back(readScenario(entry.path().string()));
  }
  std::sort(files.begin(), files.end(), [](const ScenarioFile& a, const ScenarioFile& b) { return a.name < b.name; });
  return files;
}

ScenarioRoot::ScenarioRoot(const std::string& fixture, const std::string& above)
    : folder_(above.empty() ? fs::temp_directory_path().string() : above) {
  fs::copy(scenarioFolder() + "/fixtures/" + fixture, root(), fs::copy_options::recursive);
  fs::create_directories(home());
}

std::map<std::string, std::string> ScenarioRoot::tree() const {
  std::map<std::string, std::string> all;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root())) {
    const std::string rest = std::filesystem::relative(entry.path(), folder_.path()).string();
    all[rest] = entry.is_regular_file() ? folder_.read(rest) : "";
  }
  return all;
}

std::vector<std::string> scenarioArguments(const ScenarioFile& file, const ScenarioRoot& root) {
  std::vector<std::string> arguments{"--root", root.root(), "--home", root.home(), "--language", "en"};
  if (!file.resources.empty()) arguments.insert(arguments.end(), {"--resources", root.root() + "/" + file.resources});
  arguments.insert(arguments.end(), file.options.begin(), file.options.end());
  return arguments;
}

ProductOptions scenarioProduct(const ScenarioFile& file, const ScenarioRoot& root) {
  ProductOptions product;
  product.root = root.root();
  product.home = root.home();
  product.language = "en";
  if (!file.resources.empty()) product.resources = root.root() + "/" + file.resources;
  for (std::size_t i = 0; i + 1 < file.options.size(); i += 2) {
    const std::string &option = file.options[i], &value = file.options[i + 1];
    if (option == "--strings") {
      product.strings.push_back(inFolder(value));
    } else if (option == "--paths") {
      product.paths = inFolder(value);
    } else if (option == "--engine") {
      product.engine = value;
    } else if (option == "--language") {
      product.language = value;
    } else {
      throw std::runtime_error(file.name + ": a scenario cannot be run with " + option);
    }
  }
  return product;
}

}  // namespace tarvo::test
