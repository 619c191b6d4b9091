// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

namespace tarvo {

class Bundle;
class Engine;
class FileService;
class Locations;
class Panels;
class ProductPaths;
class RunLoop;
class ScriptRunner;
class StyleModule;
class TarvoCommonModule;
class Texts;
class WindowHost;
class Workspace;

// Everything outside the program that it works with: what the product gives (product.h) and what a shell gives. Not
// owned.
struct Services {
  Locations& locations;
  FileService& files;
  Bundle& bundle;
  Texts& texts;
  ProductPaths& paths;
  Engine& engine;
  StyleModule& styleModule;
  std::unique_ptr<TarvoCommonModule>& gTarvoCommonModule;  // one per process; made by the main controller
  RunLoop& runLoop;
  Panels& panels;
  WindowHost& windowHost;
  Workspace& workspace;
  ScriptRunner& scripts;
};

}  // namespace tarvo
