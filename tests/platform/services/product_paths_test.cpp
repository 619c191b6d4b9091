// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/product_paths.h"

#include <gtest/gtest.h>

#include "platform/services/common_module.h"
#include "platform/services/locations.h"

namespace tarvo {
namespace {

TEST(ProductPaths, withoutAConfigurationTheUsualPlacesHold) {
  const Locations locations("/srv/root", "/srv/root/Users/taro");
  ProductPaths paths(locations, std::nullopt);
  EXPECT_EQ(paths.tarvoPathLoadDictAndHelper(0), 1);
  EXPECT_EQ(paths.tarvoPathPreferencesFolderURL().text(), "/srv/root/Users/taro/Library/Preferences/Wordhaven");
  EXPECT_EQ(paths.tarvoPathTranslationStylePathURL().text(),
            "/srv/root/Users/taro/Library/Preferences/Wordhaven/TarvoStyle2009.plist");
  const std::string product = "/Library/Application Support/Wordhaven";
  EXPECT_EQ(paths.tarvoPathTechnicalDicEngFolderURL().text(), "/srv/root" + product + "/TarvoEiwa/TechDic/EJ");
  EXPECT_EQ(paths.tarvoPathTechnicalDicJpnFolderURL().text(), "/srv/root" + product + "/TarvoEiwa/TechDic/JE");
  EXPECT_EQ(paths.tarvoPathUserDicFolderURL().text(), "/srv/root/Users/taro" + product + "/UserDic");
  EXPECT_EQ(paths.tarvoPathUserTmaFolderURL().text(), "/srv/root/Users/taro" + product + "/UserTMA");
  EXPECT_EQ(paths.localEnginePath().text(), "/srv/root/Users/taro" + product + "/TarvoEngine.plist");
  EXPECT_EQ(paths.preferencesWordhavenCache().text(), "/Users/taro/Library/Preferences/Wordhaven/Cache");
  EXPECT_EQ(paths.volumeName(), "Macintosh HD");
  for (const std::string& none :
       {paths.tarvoPathSupportURL(), paths.tarvoPathHomepageURL(), paths.engineURL(),
        paths.tarvoPathGetAppleyPath(4).text(), paths.tarvoPathMemoryEtoJTitle(), paths.tarvoPathMemoryJtoETitle(),
        paths.tarvoPathMemoryEtoJURL().text(), paths.tarvoPathMemoryJtoEURL().text()}) {
    EXPECT_EQ(none, "");
  }
}

TEST(ProductPaths, everyPlaceCanBeConfigured) {
  const Locations locations("/srv/root", "/home/taro");
  using Answer = std::string (*)(const ProductPaths&);
  const struct {
    const char* key;
    Answer answer;
    const char* root = "/srv/root";  // before what is answered: "" for the product's spelling
  } rows[] = {
      {"tarvoPathPreferencesFolderURL", [](const ProductPaths& p) { return p.tarvoPathPreferencesFolderURL().text(); }},
      {"tarvoPathTechnicalDicEngFolderURL",
       [](const ProductPaths& p) { return p.tarvoPathTechnicalDicEngFolderURL().text(); }},
      {"tarvoPathTechnicalDicJpnFolderURL",
       [](const ProductPaths& p) { return p.tarvoPathTechnicalDicJpnFolderURL().text(); }},
      {"tarvoPathUserDicFolderURL", [](const ProductPaths& p) { return p.tarvoPathUserDicFolderURL().text(); }},
      {"tarvoPathUserTmaFolderURL", [](const ProductPaths& p) { return p.tarvoPathUserTmaFolderURL().text(); }},
      {"tarvoPathMemoryEtoJURL", [](const ProductPaths& p) { return p.tarvoPathMemoryEtoJURL().text(); }},
      {"tarvoPathMemoryJtoEURL", [](const ProductPaths& p) { return p.tarvoPathMemoryJtoEURL().text(); }},
      {"tarvoPathTranslationStylePathURL",
       [](const ProductPaths& p) { return p.tarvoPathTranslationStylePathURL().text(); }},
      {"tarvoPathGetAppleyPath.4", [](const ProductPaths& p) { return p.tarvoPathGetAppleyPath(4).text(); }, ""},
      {"preferencesWordhavenCache", [](const ProductPaths& p) { return p.preferencesWordhavenCache().text(); }, ""},
      {"LocalEnginePath", [](const ProductPaths& p) { return p.localEnginePath().text(); }},
  };
  for (const auto& row : rows) {
    const auto configured = [&](PropertyList value) {
      Dictionary list;
      list.set(row.key, std::move(value));
      return row.answer(ProductPaths(locations, list));
    };
    EXPECT_EQ(configured("/x/辞書"), row.root + std::string("/x/辞書")) << row.key;
    EXPECT_EQ(configured("~/x"), "/home/taro/x") << row.key;
    EXPECT_EQ(configured("~"), "/home/taro") << row.key;
    EXPECT_EQ(configured("/srv/root/x"), row.root + std::string("/x")) << row.key;
    EXPECT_EQ(configured(5), row.answer(ProductPaths(locations, Dictionary{}))) << row.key << " of another kind";
  }
}

TEST(ProductPaths, listsOfPathsAreSpelledAsPathsAre) {
  const Locations locations("/srv/root", "/home/taro");
  const ProductPaths none(locations, Dictionary{});
  EXPECT_EQ(none.applicationFolders(),
            (std::vector{DiskPath("/srv/root/Applications"), DiskPath("/srv/root/Applications/Utilities"),
                         DiskPath("/home/taro/Applications")}));
  EXPECT_EQ(none.runningApplications(), std::vector<ProductPath>{});
  Dictionary list;
  list.set("ApplicationFolders", Array{"/srv/root/opt", 7, "~/辞書"});
  list.set("RunningApplications", Array{"/A/T.app"});
  const ProductPaths configured(locations, list);
  EXPECT_EQ(configured.applicationFolders(), (std::vector{DiskPath("/srv/root/opt"), DiskPath("/home/taro/辞書")}));
  EXPECT_EQ(configured.runningApplications(), std::vector{ProductPath("/A/T.app")});
  list.set("ApplicationFolders", "/opt");
  EXPECT_EQ(ProductPaths(locations, list).applicationFolders(), none.applicationFolders()) << "no list";
}

TEST(ProductPaths, textsAndNumbersAreTakenAsTheyStand) {
  const Locations locations("/", "/home/taro");
  Dictionary list;
  for (const char* key : {"tarvoPathMemoryEtoJTitle", "tarvoPathMemoryJtoETitle", "tarvoPathSupportURL",
                          "tarvoPathHomepageURL", "VolumeName", "EngineURL"}) {
    list.set(key, std::string("~/") + key);
  }
  list.set("tarvoPathLoadDictAndHelper", 7);
  ProductPaths paths(locations, list);
  EXPECT_EQ(paths.tarvoPathMemoryEtoJTitle(), "~/tarvoPathMemoryEtoJTitle");
  EXPECT_EQ(paths.tarvoPathMemoryJtoETitle(), "~/tarvoPathMemoryJtoETitle");
  EXPECT_EQ(paths.tarvoPathSupportURL(), "~/tarvoPathSupportURL");
  EXPECT_EQ(paths.tarvoPathHomepageURL(), "~/tarvoPathHomepageURL");
  EXPECT_EQ(paths.volumeName(), "~/VolumeName");
  EXPECT_EQ(paths.engineURL(), "~/EngineURL");
  EXPECT_EQ(paths.tarvoPathLoadDictAndHelper(0), 7);
  EXPECT_EQ(ProductPaths(locations, Dictionary{}).tarvoPathLoadDictAndHelper(0), 0);
}

TEST(ProductPaths, isInitializedBetweenItsTwoCalls) {
  const Locations locations("/", "/home/taro");
  ProductPaths paths(locations, Dictionary{});
  EXPECT_FALSE(paths.isInitialized());
  paths.tarvoPathInitialize();
  EXPECT_TRUE(paths.isInitialized());
  paths.tarvoPathTerminate();
  EXPECT_FALSE(paths.isInitialized());
}

TEST(CommonModule, answersTheCacheFolderAndClassicPathsOnTheConfiguredVolume) {
  const Locations locations("/", "/home/taro");
  Dictionary list;
  list.set("VolumeName", "起動ディスク");
  const ProductPaths paths(locations, list);
  const TarvoCommonModule module(paths);
  EXPECT_EQ(module.preferencesWordhavenCache().text(), "/home/taro/Library/Preferences/Wordhaven/Cache");
  EXPECT_EQ(module.unixPathToClassic(ProductPath("/a/b")), "起動ディスク:a:b");
}

}  // namespace
}  // namespace tarvo
