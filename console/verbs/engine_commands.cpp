// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/engine_commands.h"

#include "app/product.h"
#include "app/program.h"
#include "console/verbs/style_session.h"
#include "console/verbs/text_table.h"
#include "console/verbs/verb_program.h"
#include "platform/plist/json.h"
#include "platform/services/engine.h"
#include "platform/services/failure_text.h"
#include "platform/services/notification_names.h"
#include "platform/services/user_defaults.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

// Runs a verb that is about the service: here it counts when the service cannot be reached or stores nothing.
template <class Act>
ExitStatus exchange(Console& console, Act act) {
  Console asking = console;
  asking.engineIsWanted = true;
  VerbProgram verb(asking);
  const ExitStatus status = verb.run([&](Program& program, Hand&) { act(program, verb); });
  const VerbProgram::EngineCalls& calls = verb.engineCalls();
  if (!calls.reached || !calls.stored) return status == ExitStatus::locked ? status : ExitStatus::refused;
  if (calls.handedOver) console.out << "handed over " << *calls.handedOver << " styles\n";
  return status;
}

}  // namespace

ExitStatus EngineStatusCommand::run(Console& console) {
  Product& product = console.product;
  const std::unique_ptr<Engine> engine = product.makeEngine(product.files());
  const UserDefaults defaults(product.files(), userDefaultsPath(product.locations()));
  const std::string* stamp = defaults.string(lastUpdate);
  const bool reachable = engine->checkConnectionWithCurl();
  const bool holds = reachable && engine->checkStyle();
  if (!reachable && console.engineIsWanted) {
    const Result<> reached = engine->couldReach();
    console.err << "the style service cannot be reached"
                << (reached ? "" : " (" + failureText(reached.error(), product.texts()) + ")") << '\n';
  }
  if (json_) {
    console.out << writeJson(Json::Object{{"form", engine->form()},
                                          {"reachable", reachable},
                                          {"holds", holds},
                                          {"lastUpdate", stamp != nullptr ? Json(*stamp) : Json()}})
                << '\n';
    return ExitStatus::done;
  }
  const auto word = [](bool is) { return is ? "yes" : "no"; };
  writeTable(console.out, {{"form", engine->form()},
                           {"reachable", word(reachable)},
                           {"holds styles", word(holds)},
                           {"last update", stamp != nullptr ? *stamp : "never"}});
  return ExitStatus::done;
}

ExitStatus EnginePushCommand::run(Console& console) { return StyleSession(console).push(); }

ExitStatus EnginePullCommand::run(Console& console) {
  return exchange(console, [&console](Program& program, VerbProgram& verb) {
    if (!program.services().engine.checkConnectionWithCurl()) return;
    program.notifications().post(sendPlistNoti);
    const VerbProgram::EngineCalls& calls = verb.engineCalls();
    if (calls.handedOver) return;
    if (!calls.offered && program.services().engine.couldRead()) {
      console.out << "nothing newer\n";
      return;
    }
    const std::string* stamp = program.defaults().string(lastUpdate);  // an offer that was taken left its own
    if (!calls.offered || stamp == nullptr || *stamp != calls.offered->stamp) {
      const Result<> read = program.services().engine.couldRead();
      const std::string why = read ? "" : " (" + failureText(read.error(), program.services().texts) + ")";
      return verb.refuse("the styles of the service cannot be read: nothing was taken" + why);
    }
    console.out << "took " << calls.offered->styles << " styles\n";
    if (program.rooms().store.getSelection() == nullptr) {
      verb.refuse("the style file remembers no choice of a style: what was taken is not in it");
    }
  });
}

}  // namespace tarvo
