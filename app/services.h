// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

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
class Texts;
class WindowHost;
class Workspace;

// Everything outside the program that it works with, but for the panels: what the product gives (product.h) and what a
// shell gives. Not owned.
struct Surroundings {
  const Locations& locations;
  FileService& files;
  Bundle& bundle;
  Texts& texts;
  ProductPaths& paths;
  Engine& engine;
  StyleModule& styleModule;
  RunLoop& runLoop;
  WindowHost& windowHost;
  Workspace& workspace;
  ScriptRunner& scripts;
};

// All of it. A program is given the shell's panels, and gives its rooms and controllers its own in their place.
struct Services : Surroundings {
  Panels& panels;
};

}  // namespace tarvo
