// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_factory.h"

#include "platform/engine/engine_http.h"
#include "platform/engine/engine_local.h"
#include "platform/engine/engine_none.h"

namespace tarvo {

std::unique_ptr<Engine> makeEngine(const std::string& engineURL, FileService& files, const EnginePlaces& places) {
  if (engineURL == "none") return std::make_unique<EngineNone>();
  if (engineURL.empty()) return std::make_unique<EngineLocal>(files, places.localPath);
  if (isHttpAddress(engineURL)) return std::make_unique<EngineHttp>(HttpPlace{engineURL, places.netrc, ""});
  return nullptr;
}

}  // namespace tarvo
