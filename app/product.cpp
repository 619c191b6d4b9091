// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/product.h"

#include <utility>

#include "app/product_defaults.h"
#include "platform/engine/engine_factory.h"
#include "platform/engine/local_style_module.h"
#include "platform/posix/bundle_script_runner.h"
#include "platform/posix/posix_files.h"
#include "platform/services/engine.h"
#include "platform/services/machine_texts.h"
#include "platform/services/plist_file.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

constexpr std::string_view sharedBase = "Library/Application Support/Wordhaven/Tarvo Shared Styles";

Locations locationsFor(const ProductOptions& options) {
  Places places = findPlaces(options.root, options.home);
  return {places.root.text(), places.home.text()};
}

PosixFiles::HomeFolders homeFoldersFor(const Configuration& configuration) {
  return configuration.boolean(configuration_keys::privateFolders) ? PosixFiles::HomeFolders::forTheUser
                                                                   : PosixFiles::HomeFolders::forEverybody;
}

std::vector<std::string> languagesFor(const std::string& first) {
  return first == "ja" ? std::vector<std::string>{"ja", "en"} : std::vector<std::string>{"en", "ja"};
}

}  // namespace

Product::Product(const ProductOptions& options)
    : language_(options.language.value_or(languageFromEnvironment())),
      engine_(options.engine),
      locations_(locationsFor(options)),
      configuration_(PosixFiles(locations_), configurationFiles()),
      files_(std::make_unique<PosixFiles>(locations_, homeFoldersFor(configuration_))),
      styleModule_(std::make_unique<LocalStyleModule>()) {
  unread_ = configuration_.unread();
  const DiskPath resources = options.resources ? absolutePath(*options.resources) : defaultResources();
  bundle_ = std::make_unique<Bundle>(*files_, resources, languagesFor(language_));
  layTexts(options.strings);
  paths_ = std::make_unique<ProductPaths>(locations_, readPaths(options.paths));
  scripts_ = std::make_unique<BundleScriptRunner>(*files_, locations_, paths_->volumeName());
  if (engine_ && !namesEngine(engineURL())) {
    problem_ = "there is no style service of this kind: " + *engine_;
  }
}

Product::~Product() = default;

void Product::layTexts(const std::vector<std::string>& strings) {
  overlayShippedTable(texts_, *bundle_, *files_);
  const Result<> laid = overlayTableFile(texts_, *files_, locations_.onDisk(ProductPath(machineTexts)));
  (void)laid;  // most machines have none; one that cannot be read is told where it is needed (machineText)
  for (const std::string& file : strings) {
    if (file == "none") {
      texts_.clear();
    } else if (const Result<> read = overlayTableFile(texts_, *files_, absolutePath(file)); !read) {
      cannotRead(read.error());
    }
  }
}

void Product::cannotRead(const Failure& failure) {
  if (!unread_) unread_ = failure;
}

std::optional<Dictionary> Product::readPaths(const std::optional<std::string>& overlay) {
  std::optional<Dictionary> configuration;
  Result<Dictionary> shipped = readDictionary(*files_, bundle_->folder() / "WordhavenPaths.plist");
  if (shipped) {
    configuration = std::move(*shipped);
  } else if (!isAbsence(shipped.error())) {
    cannotRead(shipped.error());  // another style service, other folders: nothing may be done as if there were none
  }
  if (!overlay) return configuration;
  const Result<Dictionary> over = readDictionary(*files_, absolutePath(*overlay));
  if (!over) {
    cannotRead(over.error());
    return configuration;
  }
  if (!configuration) configuration.emplace();
  for (const auto& [key, value] : over->entries()) configuration->set(key, value);
  return configuration;
}

std::string Product::engineURL() const {
  return addressForUser(engine_.value_or(paths_->engineURL()), locations_.home().name());
}

EnginePlaces Product::enginePlaces() const {
  return {paths_->localEnginePath(), locations_.inHome(sharedBase), locations_.inHome(".netrc"),
          authoritiesFor(configuration_), configuration_.boolean(configuration_keys::allowPlainPasswords)};
}

std::unique_ptr<Engine> Product::makeEngine(FileService& files) {
  std::unique_ptr<Engine> engine = tarvo::makeEngine(engineURL(), files, *files_, enginePlaces());
  return engine != nullptr ? std::move(engine) : tarvo::makeEngine("none", files, *files_, {});
}

Services Product::services(FileService& files, Engine& engine, RunLoop& runLoop, Panels& panels, WindowHost& windowHost,
                           Workspace& workspace, ScriptRunner* scripts) {
  return {{locations_, files, *bundle_, texts_, *paths_, engine, *styleModule_, runLoop, windowHost, workspace,
           scripts != nullptr ? *scripts : *scripts_},
          panels};
}

}  // namespace tarvo
