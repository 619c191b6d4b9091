// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/engine/set_delivery.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/encoded_styles.h"
#include "tests/support/listed_joiner.h"
#include "tests/support/style_server.h"
#include "tests/support/temporary_folder.h"

// What a home says to a style service, before a server that follows the rules of the web or breaks them on request.
namespace tarvo::test {

using namespace std::chrono_literals;

class SetDeliveryTest : public testing::Test {
 protected:
  using Methods = std::vector<std::string>;
  using State = StyleResource::State;
  using Way = Reply::Way;

  DiskPath basePath(const std::string& home = "home") const { return folder.at(home + "/shared"); }
  SetDelivery home(const std::string& name = "home") {
    return SetDelivery({server.address(), {}, {}}, files, BaseFile(files, basePath(name), server.address()));
  }
  OutgoingSet out(const EncodedStyles& styles, const std::string& lastUpdate = "") {
    return {.set = EncodedSet(styles.records), .lastUpdate = SetStamp::parse(lastUpdate), .isStored = true};
  }
  OutgoingSet joining(const EncodedStyles& styles, const std::string& lastUpdate = "") {
    OutgoingSet set = out(styles, lastUpdate);
    set.joiner = joiner;
    return set;
  }
  Result<> deliver(SetDelivery& from, const OutgoingSet& set, std::chrono::milliseconds limit = 5s) {
    return from.deliver(set, Deadline(limit));
  }
  const ServiceView& look(SetDelivery& from, std::chrono::milliseconds limit = 5s) {
    return from.look(Deadline(limit));
  }
  std::string payload(const EncodedStyles& styles, std::uint64_t revision) {
    return StylePayload(styles.set()).bytes(revision);
  }
  std::string stampOf(const EncodedStyles& styles, std::uint64_t revision) {
    return StylePayload(styles.set()).stamp(revision).text();
  }
  // Names of the styles that the service holds.
  std::vector<std::string> heldNames() const {
    const std::optional<ReadPayload> set = readPayload(web.held.value_or(""));
    return set ? namesIn(set->styles) : std::vector<std::string>{"damaged"};
  }

  const EncodedStyles two{{"標準", "特許"}}, one{{"E-mail"}}, same{{"E-mbil"}};  // the last two are equally long
  TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
  std::shared_ptr<ListedJoiner> joiner = std::make_shared<ListedJoiner>();
  StyleServer web;
  ScriptedServer server{[this](const SeenRequest& request) { return web.answer(request); }};
};

}  // namespace tarvo::test
