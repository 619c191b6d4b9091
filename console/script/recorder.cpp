// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/recorder.h"

#include <utility>

#include "app/program.h"
#include "platform/text/text_rules.h"

namespace tarvo {

void Recorder::note(Json::Object event) {
  if (on_) events_.emplace_back(std::move(event));
}

std::vector<Json> Recorder::take() { return std::exchange(events_, {}); }

void Recorder::observe(Program& program) {
  program.defaults().observer = [this](std::string_view key, const PropertyList* value) {
    if (key.empty()) {
      note({{"synchronize", true}});
    } else {
      note({{"default", key}, {"value", value != nullptr ? jsonFromPropertyList(*value) : Json()}});
    }
  };
  program.notifications().onPost = [this](const Notification& posted) {
    note({{"posted", posted.name}, {"object", posted.hasObject ? Json(posted.object) : Json()}});
  };
  observeWindows(program);
}

void Recorder::observeWindows(Program& program) {
  Windows& windows = program.windows();
  windows.observer = [this, &windows](Windows::Event event, Window& window, int code) {
    const std::string& name = window.name();
    const Rect& frame = window.frame();
    switch (event) {
      case Windows::Event::shown:
      case Windows::Event::hidden: note({{"window", name}, {"shown", event == Windows::Event::shown}}); return;
      case Windows::Event::sheet: note({{"sheet", name}, {"over", windows.hostOf(window)->name()}}); return;
      case Windows::Event::sheetEnded: note({{"sheetEnded", name}, {"code", code}}); return;
      case Windows::Event::modal: note({{"modal", name}}); return;
      case Windows::Event::modalEnded: note({{"modalEnded", name}}); return;
      case Windows::Event::framed:
        note({{"window", name},
              {"frame",
               Json::List{jsonNumber(frame.x), jsonNumber(frame.y), jsonNumber(frame.width), jsonNumber(frame.height)}},
              {"title", window.title()}});
        return;
    }
  };
}

bool RecordedFiles::isRefused(Operation operation, const std::string& path) const {
  for (const Refusal& refusal : refused_) {
    if (refusal.operation == operation && isBelow(path, refusal.path)) return true;
  }
  return false;
}

void RecordedFiles::noteWrite(const std::string& path, bool written) {
  const auto named = names_.find(path);
  const std::string name = named != names_.end() ? named->second : recorder_.shown(path);
  if (!name.empty()) recorder_.note({{written ? "wrote" : "writeFailed", name}});
}

bool RecordedFiles::write(const std::string& path, std::string_view bytes) {
  const bool written = !isRefused(Operation::write, path) && disk_.write(path, bytes);
  noteWrite(path, written);
  return written;
}

bool RecordedFiles::keepUnreadable(const std::string& path) {
  const bool kept = !isRefused(Operation::copy, path) && disk_.keepUnreadable(path);
  // The file is not replaced then: that is how its write fails.
  if (!kept) noteWrite(path, false);
  return kept;
}

std::optional<std::vector<std::string>> RecordedFiles::list(const std::string& folder) const {
  if (isRefused(Operation::list, folder)) return std::nullopt;
  return disk_.list(folder);
}

bool RecordedFiles::makeFolder(const std::string& path) {
  return !isRefused(Operation::make, path) && disk_.makeFolder(path);
}

bool RecordedFiles::copy(const std::string& from, const std::string& to) {
  return !isRefused(Operation::copy, from) && !isRefused(Operation::copy, to) && disk_.copy(from, to);
}

bool RecordedFiles::remove(const std::string& path) {
  return !isRefused(Operation::remove, path) && disk_.remove(path);
}

bool RecordedFiles::removeEmptyFolder(const std::string& path) {
  return !isRefused(Operation::remove, path) && disk_.removeEmptyFolder(path);
}

bool RecordedEngine::checkConnectionWithCurl() {
  const bool result = engine_.checkConnectionWithCurl();
  recorder_.note({{"engine", "checkConnectionWithCurl"}, {"result", result}});
  return result;
}

void RecordedEngine::sendRegistStyle(const StyleSet& styles, std::string& updateString) {
  engine_.sendRegistStyle(styles, updateString);
  const int count = static_cast<int>(styles.records.size());
  recorder_.note({{"engine", "sendRegistStyle"}, {"styles", count}, {"stamp", updateString}});
}

bool RecordedEngine::checkStyle() {
  const bool result = engine_.checkStyle();
  recorder_.note({{"engine", "checkStyle"}, {"result", result}});
  return result;
}

bool RecordedEngine::requestStyle(Array& styles, std::string& localUpdate) {
  const std::string stamp = localUpdate;
  const bool result = engine_.requestStyle(styles, localUpdate);
  const int count = result ? static_cast<int>(styles.size()) : 0;
  recorder_.note({{"engine", "requestStyle"}, {"stamp", stamp}, {"result", result}, {"styles", count}});
  return result;
}

}  // namespace tarvo
