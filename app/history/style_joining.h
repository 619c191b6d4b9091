// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "platform/services/result.h"
#include "platform/text/paths.h"
#include "style/style_merge.h"

// Brings the styles here and those that another program has written together.
namespace tarvo {

class EarlierStyles;
class Panels;
class Notices;
class StyleStore;
class Texts;
class UndoCommands;
class UndoSteps;

// Duty: read the other set, say what joining would change, ask, store the joined set as one edit. Not: the rules of
// joining (style/style_merge.h).
class StyleJoining {
 public:
  // Not owned.
  struct Collaborators {
    StyleStore& store;
    const EarlierStyles& earlier;
    Panels& panels;
    Notices& notices;
    UndoCommands& undo;
    const UndoSteps& steps;
    const Texts& texts;
    std::function<MergeKnowledge()> knowledge;  // as it is when two sets are joined
    std::function<void()> showStyles;
    std::function<void(const std::string& id)> showEarlier;
  };
  explicit StyleJoining(Collaborators with) : with_(std::move(with)) {}

  // id: of the earlier set that another program had written; "" is the style file as it stands.
  void join(const std::string& id);

 private:
  struct Sets {
    Dictionary base, theirs;
  };
  Result<Sets> setsFor(const std::string& id) const;
  static Result<Sets> joinable(Dictionary base, Result<Dictionary> theirs, const DiskPath& path);
  std::string effectOf(const Array& joined, const std::vector<MergeNote>& notes) const;
  void store(const Dictionary& theirs, MergedStyles joined);
  Collaborators with_;
};

}  // namespace tarvo
