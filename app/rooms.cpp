// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/rooms.h"

#include <utility>

#include "platform/services/failure_text.h"
#include "platform/services/file_service.h"

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

// In the thread of the engine, which ends before the rooms do.
void Rooms::hearLater() {
  services_.runLoop.post([this, alive = std::weak_ptr(alive_)] {
    if (!alive.expired()) news.hear(service.takeNews());
  });
}

void Rooms::follow(const Notice& notice) {
  switch (notice.offer) {
    case Notice::Offer::none: return;
    case Notice::Offer::undo: return undo.undo();
    case Notice::Offer::restore: return earlierPanel.run(notice.earlierSet);
    case Notice::Offer::merge: return joining.join(notice.earlierSet);
  }
}

}  // namespace tarvo
