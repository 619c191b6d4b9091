// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/help_pages.h"

#include <gtest/gtest.h>

#include <optional>

#include "platform/services/bundle.h"
#include "platform/services/locations.h"
#include "platform/services/opener.h"
#include "platform/services/product_paths.h"
#include "platform/services/texts.h"
#include "tests/support/fake_shell.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

class HelpPagesTest : public testing::Test {
 protected:
  template <class Command>
  void run(Command command) {
    const ProductPaths paths(locations_, configuration_);
    HelpPages pages(bundle_, paths, texts_, opener_);
    command(pages);
  }
  void show(const char* address) {
    run([address](HelpPages& pages) { pages.showIndicatePage(address); });
  }
  void setAddresses(const char* support, const char* home) {
    configuration_->set("tarvoPathSupportURL", support);
    configuration_->set("tarvoPathHomepageURL", home);
  }
  void setOldPage(const char* address) {
    Dictionary table;
    table.set("oldEJTech", address);
    texts_.overlay(table);
  }
  void openAll() {
    run([](HelpPages& pages) {
      pages.GotoRegiandSupportPage();
      pages.GotoWordhavenPage();
      pages.aboutOldEtoJTech();
    });
  }

  MemoryFiles files_;
  Bundle bundle_{files_, DiskPath("/resources"), {"ja", "en"}};
  Locations locations_{"/", "/home"};
  Texts texts_;
  FakeWorkspace workspace_;
  Opener opener_{workspace_, files_};
  std::optional<Dictionary> configuration_ = Dictionary();
};

TEST_F(HelpPagesTest, openTheConfiguredAddresses) {
  setAddresses("http://s.example/", "http://h.example/");
  setOldPage("http://o.example/");
  openAll();
  EXPECT_EQ(workspace_.addresses,
            (std::vector<std::string>{"http://s.example/", "http://h.example/", "http://o.example/"}));
}

TEST_F(HelpPagesTest, openNothingWithoutAnAddress) {
  openAll();
  setAddresses("", "");
  setOldPage("");
  openAll();
  setOldPage("oldEJTech");
  openAll();
  EXPECT_TRUE(workspace_.addresses.empty());
}

TEST_F(HelpPagesTest, whatHasNoAddressIsToldByTheNameOfItsCommand) {
  std::vector<Failure> told;
  opener_.didFail = [&told](const Failure& failure) { told.push_back(failure); };
  openAll();
  show("s.example");
  run([](HelpPages& pages) { pages.showHelp(); });
  const std::vector<Failure> expected{{"supportHelp", Attempt::open, Reason::noAddress},
                                      {"whHelp", Attempt::open, Reason::noAddress},
                                      {"oldEJTechMenu", Attempt::open, Reason::noAddress},
                                      {"s.example", Attempt::open, Reason::noAddress},
                                      {"/resources/Help/index.htm", Attempt::open, Reason::missingResource}};
  EXPECT_EQ(told, expected);
}

TEST_F(HelpPagesTest, openOnlyWhatBeginsWithAScheme) {
  for (const char* text : {"s.example", "/page.htm", "://s.example", "1http://s.example", "ht tp://s.example", ":",
                           "ページ:x", "-a:b", "a/b:c"}) {
    show(text);
  }
  EXPECT_TRUE(workspace_.addresses.empty());
  for (const char* text : {"HTTPS://s.example/", "mailto:x@s.example", "a+b-c.1:x"}) show(text);
  EXPECT_EQ(workspace_.addresses.size(), 3U);
}

TEST_F(HelpPagesTest, openTheHelpInTheUsersLanguage) {
  run([](HelpPages& pages) { pages.showHelp(); });
  EXPECT_TRUE(workspace_.opened.empty()) << "there is none";
  files_.put("/resources/en.lproj/Help/index.htm", "");
  run([](HelpPages& pages) { pages.showHelp(); });
  files_.put("/resources/ja.lproj/Help/index.htm", "");
  run([](HelpPages& pages) { pages.showHelp(); });
  files_.put("/resources/Help/index.htm", "");
  run([](HelpPages& pages) { pages.showHelp(); });
  EXPECT_EQ(workspace_.opened,
            (std::vector<std::string>{"/resources/en.lproj/Help/index.htm", "/resources/ja.lproj/Help/index.htm",
                                      "/resources/Help/index.htm"}));
}

}  // namespace
}  // namespace tarvo::test
