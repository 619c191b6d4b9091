// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "platform/engine/engine_http.h"
#include "tests/support/encoded_styles.h"
#include "tests/support/style_server.h"

// A style service over HTTP, before a server that follows the rules of the web or breaks them on request.
namespace tarvo::test {

using namespace std::chrono_literals;

class EngineHttpTest : public testing::Test {
 protected:
  using Methods = std::vector<std::string>;
  using Way = Reply::Way;

  EngineHttp engine(HttpTimes times = {}) {
    return EngineHttp({server.address(), {}, {}}, times, [this] { return now; });
  }
  std::string registered(EngineHttp& engine, const EncodedStyles& styles) {
    std::string stamp;
    engine.sendRegistStyle(styles.set(), stamp);
    return stamp;
  }
  std::string payload(const EncodedStyles& styles, std::uint64_t revision) {
    return StylePayload(styles.set()).bytes(revision);
  }
  std::string stampOf(const EncodedStyles& styles, std::uint64_t revision) {
    return StylePayload(styles.set()).stamp(revision).text();
  }
  std::optional<Array> newerThan(EngineHttp& engine, std::string stamp) {
    Array styles{PropertyList("untouched")};
    const std::string before = stamp;
    if (engine.requestStyle(styles, stamp)) return styles;
    EXPECT_EQ(styles, Array{PropertyList("untouched")});
    EXPECT_EQ(stamp, before);
    return std::nullopt;
  }

  const EncodedStyles two{{"標準", "特許"}}, one{{"E-mail"}}, same{{"E-mbil"}};  // the last two are equally long
  const HttpTimes short_{100ms, 200ms, 30s};
  std::chrono::steady_clock::duration now = 1h;
  StyleServer web;
  ScriptedServer server{[this](const SeenRequest& request) { return web.answer(request); }};
};

}  // namespace tarvo::test
