// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "platform/plist/json.h"
#include "platform/posix/instance_lock.h"
#include "tests/console/verbs/verb_test.h"

// The verbs as an administrator meets them: output, messages and status.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

using Verbs = VerbTest;

TEST_F(Verbs, stylesListsIndexNameAndTools) {
  putStyles("root4.plist");
  const ToolResult result = run({"styles"});
  EXPECT_EQ(result.out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  Beta        QB\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

TEST_F(Verbs, stylesListsAsJson) {
  putStyles("root4.plist");
  EXPECT_EQ(run({"styles", "--json"}).out, R"([{"divider":false,"index":0,"name":"NomalStyle","tools":["MG"]},)"
                                           R"({"divider":false,"index":1,"name":"Alpha","tools":[]},)"
                                           R"({"divider":true,"index":2,"name":"keyNameSeparator","tools":[]},)"
                                           R"({"divider":false,"index":3,"name":"Beta","tools":["QB"]}])"
                                           "\n");
}

TEST_F(Verbs, stylesOfTheProductAreListedBeforeTheFirstStart) {
  const fs::path seed = root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist";
  fs::copy_file(scenarioFolder() + "/fixtures/two-styles.plist", seed);
  EXPECT_EQ(run({"styles"}).out, "0  One\n1  Two  MG\n");
}

TEST_F(Verbs, nothingToListIsToldAndRefused) {
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"styles"}, std::vector<std::string>{"style", "show", "0"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "there is no style file that can be read\n");
    EXPECT_EQ(result.status, 1);
  }
}

TEST_F(Verbs, styleShowPrintsTheRecord) {
  putStyles("root4.plist");
  EXPECT_EQ(run({"style", "show", "3"}).out,
            "EJ.Opt1        2\nEJ.Opt2        2\nEJ.Opt3        1\nEJ.TD          b.TRet, a.TRet\n"
            "EJ.UD          u.eud2\nFuture.k       1\nID             3\nJE.FLEX_MODE   x\nJE.PARS_SAHEN  past\n"
            "JE.TD          j2.TRet\nJE.TOpt1       4\nJE.TOpt2       4\nJE.TOpt3       0\nJE.TOpt4       true\n"
            "JE.TOpt5       0\nName           Beta\n");
  EXPECT_EQ(style(1), R"({"EJ":{"Opt1":1,"Opt2":0,"Opt3":0},"ID":1,"JE":{"TOpt1":0,"TOpt2":0,"TOpt3":0,"TOpt4":false,)"
                      R"("TOpt5":0},"Name":"Alpha"})"
                      "\n");
}

TEST_F(Verbs, styleShowOfAMissingStyleIsAUsageError) {
  putStyles("root4.plist");
  for (const char* index : {"4", "-1"}) {
    const ToolResult result = run({"style", "show", "--", index});
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, std::string("there is no style ") + index + "\n");
    EXPECT_EQ(result.status, 2);
  }
}

TEST_F(Verbs, listingsOnlyRead) {
  putStyles("root4.plist");
  const auto before = tree();
  run({"styles"});
  run({"style", "show", "0"});
  run({"doctor"});
  EXPECT_EQ(tree(), before);
}

TEST_F(Verbs, styleSetStoresEachValueAndRestoresTheChoice) {
  putStyles("root4.plist");
  const ToolResult result = run({"style", "set", "1", "Opt2=2", "TOpt5=1", "GENE_NADONO=e.g.", "alphabet=1"});
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(style(1),
            R"({"EJ":{"Opt1":1,"Opt2":2,"Opt3":0},"ID":1,"JE":{"GENE_NADONO":"e.g.","TOpt1":0,"TOpt2":0,"TOpt3":0,)"
            R"("TOpt4":false,"TOpt5":1,"alphabet":"1"},"Name":"Alpha"})"
            "\n");
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  Beta        QB\n");
}

TEST_F(Verbs, styleSetShowsNoWindowAndKeepsTheChosenPane) {
  putStyles("root4.plist");
  run({"style", "set", "0", "Opt1=1"});
  const std::string settings =
      root_.folder().read("root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist");
  EXPECT_NE(settings.find("ToolbarTag"), std::string::npos);
  EXPECT_EQ(settings.find("MyWindowFrame"), std::string::npos);
}

TEST_F(Verbs, styleSetWithAValueThatNoControlOffersChangesNothing) {
  putStyles("root4.plist");
  const auto before = tree();
  for (const char* pair : {"Opt1=3", "Opt1=-1", "Opt1=", "Opt1", "Opt4=0", "TOpt4=1", "PARS_SAHEN=future", "Name=x",
                           "pars_sahen=past", "Opt1=1x", "=1"}) {
    const ToolResult result = run({"style", "set", "1", "Opt2=2", pair});
    EXPECT_EQ(result.err, std::string("no control offers ") + pair + "\n");
    EXPECT_EQ(result.status, 2);
  }
  EXPECT_EQ(tree(), before);
}

TEST_F(Verbs, styleSetOnAStyleThatCannotBeChosenChangesNothing) {
  putStyles("root4.plist");
  const auto before = tree();
  EXPECT_EQ(run({"style", "set", "4", "Opt1=1"}).err, "there is no style 4\n");
  EXPECT_EQ(run({"style", "set", "2", "Opt1=1"}).err, "style 2 is the divider\n");
  EXPECT_EQ(run({"style", "set", "2", "Opt1=1"}).status, 2);
  putStyles("no-selection.plist");
  const ToolResult refused = run({"style", "set", "3", "Opt1=1"});
  EXPECT_EQ(refused.err, "the style file remembers no choice of a style: options can be set for style 0 only\n");
  EXPECT_EQ(refused.status, 1);
  putStyles("root4.plist");
  EXPECT_EQ(tree(), before);
}

