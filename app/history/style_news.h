// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/services/result.h"

// What happens to the styles without a question becomes notices; what the user does to them becomes steps to take back.
// Duty: listen to the store and say it once; have old earlier sets let go of, between the edits. Not: showing.
namespace tarvo {

enum class StandingOfFile;
class EarlierStyles;
class Notices;
class RunLoop;
class StyleStore;
class Texts;
class UndoSteps;
struct Replaced;
struct ServiceNews;
struct StoredChange;

class StyleNews {
 public:
  // Not owned; the store is listened to as long as this lives.
  struct Collaborators {
    StyleStore& store;
    EarlierStyles& earlier;
    RunLoop& runLoop;
    UndoSteps& steps;
    Notices& notices;
    const Texts& texts;
  };
  explicit StyleNews(const Collaborators& with);
  ~StyleNews();
  StyleNews(const StyleNews&) = delete;
  StyleNews& operator=(const StyleNews&) = delete;

  // The styles were loaded: tells when the user's could not be read or, although there are earlier ones, were not
  // there, and which options got their defaults.
  void didLoad(const std::vector<std::string>& defaults, bool isFileAbsent);
  // Shows a style that was imported. Names that it loses then are the importer's to tell.
  void showImported(const std::function<void()>& show);
  // The style service has answered something.
  void hear(const ServiceNews& heard);
  // The window has become the active one: tells when another program has changed the style file or taken it away.
  void look();

 private:
  void didChange(const StoredChange& change);
  void didWrite();
  void didRegister();
  void tellForeignSet();
  void thinLater(const Replaced& replaced);
  Collaborators with_;
  std::string toldService_;
  std::optional<Failure> toldUnkept_;  // why former styles were not kept, each cause once in a row
  bool importing_ = false;
  StandingOfFile toldStanding_{};
  int writes_ = 0, toldForeign_ = 0;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);  // the loop may outlive this
};

}  // namespace tarvo
