// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/engine_commands.h"

#include "app/product.h"
#include "app/user_files.h"
#include "console/verbs/refusal.h"
#include "console/verbs/style_reading.h"
#include "console/verbs/style_session.h"
#include "console/verbs/text_table.h"
#include "platform/plist/json.h"
#include "platform/services/engine.h"
#include "platform/services/user_defaults.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

void tellUnreached(Console& console, const Engine& engine) {
  const std::string cause = failureParts(whyUnreached(engine), console.textsToTell()).cause;
  note(console, {serviceName(console.product, engine), "Refusal.NotReached", cause});
}

}  // namespace

ExitStatus EngineStatusCommand::run(Console& console) {
  Product& product = console.product;
  const std::unique_ptr<Engine> engine = product.makeEngine(product.files());
  const UserDefaults defaults(product.files(), userDefaultsPath(product.locations()));
  noteUnread(console, defaults);
  noteUnreadStyles(console);
  const std::string* stamp = defaults.string(lastUpdate);
  const std::string form(wordOf(engine->form()));
  engine->waitForAnswer(Engine::verbPatience);
  const bool reachable = engine->checkConnectionWithCurl();
  const bool holds = reachable && engine->checkStyle();
  if (!reachable && console.engineIsWanted) tellUnreached(console, *engine);
  if (console.json) {
    console.out << writeJson(Json::Object{{"form", form},
                                          {"reachable", reachable},
                                          {"holds", holds},
                                          {"lastUpdate", stamp != nullptr ? Json(*stamp) : Json()}})
                << '\n';
    return ExitStatus::done;
  }
  const auto word = [](bool is) { return is ? "yes" : "no"; };
  writeTable(console.out, {{"form", form},
                           {"reachable", word(reachable)},
                           {"holds styles", word(holds)},
                           {"last update", stamp != nullptr ? *stamp : "never"}});
  return ExitStatus::done;
}

ExitStatus EnginePushCommand::run(Console& console) { return StyleSession(console).push(); }

ExitStatus EnginePullCommand::run(Console& console) { return StyleSession(console).pull(); }

}  // namespace tarvo
