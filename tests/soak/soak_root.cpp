// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <filesystem>

#include "platform/plist/plist_writer.h"
#include "style/style_keys.h"
#include "tests/soak/list_edits.h"

namespace tarvo::test {

namespace {

const std::array<Words, 2> dictionaries{
    Words{"Aerospace.TRet", "Biotechnology.TRet", "Law A.TRet", "Law B.TRet", "law c.jtd", "Physics.TRet", "cars.TRet",
          "化学.TRet", "医学.TRet", "数学 A.TRet", "特許.jtd", "農業.TRet", "金融 & <law>.TRet"},
    Words{"Aerospace.TRet", "LAW.TRET", "Optics.TRet", "a.b.jtd", "semi;colon.TRet", "語学.TRet", "光学.TRet",
          "機械.TRet", "特許.TRet", "薬学.jtd"}};

Dictionary emptyStyle(int number) {
  Dictionary english, japanese, style;
  for (const std::string_view key : {keyNameEJOpt1, keyNameEJOpt2, keyNameEJOpt3}) english.set(key, 0);
  for (const std::string_view key : {keyNameJEOpt1, keyNameJEOpt2, keyNameJEOpt3, keyNameJEOpt5}) japanese.set(key, 0);
  japanese.set(keyNameJEOpt4, true);
  style.set(keyNameName, "Style " + std::to_string(number));
  style.set(keyNameID, number);
  style.set(keyNameEJ, english);
  style.set(keyNameJE, japanese);
  return style;
}

}  // namespace

std::string placeOfSoaks() {
  const std::filesystem::path memory = "/dev/shm";
  return std::filesystem::is_directory(memory) ? memory : std::filesystem::temp_directory_path();
}

int editCount() {
  const char* count = std::getenv("TARVO_EDITS");
  return count != nullptr ? std::atoi(count) : 10'000;
}

const std::vector<unsigned>& seeds() {
  static const std::vector<unsigned> all{2009, 131, std::random_device{}()};
  return all;
}

std::string seedName(std::size_t index) { return index < 2 ? "fixed" + std::to_string(index) : "fresh"; }

SoakRoot::SoakRoot() : folder_(placeOfSoaks()) {
  const char* folders[] = {"EJ/", "JE/"};
  for (std::size_t direction = 0; direction < 2; ++direction) {
    for (const std::string& name : dictionaries[direction]) {
      folder_.write("Library/Application Support/Wordhaven/TarvoEiwa/TechDic/" + std::string(folders[direction]) + name,
                    "");
    }
  }
  Array records;
  for (int number = 0; number < styles; ++number) records.emplace_back(emptyStyle(number));
  Dictionary selection, root;
  selection.set("MG", 0);
  root.set(keyNameSelection, selection);
  root.set(keyNameStyle, records);
  folder_.write(styleFileBelow, writePropertyList(root));
}

PlainLists SoakRoot::plainLists() const { return PlainLists(dictionaries, styles); }

ScenarioOptions SoakRoot::options() const {
  ScenarioOptions options;
  options.product.root = path();
  options.product.home = home();
  options.product.language = "en";
  options.product.strings = {"none"};
  options.folder = DiskPath(path());
  return options;
}

}  // namespace tarvo::test
