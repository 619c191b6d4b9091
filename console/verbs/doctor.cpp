// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/doctor.h"

#include <array>
#include <vector>

#include "app/product.h"
#include "app/user_files.h"
#include "console/verbs/dictionary_services.h"
#include "console/verbs/doctor_addins.h"
#include "console/verbs/doctor_folders.h"
#include "console/verbs/doctor_former_styles.h"
#include "console/verbs/refusal.h"
#include "console/verbs/text_table.h"
#include "dict/dictionary_folders.h"
#include "dict/named_lists.h"
#include "platform/plist/json.h"
#include "platform/plist/plist_findings.h"
#include "platform/services/engine.h"
#include "platform/services/failure_text.h"
#include "platform/services/file_service.h"
#include "platform/services/machine_texts.h"
#include "platform/services/plist_file.h"
#include "platform/services/system_version.h"
#include "platform/text/text_rules.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

using Kind = FileService::Kind;

class Examination {
 public:
  explicit Examination(Product& product) : product_(product) {}

  std::vector<Finding> all() {
    styles();
    settings();
    resources();
    dictionaries();
    medical();
    rest();
    for (Finding& finding : examineFolders(product_)) findings_.push_back(std::move(finding));
    for (Finding& finding : examineAddins(product_)) findings_.push_back(std::move(finding));
    return std::move(findings_);
  }

 private:
  void add(const DiskPath& path, const char* what, const char* state, std::string detail) {
    findings_.push_back({product_.locations().shown(path), what, state, std::move(detail)});
  }

  std::string causeOf(const Failure& failure) const { return failureCauseText(failure, product_.texts()); }

  // A property list whose root is a dictionary; nothing when there is none, and then it is noted.
  std::optional<Dictionary> list(const DiskPath& path, const char* what, const char* whenMissing) {
    Result<Dictionary> values = readDictionary(product_.files(), path);
    if (values) return std::move(*values);
    if (product_.files().isAbsent(path)) {
      add(path, what, "missing", whenMissing);
    } else {
      add(path, what, "problem", causeOf(values.error()));
    }
    return std::nullopt;
  }

  void keys(const DiskPath& path, const char* what, const char* whenMissing) {
    if (const auto values = list(path, what, whenMissing)) {
      add(path, what, "ok", std::to_string(values->size()) + " keys");
    }
  }

  void styleFile(const DiskPath& path, const char* what, const char* whenMissing) {
    const std::optional<Dictionary> root = list(path, what, whenMissing);
    if (!root) return;
    const Array* styles = root->array(keyNameStyle);
    const std::string count = std::to_string(styles != nullptr ? styles->size() : 0) + " styles";
    const bool complete = styles != nullptr && root->dictionary(keyNameSelection) != nullptr;
    add(path, what, complete ? "ok" : "problem", complete ? count : count + ", no remembered choice");
    for (const PlistFinding& date : unsoundDates(*root)) {
      add(path, "date", "problem", date.keys + " is \"" + date.text + "\": other programs may refuse the whole file");
    }
  }

  void styles() {
    styleFile(product_.locations().inHome(gStylePath), "styles", "made at the first start");
    styleFile(product_.locations().onDisk(ProductPath(std::string(gAppSupportStylePlist))),
              "styles that came with the product", "there is nothing to start with");
    for (Finding& finding : examineFormerStyles(product_)) findings_.push_back(std::move(finding));
  }

  void settings() {
    keys(userDefaultsPath(product_.locations()), "settings", "made at the first start");
    lock();
  }

  // Links are not followed.
  void lock() {
    const DiskPath path = lockPath(product_.locations());
    const Result<Kind> kind = product_.files().ownKind(path);
    const bool isOdd = kind && *kind != Kind::absent && *kind != Kind::file;
    if (isOdd) return add(path, "lock", "problem", product_.texts().localized("Cause.noRegularFile"));
    plain(path, "lock", "made when the manager starts");
  }

  void resources() {
    const Bundle& bundle = product_.bundle();
    folder(bundle.folder(), "resources");
    keys(bundle.folder() / "WordhavenPaths.plist", "paths", "the manager cannot start");
    for (const std::string& language : bundle.languages()) {
      keys(bundle.folder() / (language + ".lproj/Localizable.strings"), "texts", "keys are shown instead");
    }
    keys(product_.locations().onDisk(ProductPath(machineTexts)), "texts of this machine", "none are needed");
  }

  void folder(const DiskPath& path, const char* what) {
    const auto names = product_.files().list(path);
    if (names) {
      add(path, what, "ok", std::to_string(names->size()) + " entries");
    } else {
      const bool absent = product_.files().isAbsent(path);
      add(path, what, absent ? "missing" : "problem", absent ? "" : causeOf(names.error()));
    }
  }

