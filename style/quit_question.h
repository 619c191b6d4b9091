// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// The question of who quits while the last write of the styles has failed: what is in memory alone would be lost.
// Duty: ask once a quit, over the window; try the write again, or write all styles where the user says. Not: deciding
// who is asked. Nothing is asked, and nothing written, where the styles are stored.
namespace tarvo {

class Covers;
class Locations;
class OwnFiles;
class Panels;
class StyleStore;
class Texts;
class Window;

class QuitQuestion {
 public:
  // Who works together here. Not owned.
  struct Collaborators {
    StyleStore& store;
    Panels& panels;
    const Texts& texts;
    const Locations& locations;
    Covers& covers;
    Window& host;
    const OwnFiles& ownFiles;
  };
  explicit QuitQuestion(const Collaborators& with) : with_(with) {}
  // quit: what ends the program; run at once, after an answer that lets it, or never.
  void ask(std::function<void()> quit);

 private:
  enum Button { quitNow, tryAgain, saveAs };
  void show();
  void answered(int button);
  void askWhere();
  Result<> saveAt(const DiskPath& path);
  void quitAfter(const Result<>& saved);
  Collaborators with_;
  std::function<void()> quit_;
  bool isAsking_ = false;  // a sheet of this question is up
};

}  // namespace tarvo
