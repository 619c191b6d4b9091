// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>

#include "platform/plist/json.h"
#include "tests/console/verbs/verb_test.h"

// What the doctor tells of styles, settings and the style service.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

using Verbs = VerbTest;

std::map<std::string, Json> byPath(const std::string& listing) {
  std::map<std::string, Json> all;
  const std::optional<Json> list = readJson(listing);
  for (const Json& row : std::get<Json::List>(list->value())) {
    const auto& object = std::get<Json::Object>(row.value());
    all[std::get<std::string>(object.at("path").value())] = object.at("state");
  }
  return all;
}

TEST_F(Verbs, doctorTellsWhatLiesWhere) {
  putStyles("root4.plist");
  root_.folder().write("root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist", "broken");
  const auto states = byPath(run({"doctor", "--json"}).out);
  EXPECT_EQ(states.at(std::string("home:/") + styleFile), Json("ok"));
  EXPECT_EQ(states.at("home:/Library/Preferences/com.wordhaven.TarvoManager.plist"), Json("problem"));
  EXPECT_EQ(states.at("home:/Library/Preferences/com.wordhaven.TarvoManager.lock"), Json("missing"));
  EXPECT_EQ(states.at("root:/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist"), Json("missing"));
  EXPECT_EQ(states.at("root:/Library/Application Support/Wordhaven/TarvoEiwa/TechDic/EJ"), Json("ok"));
  EXPECT_EQ(states.at("home:/Library/Application Support/Wordhaven/UserDic"), Json("missing"));
  EXPECT_EQ(states.at("home:/Library/Preferences/Wordhaven/TarvoManager.txt"), Json("missing"));
  EXPECT_EQ(states.at("home:/Library/Application Support/Wordhaven/TarvoEngine.plist"), Json("missing"));
  EXPECT_EQ(states.at("root:/System/Library/CoreServices/SystemVersion.plist"), Json("ok"));
}

TEST_F(Verbs, doctorNamesDatesThatOtherProgramsRefuseAndTheFileIsUsedAllTheSame) {
  putStyles("root4.plist");
  const std::string path = std::string("root/Users/taro/") + styleFile;
  std::string bytes = root_.folder().read(path);
  bytes.replace(bytes.find("<dict>"), 6, "<dict><key>When</key><date>----</date>");
  root_.folder().write(path, bytes);
  const std::string out = runInEnglish({"doctor"}).out;
  EXPECT_NE(out.find("When is \"----\": other programs may refuse the whole file"), std::string::npos) << out;
  EXPECT_EQ(run({"style", "set", "1", "Opt1=2"}).status, 0);
  EXPECT_NE(root_.folder().read(path).find("<date>----</date>"), std::string::npos);
}

TEST_F(Verbs, doctorNamesALockThatIsNoFile) {
  const std::string lock = "home:/Library/Preferences/com.wordhaven.TarvoManager.lock";
  root_.folder().write("root/file", "");
  fs::create_directories(root_.home() + "/Library/Preferences");
  fs::create_symlink(root_.root() + "/file", root_.home() + lock.substr(5));
  EXPECT_EQ(byPath(run({"doctor", "--json"}).out).at(lock), Json("problem"));
  fs::remove(root_.home() + lock.substr(5));
  fs::create_directory(root_.home() + lock.substr(5));
  EXPECT_EQ(byPath(run({"doctor", "--json"}).out).at(lock), Json("problem"));
}

TEST_F(Verbs, doctorNamesTheStyleServiceAndDoesNotAskIt) {
  const auto row = [this](const std::vector<std::string>& options) {
    const std::string out = runInEnglish([&] {
                              std::vector<std::string> words = options;
                              words.emplace_back("doctor");
                              return words;
                            }())
                                .out;
    const std::size_t at = out.rfind('\n', out.find("  style service "));
    return out.substr(at + 1, out.find('\n', at + 1) - at - 1);
  };
  EXPECT_TRUE(row({}).starts_with("ok "));
  EXPECT_TRUE(row({}).ends_with(" local")) << row({});
  EXPECT_TRUE(row({"--engine", "none"}).ends_with(" none"));
  EXPECT_TRUE(row({"--engine", "http://service.example/x"}).ends_with(" http"));
  root_.folder().write("root/odd.plist", "<plist><dict><key>EngineURL</key><string>ftp://x</string></dict></plist>");
  const std::string odd = row({"--paths", root_.root() + "/odd.plist"});
  EXPECT_TRUE(odd.starts_with("problem ")) << odd;
  EXPECT_TRUE(odd.ends_with("there is no style service of this kind")) << odd;
  const auto states = byPath(run({"--engine", "http://service.example/x", "doctor", "--json"}).out);
  EXPECT_EQ(states.at("home:/.netrc"), Json("missing"));
  EXPECT_EQ(states.at("http://service.example/x"), Json("ok"));
}

