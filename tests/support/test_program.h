// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>

#include "app/product.h"
#include "app/program.h"
#include "tests/support/fake_shell.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

// A program on a product root of its own in a temporary folder, with the user "taro", over a fake shell and engine.
// Texts are their keys unless a test lays tables over them. The folders of the sample styles' dictionaries are filled.
class TestProgram {
 public:
  explicit TestProgram(ProductOptions options = {});
  ~TestProgram();

  // The program, made at the first call.
  Program& program();
  Interface& interface() { return program().interface(); }
  void drop() { program_.reset(); }  // as a crash would

  std::string inHome(const std::string& rest) const { return "Users/taro/" + rest; }  // for root
  void writeStyles(const Dictionary& root);
  Dictionary stylesOnDisk() const;
  Dictionary defaultsOnDisk() const;

  TemporaryFolder root;
  Log log;
  FakePanels panels{log};
  FakeHost host;
  FakeEngine engine{log};
  FakeWorkspace workspace;
  FakeRunLoop runLoop;
  std::optional<Product> product;

  static constexpr const char* stylePath = "Library/Preferences/Wordhaven/TarvoStyle2009.plist";
  static constexpr const char* technical = "Library/Application Support/Wordhaven/TarvoEiwa/TechDic/";

 private:
  std::unique_ptr<Program> program_;
};

}  // namespace tarvo::test
