// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <random>

#include "install/addin_diagnosis.h"
#include "install/office_folder_search.h"
#include "install/old_scripts.h"
#include "platform/services/common_module.h"
#include "platform/services/product_paths.h"
#include "platform/services/script_runner.h"
#include "tests/install/addin_world.h"

// Lists of applications as no product ships them and no run leaves them: other kinds, missing keys, odd names. Whatever
// they hold, every gesture ends, tells what it did, and leaves alone what no record names.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;
using namespace addin_keys;

constexpr unsigned trials = 150;

class OddValues {
 public:
  explicit OddValues(unsigned seed) : random_(seed) {}
  bool once(int inSo) { return number(inSo) == 0; }
  int number(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }
  template <std::size_t n>
  std::string oneOf(const std::string (&values)[n]) {
    return values[static_cast<std::size_t>(number(static_cast<int>(n)))];
  }

  PropertyList value(int depth = 0) {
    switch (number(depth < 2 ? 6 : 4)) {
      case 0: return number(3) - 1;
      case 1: return once(2);
      case 2: return Data{std::byte{0}, std::byte{255}};
      case 3: return oneOf(texts_);
      case 4: return Array{value(depth + 1), value(depth + 1)};
      default: {
        Dictionary dictionary;
        dictionary.set(oneOf(texts_), value(depth + 1));
        return dictionary;
      }
    }
  }
  AddinEntry record() {
    AddinEntry entry;
    put(entry, appName, oneOf(texts_));
    put(entry, appCreator, oneOf(creators_));
    put(entry, appVersion, oneOf(versions_));
    put(entry, appPath, oneOf(applications_));
    put(entry, installMacroName, oneOf(items_));
    put(entry, installFolderPath, oneOf(folders_));
    put(entry, installFolderName, oneOf(folders_));
    if (once(2)) entry.set(installStatus, value());
    return entry;
  }
  Array records() {
    Array list;
    for (int count = number(12); count > 0; --count) list.push_back(once(6) ? value() : PropertyList(record()));
    return list;
  }

 private:
  // Mostly what belongs there, now and then something else or nothing.
  void put(AddinEntry& entry, const char* key, const std::string& text) {
    if (once(10)) return;
    entry.set(key, once(10) ? value() : PropertyList(text));
  }
  std::mt19937 random_;
  const std::string texts_[6] = {"", "Word", "が 名前", "a\nb", std::string("nul\0l", 5), std::string(3000, 'x')};
  const std::string creators_[6] = {"MSWD", "XCEL", "OPIM", "emal", "emal", "none"};
  const std::string versions_[4] = {"2011", "2004", "", "x"};
  const std::string applications_[6] = {"/Applications/Word.app", "/Applications/Word.app", "/Applications/Mail.app",
                                        "/Applications",          "/Applications/gone.app", "Applications/Word.app"};
  const std::string items_[10] = {
      "Macros/Tarvo.dotm",        "Mail/Tarvo", "Mail/Empty", "Tarvo", "", "/", "..", "Mail/Tarvo/.", ".dotm",
      std::string("Mail/T\0o", 8)};
  const std::string folders_[8] = {"/Startup", "/Startup/",     "Scripts",  "Scripts/Mail",
                                   "/linked",  "/Startup/file", "/nowhere", ""};
};

class Version14 : public ScriptRunner {
 public:
  std::optional<std::string> runScript(const std::string&) override { return "14"; }
};

class OddWorld : public AddinWorld {
 public:
  explicit OddWorld(unsigned seed) : odd_(seed) {
    for (const char* name : {"root/Applications/Word.app", "root/Applications/Mail.app", "root/Users/taro/Scripts/Mail",
                             "root/Users/taro/Scripts/«MailTarvoFolderName»", "resources/Mail/Empty"}) {
      folder.makeFolder(name);
    }
    for (const char* name : {"root/Startup/file", "outside/Tarvo/keep", "outside/keep", "resources/Macros/Tarvo.dotm",
                             "resources/Mail/Tarvo/a.scpt", "resources/Mail/Tarvo/sub/b.scpt"}) {
      folder.write(name, name);
    }
    fs::create_symlink(folder / "outside", folder / "root/Users/taro/Scripts/Mail/Tarvo");
    fs::create_symlink("nowhere", folder / "root/Startup/Tarvo");
    Dictionary shipped;
    shipped.set(office, odd_.once(10) ? odd_.value() : PropertyList(odd_.records()));
    folder.write("resources/DefaultAddin.plist", writePropertyList(shipped));
    if (!odd_.once(3)) defaults.set(office, odd_.once(10) ? odd_.value() : PropertyList(odd_.records()));
  }

