// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/rooms.h"

#include <memory>
#include <utility>

#include "dict/dictionary_presence.h"
#include "platform/services/failure_text.h"
#include "platform/services/file_service.h"
#include "style/divider.h"

namespace tarvo {

Rooms::Rooms(With with) : with_(std::move(with)) {
  const auto tell = [this](const std::string& sentence) { notices.tell({.text = sentence}); };
  const auto tellFailure = [this](const Failure& failure) { notices.tell({.text = failureText(failure, texts_)}); };
  // What nobody asked for leaves an offer in its place.
  const auto tellAside = [this](const Failure& failure) { notices.tellAside({.text = failureText(failure, texts_)}); };
  unreadFolders.tell = tell;
  officeFolder.tell = tell;
  opener.didFail = tellFailure;
  newDictionary.didFail = tellFailure;
  userLists.didFail = tellAside;
  officeTool.didFail = tellAside;
  oldScripts.didFail = tellAside;
}

Rooms::~Rooms() = default;

void Rooms::follow(const Notice& notice) {
  switch (notice.offer) {
    case Notice::Offer::none: return;
    case Notice::Offer::undo: return undo.undo();
    case Notice::Offer::restore: return earlierPanel.run(notice.earlierSet);
    case Notice::Offer::merge: return joining.join(notice.earlierSet);
  }
}

MergeKnowledge Rooms::mergeKnowledge() const {
  const auto presence = [this](Direction direction) {
    return std::make_shared<DictionaryPresence>(dictionaryServices_, direction);
  };
  const auto ej = presence(Direction::englishToJapanese), je = presence(Direction::japaneseToEnglish);
  return {.isOnDisk =
              [ej, je](Direction direction, const std::string& fileName) {
                DictionaryPresence& files = direction == Direction::englishToJapanese ? *ej : *je;
                return !files.isKnown() || files.has(fileName);
              },
          .isInserted = [this](Direction direction,
                               const std::string& fileName) { return medical.inserts(direction, fileName); },
          .isDivider = [this](const Dictionary& record) { return isDivider(record, texts_); }};
}

}  // namespace tarvo