  void folderOf(DictionaryKind kind, Direction direction, const char* what) {
    const DiskPath path = dictionaryFolder(product_.paths(), kind, direction);
    const auto names = product_.files().list(path);
    if (!names) return folder(path, what);
    DictController list(dictionaryServices(product_));
    list.initializeDictController(kind, path, direction);
    const std::size_t usable = list.getAllDictionary().size();
    add(path, what, "ok", std::to_string(usable) + " usable, " + std::to_string(names->size()) + " entries");
    if (kind != DictionaryKind::technical) return;
    if (const std::optional<Failure>& unread = list.unread())
      add(DiskPath(unread->path), "dictionary", "problem", causeOf(*unread));
    for (const std::string& name : namesThatCannotBeKept(dictionaryServices(product_), direction)) {
      add(path / name, "dictionary", "problem", "a style file cannot hold its name: rename it");
    }
  }

  void dictionaries() {
    using enum Direction;
    using enum DictionaryKind;
    folderOf(technical, englishToJapanese, "dictionaries English to Japanese");
    folderOf(technical, japaneseToEnglish, "dictionaries Japanese to English");
    folderOf(user, englishToJapanese, "user dictionaries English to Japanese");
    folderOf(memory, englishToJapanese, "memories English to Japanese");
    folderOf(user, japaneseToEnglish, "user dictionaries Japanese to English");
    folderOf(memory, japaneseToEnglish, "memories Japanese to English");
  }

  void medical() {
    for (const char* key : {"TechECorwell6", "TechJCorwell6", "TechETekado", "TechJTekado"}) {
      const std::string path = product_.texts().localized(key);
      if (isAbsolutePath(path)) {
        plain(product_.locations().onDisk(ProductPath(path)), "medical dictionary", "is not installed");
      } else {
        findings_.push_back({path, "medical dictionary", "missing", "is not installed"});
      }
    }
  }

  void plain(const DiskPath& path, const char* what, const char* whenMissing) {
    const Result<Kind> kind = product_.files().kind(path);
    if (!kind) return add(path, what, "problem", causeOf(kind.error()));
    const bool exists = *kind != Kind::absent;
    add(path, what, exists ? "ok" : "missing", exists ? "" : whenMissing);
  }

  void rest() {
    const DiskPath version =
        product_.locations().onDisk(ProductPath("/System/Library/CoreServices/SystemVersion.plist"));
    if (list(version, "system version", "counts as 0")) {
      const int number = systemVersion(product_.files(), product_.locations());
      add(version, "system version", number != 0 ? "ok" : "problem", std::to_string(number));
    }
    plain(toolListPath(product_.locations()), "tool list", "written at every start");
    engine();
    const Bundle& bundle = product_.bundle();
    plain(bundle.resource("index", "htm", "Help").value_or(bundle.folder() / "Help/index.htm"), "help",
          "the help command does nothing");
  }

  // It is not asked anything.
  void engine() {
    const std::string url = product_.engineURL();
    const EngineForm form = product_.makeEngine(product_.files())->form();
    const std::string word(wordOf(form));
    const bool isKnown = form != EngineForm::none || url == "none";
    findings_.push_back({url.empty() ? word : url, "style service", isKnown ? "ok" : "problem",
                         isKnown ? word : "there is no style service of this kind"});
    if (form == EngineForm::local) {
      keys(product_.paths().localEnginePath(), "styles of the local engine", "made by the first registration");
    } else if (form == EngineForm::http) {
      plain(product_.locations().inHome(".netrc"), "credentials of the style service", "none are sent");
    }
  }

  Product& product_;
  std::vector<Finding> findings_;
};

}  // namespace

ExitStatus DoctorCommand::run(Console& console) {
  const std::vector<Finding> findings = Examination(console.product).all();
  if (console.json) {
    Json::List list;
    for (const Finding& finding : findings) {
      list.emplace_back(Json::Object{{"path", finding.path},
                                     {"what", finding.what},
                                     {"state", finding.state},
                                     {"detail", finding.detail},
                                     {"cure", finding.cure}});
    }
    console.out << writeJson(list) << '\n';
    return ExitStatus::done;
  }
  std::vector<std::vector<std::string>> rows;
  rows.reserve(findings.size());
  for (const Finding& finding : findings) {
    rows.push_back({finding.state, finding.what, finding.path,
                    joined({.what = finding.detail, .cause = "", .cure = finding.cure})});
  }
  writeTable(console.out, rows);
  return ExitStatus::done;
}

}  // namespace tarvo
