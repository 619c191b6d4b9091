// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/services/engine.h"
#include "platform/text/paths.h"
#include "style/style_merge.h"

namespace tarvo {

class StyleStore;
class UserDefaults;

// What was heard of the service since it was asked last.
struct ServiceNews {
  std::vector<MergeNote> notes;   // what could not be joined
  bool keptTheirs = false;        // a set of the service of which not everything stays is among the earlier styles
  std::optional<Failure> unkept;  // or cannot be there
};

// The program's side of an engine that works on its own.
// Duty: show it the styles, join sets for it, and let the program know that there is news. Not: deciding when sets are
// joined; telling the user.
class ServiceClient : public EngineClient {
 public:
  struct Collaborators {
    Engine& engine;
    StyleStore& store;
    const UserDefaults& defaults;
    DiskPath seed;                              // the product's styles
    DiskPath earlier;                           // folder of the earlier styles
    std::function<MergeKnowledge()> knowledge;  // any thread, until this object is gone
    std::function<void()> wake;                 // any thread; may be empty
  };
  // Attaches itself to the engine as long as it lives.
  explicit ServiceClient(Collaborators with);
  ~ServiceClient() override;
  ServiceClient(const ServiceClient&) = delete;
  ServiceClient& operator=(const ServiceClient&) = delete;

  ServiceNews takeNews();

  std::optional<StyleSet> presentStyles() override;
  bool areStored() const override;
  std::string lastUpdate() const override;
  std::shared_ptr<StyleJoiner> joiner() override;
  void didHear() override;

 private:
  class Joiner;
  struct Mailbox {
    std::mutex mutex;
    ServiceNews news;
  };
  Collaborators with_;
  std::shared_ptr<Mailbox> mailbox_ = std::make_shared<Mailbox>();
};

}  // namespace tarvo