TEST_F(Verbs, styleSetTellsThatAStyleLacksTheDirection) {
  putStyles("no-je.plist");
  EXPECT_EQ(run({"style", "set", "1", "Opt1=2"}).status, 0);
  const std::string before = style(1);
  const ToolResult refused = run({"style", "set", "1", "Opt1=0", "KATA1=0"});
  EXPECT_EQ(refused.err, "style 1 is damaged: it lacks the direction of these options\n");
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(style(1), before);
}

TEST_F(Verbs, styleSetReachesTheFirstStyleWithoutARememberedChoice) {
  putStyles("no-selection.plist");
  EXPECT_EQ(run({"style", "set", "0", "Opt1=2"}).status, 0);
  EXPECT_EQ(style(0).find("{\"EJ\":{\"Opt1\":2,"), 0U);
}

TEST_F(Verbs, styleSetRestoresTheDividerAsTheChoice) {
  putStyles("divider-selected.plist");
  EXPECT_EQ(run({"style", "set", "1", "Opt1=2"}).status, 0);
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle\n1  Alpha\n2  (divider)   MG\n3  Beta        QB\n");
}

TEST_F(Verbs, styleSetWaitsForNobody) {
  putStyles("root4.plist");
  const auto before = tree();
  const InstanceLock lock(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock");
  ASSERT_EQ(lock.state(), InstanceLock::State::held);
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, "another manager works on these files\n");
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(run({"styles"}).status, 0);
  auto after = tree();
  after.erase("root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.lock");
  EXPECT_EQ(after, before);
}

TEST_F(Verbs, aScriptStartsNoProgramOnFilesThatAnotherOneHolds) {
  putStyles("root4.plist");
  const InstanceLock lock(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock");
  const std::string script = root_.root() + "/start.scenario";
  std::ofstream(script) << "default ToolbarTag\nstart\n";
  const ToolResult result = run({"run", script});
  EXPECT_EQ(result.err, script + ":2: another manager works on these files\n");
  EXPECT_EQ(result.status, 3);
}

TEST_F(Verbs, styleSetTellsAFailedWrite) {
  fs::copy_file(scenarioFolder() + "/fixtures/root4.plist",
                root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  fs::create_directories(fs::path(root_.home()) / styleFile);
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, root_.home() + "/" + styleFile + ": Failure.write; Cause.isFolder\n");
  EXPECT_EQ(result.status, 1);
}

TEST_F(Verbs, styleSetTellsWhyTheStartFailed) {
  fs::copy_file(scenarioFolder() + "/fixtures/root4.plist",
                root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  root_.folder().write("root/Users/taro/Library", "text");
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, "ApplicationCautionHeader: ApplicationCautionMessage\n");
  EXPECT_EQ(result.status, 1);
}

TEST_F(Verbs, anEngineAddressThatNothingServesIsAUsageError) {
  putStyles("root4.plist");
  const ToolResult result = run({"--engine", "gopher://engine.example", "style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, "there is no style service of this kind: gopher://engine.example\n");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(run({"--engine", "none", "style", "set", "1", "Opt1=2"}).err, "");
}

TEST_F(Verbs, anEngineThatCannotBeReachedIsToldOnce) {
  putStyles("root4.plist");
  const ToolResult result =
      run({"--paths", "fixtures/paths/no-engine-paths.plist", "style", "set", "1", "Opt1=2", "Opt2=2"});
  EXPECT_EQ(result.err,
            "the style service cannot be reached; it keeps its former styles (Failure.reach; Cause.noService)\n");
  EXPECT_EQ(result.status, 0);
}

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

TEST_F(Verbs, doctorFindsNothingMissingThatAStartMakes) {
  putStyles("root4.plist");
  run({"style", "set", "0", "Opt1=1"});
  const auto states = byPath(run({"doctor", "--json"}).out);
  for (const char* path :
       {"home:/Library/Preferences/com.wordhaven.TarvoManager.plist",
        "home:/Library/Preferences/Wordhaven/TarvoManager.txt", "home:/Library/Application Support/Wordhaven/UserDic",
        "home:/Library/Application Support/Wordhaven/TarvoEngine.plist",
        "home:/Library/Preferences/com.wordhaven.TarvoManager.lock"}) {
    EXPECT_EQ(states.at(path), Json("ok")) << path;
  }
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

TEST_F(Verbs, theCommandLineIsChecked) {
  EXPECT_EQ(run({"--version"}).out, "tarvoctl " TARVO_VERSION "\n");
  EXPECT_EQ(run({"--version"}).status, 0);
  EXPECT_EQ(run({"--help"}).status, 0);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{}, std::vector<std::string>{"frobnicate"}, std::vector<std::string>{"style"},
        std::vector<std::string>{"style", "show"}, std::vector<std::string>{"style", "set", "1"},
        std::vector<std::string>{"style", "show", "x"}, std::vector<std::string>{"styles", "--language", "fr"},
        std::vector<std::string>{"styles", "--strings", "missing.strings"},
        std::vector<std::string>{"styles", "--paths", "missing.plist"},
        std::vector<std::string>{"run", "missing.scenario"}, std::vector<std::string>{"run", "fixtures"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.status, 2) << testing::PrintToString(words);
    EXPECT_EQ(result.out, "") << testing::PrintToString(words);
    EXPECT_NE(result.err, "") << testing::PrintToString(words);
  }
}

TEST_F(Verbs, optionsMayStandBehindTheVerb) {
  putStyles("root4.plist");
  const ToolResult result =
      runTool({"style", "show", "0", "--json", "--root", root_.root(), "--home", root_.home()}, scenarioFolder());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, style(0));
}

}  // namespace
}  // namespace tarvo::test
