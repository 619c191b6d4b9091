// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/service_client.h"

#include <algorithm>
#include <utility>

#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "platform/services/user_defaults.h"
#include "platform/text/fingerprint.h"
#include "style/arrived_changes.h"
#include "style/earlier_styles.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

// A set with these bytes is kept once.
Result<> keepAmongEarlier(FileService& files, const DiskPath& folder, const std::string& bytes) {
  if (const Result<> made = files.makeFolder(folder.folder()); !made) return made;
  if (const Result<> made = files.makePrivateFolder(folder); !made) return made;
  const std::string print = fingerprint(bytes);
  const Result<std::vector<std::string>> names = files.list(folder);
  if (!names) return names.error();
  const bool isKept = std::ranges::any_of(*names, [&print](const std::string& name) {
    const std::optional<EarlierSet> set = earlierSetNamed(name);
    return set && set->fingerprint == print;
  });
  if (isKept) return {};
  return files.writePrivate(folder / fileNameOf(systemMoment(), ChangeKind::merge, print), bytes);
}

}  // namespace

class ServiceClient::Joiner : public StyleJoiner {
 public:
  Joiner(DiskPath seed, DiskPath earlier, std::function<MergeKnowledge()> knowledge, std::shared_ptr<Mailbox> mailbox)
      : seed_(std::move(seed)),
        earlier_(std::move(earlier)),
        makeKnowledge_(std::move(knowledge)),
        mailbox_(std::move(mailbox)) {}

  JoinedStyles join(const Array& base, const Array& mine, const Array& theirs, bool mineIsNewer) override {
    if (!knowledge_) knowledge_ = makeKnowledge_();
    MergedStyles merged =
        mergeStyles({.base = base, .mine = mine, .theirs = theirs, .mineIsNewer = mineIsNewer}, *knowledge_);
    const bool hasLosses = std::ranges::count(merged.notes, MergeNote::Kind::otherValue, &MergeNote::kind) > 0;
    if (!merged.notes.empty()) {
      const std::lock_guard lock(mailbox_->mutex);
      mailbox_->news.notes = std::move(merged.notes);
    }
    return {std::move(merged.styles), std::move(merged.placesOfMine), hasLosses};
  }

  Array withArrived(const Array& base, const Array& sent, const Array& theirs) override {
    return withArrivedChanges(base, sent, theirs);
  }

  Array seed(const FileService& files) override {
    const Result<Dictionary> root = readDictionary(files, seed_);
    const Array* styles = root ? root->array(keyNameStyle) : nullptr;
    return styles != nullptr ? *styles : Array();
  }

  void keep(const Array& theirs, FileService& files) override {
    Dictionary root;
    root.set(keyNameStyle, theirs);
    const Result<> kept = keepAmongEarlier(files, earlier_, writePropertyList(root));
    const std::lock_guard lock(mailbox_->mutex);
    mailbox_->news.keptTheirs = kept.has_value();
    mailbox_->news.unkept = kept ? std::nullopt : std::optional(kept.error());
  }

 private:
  DiskPath seed_, earlier_;
  std::function<MergeKnowledge()> makeKnowledge_;
  std::optional<MergeKnowledge> knowledge_;
  std::shared_ptr<Mailbox> mailbox_;
};

ServiceClient::ServiceClient(Collaborators with) : with_(std::move(with)) { with_.engine.attach(this); }

ServiceClient::~ServiceClient() { with_.engine.attach(nullptr); }

ServiceNews ServiceClient::takeNews() {
  const std::lock_guard lock(mailbox_->mutex);
  return std::exchange(mailbox_->news, {});
}

std::optional<StyleSet> ServiceClient::presentStyles() { return with_.store.styleSet(); }

bool ServiceClient::areStored() const { return with_.store.isStored(); }

std::string ServiceClient::lastUpdate() const {
  const std::string* stamp = with_.defaults.string(tarvo::lastUpdate);
  return stamp != nullptr ? *stamp : std::string();
}

std::shared_ptr<StyleJoiner> ServiceClient::joiner() {
  return std::make_shared<Joiner>(with_.seed, with_.earlier, with_.knowledge, mailbox_);
}

void ServiceClient::didHear() {
  if (with_.wake) with_.wake();
}

}  // namespace tarvo
