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
    EXPECT_EQ(result.err, told(root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist",
                               "cannot be read; it is not there"));
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

TEST_F(Verbs, styleShowOfAMissingStyleIsRefused) {
  putStyles("root4.plist");
  for (const char* word : {"4", "99999999999", "Gamma", "name:Al", "beta"}) {
    const ToolResult result = run({"style", "show", word});
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, told(word, noSuchStyle));
    EXPECT_EQ(result.status, 1);
  }
}

TEST_F(Verbs, aStyleIsNamedByItsIndexItsNameOrAUniqueBeginning) {
  putStyles("root4.plist");
  for (const char* word : {"3", "03", "name:Beta", "Beta", "B", "Be"}) {
    EXPECT_EQ(run({"style", "show", word, "--json"}).out, style(3)) << word;
  }
  EXPECT_EQ(run({"style", "show", "2", "--json"}).out, style(2)) << "the divider can be shown";
}

TEST_F(Verbs, aBeginningOfSeveralNamesIsRefusedAndAWholeNameComesFirst) {
  putStyles("two-words.plist");
  root_.folder().write(std::string("root/Users/taro/") + styleFile,
                       "<plist><dict><key>Style</key><array><dict><key>Name</key><string>Law</string></dict>"
                       "<dict><key>Name</key><string>Lawyer</string></dict><dict><key>Name</key><string>name:x</string>"
                       "</dict><dict><key>Name</key><string>2</string></dict></array></dict></plist>");
  EXPECT_EQ(run({"style", "show", "Law"}).out, "Name  Law\n");
  EXPECT_EQ(run({"style", "show", "Lawy"}).out, "Name  Lawyer\n");
  EXPECT_EQ(run({"style", "show", "name:name:x"}).out, "Name  name:x\n");
  EXPECT_EQ(run({"style", "show", "name:2"}).out, "Name  2\n");
  EXPECT_EQ(run({"style", "show", "2"}).out, "Name  name:x\n");
  const ToolResult result = run({"style", "show", "La"});
  EXPECT_EQ(result.err, told("La",
                             "several styles are meant; 2 are called so or begin so; write more of the name, or "
                             "the index"));
  EXPECT_EQ(result.status, 1);
}

