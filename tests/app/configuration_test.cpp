// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/configuration.h"

#include <gtest/gtest.h>

#include "app/product.h"
#include "app/product_defaults.h"
#include "app/user_files.h"
#include "platform/services/engine.h"
#include "platform/services/file_service.h"
#include "tests/support/environment.h"
#include "tests/support/memory_files.h"
#include "tests/support/scripted_server.h"
#include "tests/support/temporary_folder.h"
#include "tests/support/web_server.h"

namespace tarvo::test {
namespace {

std::string list(const std::string& content) { return "<plist><dict>" + content + "</dict></plist>"; }
std::string privateFolders(bool isOn) {
  return list(std::string("<key>PrivateFolders</key>") + (isOn ? "<true/>" : "<false/>"));
}

TEST(ConfigurationFiles, areTheUsersThenTheMachines) {
  using Paths = std::vector<DiskPath>;
  const DiskPath last("/etc/tarvo-manager/config.plist");
  const struct {
    const char *own, *home, *machine;
    Paths files;
  } rows[] = {
      {"/own",
       "/h",
       "/a:/b",
       {DiskPath("/own/tarvo-manager/config.plist"), DiskPath("/a/tarvo-manager/config.plist"),
        DiskPath("/b/tarvo-manager/config.plist"), last}},
      {"", "/h", "", {DiskPath("/h/.config/tarvo-manager/config.plist"), last}},
      {"relative",
       "/h",
       "relative::/b",
       {DiskPath("/h/.config/tarvo-manager/config.plist"), DiskPath("/b/tarvo-manager/config.plist"), last}},
      {"", "", "", {last}},
  };
  for (const auto& row : rows) {
    const Environment set({{"XDG_CONFIG_HOME", row.own}, {"HOME", row.home}, {"XDG_CONFIG_DIRS", row.machine}});
    EXPECT_EQ(configurationFiles(), row.files) << row.own;
  }
}

TEST(Configuration, theFirstFileWithAKeyCounts) {
  MemoryFiles files;
  const DiskPath user("/user"), machine("/machine");
  files.put("/machine", list("<key>PrivateFolders</key><true/><key>Other</key><string>machine's</string>"));
  EXPECT_TRUE(Configuration(files, {user, machine}).boolean("PrivateFolders"));
  files.put("/user", privateFolders(false));
  const Configuration both(files, {user, machine});
  EXPECT_FALSE(both.boolean("PrivateFolders"));
  EXPECT_EQ(*both.fileOf("PrivateFolders"), user);
  EXPECT_EQ(*both.find("Other"), PropertyList("machine's"));
  EXPECT_EQ(*both.fileOf("Other"), machine);
  EXPECT_EQ(both.find("Third"), nullptr);
  EXPECT_FALSE(both.boolean("Third"));
  EXPECT_FALSE(both.unread());
}

TEST(Configuration, aFileThatIsNotThereIsNoFaultAndOneThatCannotBeReadIs) {
  MemoryFiles files;
  const std::vector<DiskPath> paths{DiskPath("/user"), DiskPath("/machine")};
  EXPECT_FALSE(Configuration(files, paths).unread());
  files.put("/machine", "damaged");
  EXPECT_EQ(Configuration(files, paths).unread()->path, "/machine");
  for (const char* content : {"", "<plist><array/></plist>"}) {
    files.put("/user", content);
    EXPECT_EQ(Configuration(files, paths).unread()->path, "/user") << content;
  }
  files.put("/user", privateFolders(true));
  files.refuse(MemoryFiles::Operation::read, "/user");
  EXPECT_EQ(Configuration(files, paths).unread()->cause, std::errc::permission_denied);
}

class ConfiguredProduct : public testing::Test {
 protected:
  ConfiguredProduct() { folder.makeFolder("root/home"); }
  void configure(const std::string& content) const { folder.write("config/tarvo-manager/config.plist", content); }
  ProductOptions options() const {
    ProductOptions options;
    options.root = folder / "root";
    options.home = folder / "root/home";
    return options;
  }
  const TemporaryFolder folder;
  const Environment set{{{"XDG_CONFIG_HOME", folder / "config"}, {"XDG_CONFIG_DIRS", ""}}};
};

TEST_F(ConfiguredProduct, makesTheFoldersOfAHomeAsTheConfigurationSays) {
  const auto make = [this](const char* name) {
    Product product(options());
    EXPECT_TRUE(product.files().makeFolder(folder.at(std::string("root/home/") + name + "/inner")));
    EXPECT_TRUE(product.files().makeFolder(folder.at(std::string("root/") + name)));
    EXPECT_EQ(folder.mode(std::string("root/") + name), 0777U) << "other users' too";
    return std::pair(folder.mode(std::string("root/home/") + name),
                     folder.mode(std::string("root/home/") + name + "/inner"));
  };
  EXPECT_EQ(make("none"), std::pair(0777U, 0777U));
  configure(privateFolders(false));
  EXPECT_EQ(make("off"), std::pair(0777U, 0777U));
  configure(privateFolders(true));
  EXPECT_EQ(make("on"), std::pair(0700U, 0700U));
}

TEST_F(ConfiguredProduct, makesThePlaceOfTheLockOfTheHomeToo) {
  configure(privateFolders(true));
  Product product(options());
  EXPECT_EQ(userPlace(product.files(), product.locations(), product.paths()).lock, lockPath(product.locations()));
  EXPECT_EQ(folder.mode("root/home/Library"), 0700U);
  EXPECT_EQ(folder.mode("root/home/Library/Preferences"), 0700U);
  EXPECT_TRUE(folder.names("root/home/Library/Preferences").empty());
}

TEST_F(ConfiguredProduct, sendsPlainPasswordsWhereTheConfigurationSaysSo) {
  const ScriptedServer proxy([](const SeenRequest&) { return Reply{401, {}, ""}; });
  const Environment behindIt({{"http_proxy", proxy.address()}, {"no_proxy", ""}, {"NO_PROXY", ""}});
  folder.write("root/home/.netrc", "machine styles.invalid login taro password pass-word\n");
  ProductOptions asked = options();
  asked.engine = "http://styles.invalid/x";
  const auto credentials = [&] {
    Product product(asked);
    const std::unique_ptr<Engine> engine = product.makeEngine(product.files());
    engine->waitForAnswer(std::chrono::seconds(10));
    EXPECT_FALSE(engine->checkConnectionWithCurl());
    const bool isKeptBack = engine->couldReach().error().cause == Reason::plainPassword;
    const std::vector<SeenRequest> seen = proxy.requests();
    const std::string sent = seen.empty() ? "no request" : seen.back().header("authorization");
    EXPECT_EQ(isKeptBack, sent.empty());
    return sent;
  };
  EXPECT_EQ(credentials(), "");
  configure(list("<key>AllowPlainPasswords</key><true/>"));
  EXPECT_EQ(credentials(), "Basic dGFybzpwYXNzLXdvcmQ=");
}

TEST_F(ConfiguredProduct, trustsAServiceByTheCertificatesOfTheConfigurationElseOfTheEnvironment) {
  const WebServer server("nginx", "IP:127.0.0.1");
  if (!server.isHere()) GTEST_SKIP() << "nginx is not installed";
  ProductOptions asked = options();
  asked.engine = server.address();
  const auto reaches = [&] {
    Product product(asked);
    const std::unique_ptr<Engine> engine = product.makeEngine(product.files());
    engine->waitForAnswer(std::chrono::seconds(10));
    return engine->checkConnectionWithCurl();
  };
  const Environment elsewhere({{"SSL_CERT_FILE", "/nowhere.pem"}, {"no_proxy", "*"}});
  EXPECT_FALSE(reaches());
  configure(list("<key>CAFile</key><string>" + server.certificate() + "</string>"));
  EXPECT_TRUE(reaches());
  configure(list(""));
  const Environment known({{"SSL_CERT_FILE", server.certificate()}});
  EXPECT_TRUE(reaches());
}

TEST_F(ConfiguredProduct, tellsOfAConfigurationThatCannotBeRead) {
  configure("damaged");
  const Product product(options());
  ASSERT_TRUE(product.unread());
  EXPECT_EQ(product.unread()->path, folder / "config/tarvo-manager/config.plist");
}

}  // namespace
}  // namespace tarvo::test
