// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/services.h"
#include "platform/services/bundle.h"
#include "platform/services/configuration.h"
#include "platform/services/locations.h"
#include "platform/services/product_paths.h"
#include "platform/services/result.h"
#include "platform/services/texts.h"

// The installed product as the command line, the environment and the build describe it: both shells make one of it.
namespace tarvo {

class LocalStyleModule;
struct EnginePlaces;
class ScriptRunner;

// What the command line says; what is not said comes from the environment, else from the build.
struct ProductOptions {
  std::optional<std::string> root, home, language, resources, paths, engine;
  std::vector<std::string> strings;  // files laid over the shipped texts in order; "none" drops what was laid before
};

class Product {
 public:
  explicit Product(const ProductOptions& options);
  ~Product();
  Product(const Product&) = delete;
  Product& operator=(const Product&) = delete;

  // The first text table or path list that was asked for, or shipped path list or configuration that is there, and
  // cannot be read.
  const std::optional<Failure>& unread() const { return unread_; }
  // What was asked for and there is none of; "" when all is well.
  const std::string& problem() const { return problem_; }
  const std::string& language() const { return language_; }
  const Locations& locations() const { return locations_; }
  const Configuration& configuration() const { return configuration_; }
  FileService& files() { return *files_; }
  const FileService& files() const { return *files_; }
  Bundle& bundle() { return *bundle_; }
  Texts& texts() { return texts_; }
  ProductPaths& paths() { return *paths_; }
  LocalStyleModule& styleModule() { return *styleModule_; }

  // As the options or the configuration say it, for the user whose home this is: "{user}" stands for the home's own
  // name (addressForUser). "" for the local engine.
  std::string engineURL() const;
  // The engine that the options or the configuration name, working on these files; one that is never reachable when
  // there is none of that kind (see problem()).
  std::unique_ptr<Engine> makeEngine(FileService& files);
  ScriptRunner& scripts() { return *scripts_; }
  // The services of a program: the product's, with the files and the engine given here, and the shell's. scripts: the
  // product's own when null.
  Services services(FileService& files, Engine& engine, RunLoop& runLoop, Panels& panels, WindowHost& windowHost,
                    Workspace& workspace, ScriptRunner* scripts = nullptr);

 private:
  EnginePlaces enginePlaces() const;
  void layTexts(const std::vector<std::string>& strings);
  void cannotRead(const Failure& failure);
  std::optional<Dictionary> readPaths(const std::optional<std::string>& overlay);
  std::string language_, problem_;
  std::optional<Failure> unread_;
  std::optional<std::string> engine_;
  Locations locations_;
  Configuration configuration_;
  std::unique_ptr<FileService> files_;
  std::unique_ptr<Bundle> bundle_;
  Texts texts_;
  std::unique_ptr<ProductPaths> paths_;
  std::unique_ptr<LocalStyleModule> styleModule_;
  std::unique_ptr<ScriptRunner> scripts_;
};

}  // namespace tarvo