TEST_F(Verbs, aWordThatIsNoWholeNumberAndNoNameIsAUsageError) {
  putStyles("root4.plist");
  const auto before = tree();
  for (const char* word : {"", "+1", "0x1", " 1", "1 ", "1.0", "1e0"}) {
    for (const std::vector<std::string>& words :
         {std::vector<std::string>{"style", "show", word}, {"dictionaries", word, "ej"}}) {
      const ToolResult result = run(words);
      EXPECT_EQ(result.err,
                "tarvoctl: N " + std::string(word) +
                    ": not a value for this; allowed: an index, name:NAME, a name or its unique beginning\n");
      EXPECT_EQ(result.status, 2);
    }
    EXPECT_EQ(run({"style", "set", word, "Opt1=1"}).status, 2) << word;
  }
  EXPECT_EQ(run({"style", "show", "--", "-1"}).status, 2);
  EXPECT_EQ(treeButLock(), before);
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

TEST_F(Verbs, styleSetWithAValueThatNoControlOffersChangesNothing) {
  putStyles("root4.plist");
  const auto before = tree();
  const std::string notAValue = ": not a value for this; allowed: ";
  for (const auto& [pair, line] : {std::pair<std::string, std::string>{"Opt1=3", "Opt1 3" + notAValue + "0, 1, 2\n"},
                                   {"Opt1=-1", "Opt1 -1" + notAValue + "0, 1, 2\n"},
                                   {"Opt1=", "Opt1 " + notAValue + "0, 1, 2\n"},
                                   {"Opt1", "Opt1 " + notAValue + "0, 1, 2\n"},
                                   {"Opt1=1x", "Opt1 1x" + notAValue + "0, 1, 2; nearest: 1\n"},
                                   {"PARS_SAHEN=futur", "PARS_SAHEN futur" + notAValue + "present, past\n"}}) {
    const ToolResult result = run({"style", "set", "1", "Opt2=2", pair});
    EXPECT_TRUE(result.err.starts_with("tarvoctl: " + line.substr(0, line.size() - 1))) << result.err;
    EXPECT_EQ(result.status, 2);
  }
  for (const char* pair : {"Opt4=0", "TOpt4=1", "Name=x", "pars_sahen=past", "=1"}) {
    const ToolResult result = run({"style", "set", "1", "Opt2=2", pair});
    EXPECT_NE(result.err.find(notAValue + "Opt1, Opt2, Opt3, TOpt1, TOpt2, TOpt3, TOpt5, PARS_SAHEN, "),
              std::string::npos)
        << result.err;
    EXPECT_EQ(result.status, 2);
  }
  EXPECT_EQ(tree(), before);
}

TEST_F(Verbs, styleSetOnAStyleThatCannotBeEditedChangesNothing) {
  putStyles("root4.plist");
  const auto before = tree();
  EXPECT_EQ(run({"style", "set", "4", "Opt1=1"}).err, told("4", noSuchStyle));
  const ToolResult divider = run({"style", "set", "2", "Opt1=1"});
  EXPECT_EQ(divider.err, told("2", isDividerTold));
  EXPECT_EQ(divider.status, 1);
  EXPECT_EQ(treeButLock(), before);
}

TEST_F(Verbs, styleSetReachesEveryStyleWithoutARememberedChoice) {
  putStyles("no-selection.plist");
  EXPECT_EQ(run({"style", "set", "3", "Opt1=1"}).status, 0);
  EXPECT_EQ(style(3).find("{\"EJ\":{\"Opt1\":1,"), 0U);
}

TEST_F(Verbs, styleSetTellsThatAStyleLacksTheDirection) {
  putStyles("no-je.plist");
  EXPECT_EQ(run({"style", "set", "1", "Opt1=2"}).status, 0);
  const std::string before = style(1);
  const ToolResult refused = run({"style", "set", "1", "Opt1=0", "KATA1=0"});
  EXPECT_EQ(refused.err, told("Alpha", "the style is damaged; it lacks the direction JE; import a style in its place"));
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
  const InstanceLock lock(DiskPath(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock"));
  ASSERT_EQ(lock.state(), InstanceLock::State::held);
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, lockedLine());
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(run({"styles"}).status, 0);
  EXPECT_EQ(treeButLock(), before);
}

TEST_F(Verbs, aScriptStartsNoProgramOnFilesThatAnotherOneHolds) {
  putStyles("root4.plist");
  const InstanceLock lock(DiskPath(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock"));
  const std::string script = root_.root() + "/start.scenario";
  std::ofstream(script) << "default ToolbarTag\nstart\n";
  const ToolResult result = run({"run", script});
  EXPECT_EQ(result.err, script + ":2: another manager works on these files\n");
  EXPECT_EQ(result.status, 3);
}

TEST_F(Verbs, styleSetTellsAFailedWriteAndTheServiceDoesNotGetWhatIsNotStored) {
  putStyles("root4.plist");
  fs::copy_file(scenarioFolder() + "/fixtures/root4.plist",
                root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  fs::remove(stylePath());
  fs::create_symlink(root_.root() + "/nowhere/styles.plist", stylePath());
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, told(root_.root() + "/nowhere", "cannot be written; it is not there"));
  EXPECT_EQ(result.status, 1);
  EXPECT_FALSE(fs::exists(root_.home() + "/Library/Application Support/Wordhaven/TarvoEngine.plist"));
}

TEST_F(Verbs, aFolderThatCannotBeMadeIsTold) {
  fs::copy_file(scenarioFolder() + "/fixtures/root4.plist",
                root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  root_.folder().write("root/Users/taro/Library", "text");
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, told(root_.home() + "/Library", "this folder cannot be made; what should be a folder is none"));
  EXPECT_EQ(result.status, 1);
}

TEST_F(Verbs, anEngineAddressThatNothingServesIsAUsageError) {
  putStyles("root4.plist");
  const ToolResult result = run({"--engine", "gopher://engine.example", "style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, "there is no style service of this kind: gopher://engine.example\n");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(run({"--engine", "none", "style", "set", "1", "Opt1=2"}).err, "");
}

TEST_F(Verbs, aServiceThatCannotBeReachedIsToldOnceAndTheStatusSaysThatItWaits) {
  putStyles("root4.plist");
  const std::string service = "http://127.0.0.1:1/styles";
  const ToolResult result = run({"--engine", service, "style", "set", "1", "Opt1=2", "Opt2=2"});
  EXPECT_EQ(result.err, told(service,
                             "the styles are stored here only; nobody answers there; tarvoctl engine push hands "
                             "them over"));
  EXPECT_EQ(result.status, 5);
  EXPECT_NE(style(1).find("\"Opt2\":2"), std::string::npos);
  const ToolResult none = run({"--paths", "fixtures/paths/no-engine-paths.plist", "style", "set", "1", "Opt1=1"});
  EXPECT_EQ(none.err, "");
  EXPECT_EQ(none.status, 0);
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
        std::vector<std::string>{"style", "show", "+1"}, std::vector<std::string>{"styles", "--language", "fr"},
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