  bool start() {
    const PropertyList* remembered = defaults.find(office);
    const bool isRemembered = remembered != nullptr && remembered->array() != nullptr;
    const bool started = AddinWorld::start();
    EXPECT_EQ(started, isRemembered || lists.fDefaultOfficeSetArray().has_value());
    return started;
  }

  void use() {
    OldScripts({files, panels, texts}, lists, mailScripts, locations.home()).OldscriptUninstall();
    for (const int page : {1, 2}) {
      panes.tab.selectPage(page);
      TableView& view = page == 1 ? outlets.officeTableView : outlets.mailTableView;
      for (int row = 0; row < view.numberOfRows(); ++row) {
        for (const bool on : {true, false, true}) tick(view, row, on);
        view.userSelect({row});
      }
    }
    if (lists.fDefaultOfficeSetArray()) {
      for (const AddinLists::SharedEntry& shipped : *lists.fDefaultOfficeSetArray()) {
        for (const char* creator : {"MSWD", "OPIM"}) {
          search_.getAddOfficeDictionary(*shipped, 14, real("/Applications/Word.app"), creator, real("/Startup"));
        }
      }
    }
    table.reloadTables();
    for (const auto* rows : {&lists.fOfficeAddinArray(), &lists.fMailAddinArray()}) {
      for (const AddinEntry& row : *rows) diagnoseAddin(row, files, locations, bundle);
    }
  }

  // The Office rows come back as they were, whatever they hold; those of mail may have lost their folder.
  void endAndStartAgain() {
    const std::vector<AddinEntry> before = lists.fOfficeAddinArray();
    lists.storeRows();
    ASSERT_TRUE(lists.searchOfficeApplication());
    ASSERT_EQ(lists.fOfficeAddinArray().size(), before.size());
    for (std::size_t i = 0; i < before.size(); ++i) {
      EXPECT_EQ(with(lists.fOfficeAddinArray()[i], installStatus, false), with(before[i], installStatus, false));
    }
    UserDefaults fromDisk(disk, real(settings));
    EXPECT_NE(fromDisk.find(office), nullptr);
  }

  void expectWhatNoRecordNames() const {
    for (const char* name : {"root/Startup/file", "outside/Tarvo/keep", "outside/keep", "resources/Macros/Tarvo.dotm",
                             "resources/Mail/Tarvo/a.scpt", "resources/Mail/Tarvo/sub/b.scpt"}) {
      EXPECT_EQ(folder.read(name), name);
    }
    for (const char* name : {"root/Applications/Word.app", "root/Applications/Mail.app", "root/Startup",
                             "root/Users/taro/Scripts/«MailTarvoFolderName»", "root/Users/taro/Scripts/Mail/Tarvo"}) {
      EXPECT_TRUE(folder.exists(name)) << name;
    }
  }

 private:
  void tick(TableView& view, int row, bool on) {
    log.clear();
    view.userTick(row, on);
    const std::string text = view.tag() == 0 ? officeText() : mailText();
    const bool done = text.ends_with("IsSuccessed»");
    EXPECT_TRUE(done || text.ends_with("IsFailed»")) << text;
    EXPECT_EQ(log, done ? Log{} : Log{"beep"});
    EXPECT_EQ(view.cell("Value", row).checked, std::optional(on == done));
  }
  OddValues odd_;
  Version14 scripts_;
  ProductPaths paths_{locations, Dictionary{}};
  TarvoCommonModule module_{paths_};
  OfficeFolderSearch search_{{files, locations, scripts_, module_}, lists, mailScripts};
};

TEST(OddRecords, leaveAloneWhatTheyDoNotNameAndComeBack) {
  int started = 0, rows = 0;
  for (unsigned seed = 0; seed < trials && !testing::Test::HasFailure(); ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    OddWorld world(seed);
    if (world.start()) {
      ++started;
      rows += world.outlets.officeTableView.numberOfRows() + world.outlets.mailTableView.numberOfRows();
      world.use();
      world.endAndStartAgain();
    }
    world.expectWhatNoRecordNames();
  }
  EXPECT_GT(started, 100);
  EXPECT_GT(rows, 200);
}

}  // namespace
}  // namespace tarvo::test
