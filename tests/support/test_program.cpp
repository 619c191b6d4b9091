// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/test_program.h"

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/locations.h"

namespace tarvo::test {

namespace {

Dictionary dictionaryIn(const std::string& bytes) {
  const auto value = readPropertyList(bytes);
  return value && value->dictionary() != nullptr ? *value->dictionary() : Dictionary();
}

}  // namespace

TestProgram::TestProgram(ProductOptions options) {
  for (const char* name :
       {"EJ/a.TRet", "EJ/b.TRet", "EJ/c.TRet", "EJ/d.TRet", "JE/j1.TRet", "JE/j2.TRet", "JE/j3.TRet"}) {
    root.write(std::string(technical) + name, "");
  }
  options.root = root.path();
  options.home = root / "Users/taro";
  if (!options.language) options.language = "en";
  if (options.strings.empty()) options.strings = {"none"};
  product.emplace(options);
}

TestProgram::~TestProgram() = default;

Program& TestProgram::program() {
  if (program_ == nullptr) {
    program_ = std::make_unique<Program>(product->services(product->files(), engine, runLoop, panels, host, workspace));
    program_->didTerminate = [this] { log.emplace_back("terminated"); };
  }
  return *program_;
}

void TestProgram::writeStyles(const Dictionary& styles) { root.write(inHome(stylePath), writePropertyList(styles)); }

Dictionary TestProgram::stylesOnDisk() const { return dictionaryIn(root.read(inHome(stylePath))); }

Dictionary TestProgram::defaultsOnDisk() const {
  return dictionaryIn(root.read(inHome("Library/Preferences/com.wordhaven.TarvoManager.plist")));
}

}  // namespace tarvo::test