TEST_F(Verbs, oneConfigurationGivesEachUserAResource) {
  const std::string address = "http://service.example/{user}.plist";
  root_.folder().write("root/many.plist",
                       "<plist><dict><key>EngineURL</key><string>" + address + "</string></dict></plist>");
  for (const std::vector<std::string>& options :
       {std::vector<std::string>{"--engine", address}, {"--paths", root_.root() + "/many.plist"}}) {
    std::vector<std::string> words = options;
    words.insert(words.end(), {"doctor", "--json"});
    EXPECT_EQ(byPath(run(words).out).at("http://service.example/taro.plist"), Json("ok"));
  }
}

TEST_F(Verbs, doctorFindsNothingMissingThatAStartAndAnEditMake) {
  putStyles("root4.plist");
  const std::string script = root_.root() + "/start.scenario";
  std::ofstream(script) << "start\nquit\n";
  EXPECT_EQ(run({"run", script}).status, 0);
  EXPECT_EQ(run({"style", "set", "0", "Opt1=1"}).status, 0);
  const auto states = byPath(run({"doctor", "--json"}).out);
  for (const char* path :
       {"home:/Library/Preferences/com.wordhaven.TarvoManager.plist",
        "home:/Library/Preferences/Wordhaven/TarvoManager.txt", "home:/Library/Application Support/Wordhaven/UserDic",
        "home:/Library/Application Support/Wordhaven/TarvoEngine.plist",
        "home:/Library/Preferences/com.wordhaven.TarvoManager.lock"}) {
    EXPECT_EQ(states.at(path), Json("ok")) << path;
  }
}

TEST_F(Verbs, doctorNamesFoldersThatEveryUserMayWriteToAndTheirCure) {
  const std::string library = root_.home() + "/Library/", made = library + "Application Support/Wordhaven/UserDic";
  fs::create_directories(made);
  fs::create_directories(library + "Preferences/Wordhaven");
  const auto named = [this](const std::string& path) {
    const std::string out = run({"doctor", "--json"}).out;
    return out.find("\"detail\":\"Doctor.OpenFolder\",\"path\":\"" + path +
                    "\",\"state\":\"ok\",\"what\":\"folder\"") != std::string::npos;
  };
  const auto permit = [](const std::string& path, unsigned mode) { fs::permissions(path, fs::perms(mode)); };
  permit(root_.folder().path(), 0755);
  for (fs::path above = root_.folder().path(); above != "/"; above = above.parent_path()) {
    const bool isOpen = (fs::status(above).permissions() & fs::perms::others_exec) != fs::perms::none;
    if (!isOpen) GTEST_SKIP() << "nobody else gets to " << above;
  }
  EXPECT_FALSE(named("home:/Library/Application Support/Wordhaven/UserDic"));
  permit(made, 0777);
  EXPECT_TRUE(named("home:/Library/Application Support/Wordhaven/UserDic"));
  permit(library, 0777);
  EXPECT_TRUE(named("home:/Library")) << "what lies above counts as well";
  EXPECT_FALSE(named("home:/Library/Preferences"));
  permit(root_.home(), 0700);
  EXPECT_FALSE(named("home:/Library")) << "nobody else gets there";
  EXPECT_FALSE(named("home:/Library/Application Support/Wordhaven/UserDic"));
  const std::string shared = root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TechDic/EJ";
  permit(shared, 0777);
  EXPECT_TRUE(named("root:/Library/Application Support/Wordhaven/TarvoEiwa/TechDic/EJ"));
  EXPECT_NE(runInEnglish({"doctor"}).out.find("in it; chmod o-w closes it to others"), std::string::npos);
}

TEST_F(Verbs, doctorSaysWhereFoldersAreMadePrivate) {
  root_.folder().write("config/tarvo-manager/config.plist",
                       "<plist><dict><key>PrivateFolders</key><true/></dict></plist>");
  const std::string folder = root_.folder() / "config";
  const ToolResult doctor = run({"doctor"}, {"--strings", "none"}, {"XDG_CONFIG_HOME=" + folder});
  EXPECT_NE(doctor.out.find("PrivateFolders"), std::string::npos);
  EXPECT_EQ(run({"new", "ej", "user", "N"}, {"--strings", "none"}, {"XDG_CONFIG_HOME=" + folder}).status, 0);
  EXPECT_EQ(fs::status(root_.home() + "/Library").permissions(), fs::perms::owner_all);
  root_.folder().write("config/tarvo-manager/config.plist", "damaged");
  const ToolResult refused = run({"styles"}, {}, {"XDG_CONFIG_HOME=" + folder});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.err, told(folder + "/tarvo-manager/config.plist", "cannot be read; it is no property list"));
}

TEST_F(Verbs, doctorDescribesBadStyleFiles) {
  const auto line = [this] {
    const std::string out = run({"doctor"}).out;
    return out.substr(0, out.find('\n'));
  };
  putStyles("no-selection.plist");
  EXPECT_TRUE(line().starts_with("problem  styles ")) << line();
  EXPECT_TRUE(line().ends_with("4 styles, no remembered choice")) << line();
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "broken");
  EXPECT_TRUE(line().ends_with("Failure.read; Cause.noPropertyList")) << line();
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "<plist><array/></plist>");
  EXPECT_TRUE(line().ends_with("Failure.read; Cause.noDictionary")) << line();
}

}  // namespace
}  // namespace tarvo::test
