// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/recorder.h"

#include <utility>

#include "app/program.h"

namespace tarvo {

std::string Recorder::shownIn(std::string text) const {
  for (const auto& [folder, tag] : {std::pair(locations_.home(), "home:/"), std::pair(locations_.root(), "root:/")}) {
    if (folder.text() == "/") continue;
    const std::string prefix = folder.text() + '/';
    for (std::size_t at = 0; (at = text.find(prefix, at)) != std::string::npos;) text.replace(at, prefix.size(), tag);
  }
  return text;
}

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

std::optional<Failure> RecordedFiles::refusal(Operation operation, const DiskPath& path, Attempt attempt) const {
  for (const Refusal& refusal : refused_) {
    if (refusal.operation != operation || !path.isIn(refusal.path)) continue;
    return Failure{path.text(), attempt, std::make_error_code(std::errc::permission_denied)};
  }
  return std::nullopt;
}

void RecordedFiles::noteWrite(const DiskPath& path, bool written) {
  const auto named = names_.find(path);
  const std::string name = named != names_.end() ? named->second : recorder_.shown(path);
  if (!name.empty()) recorder_.note({{written ? "wrote" : "writeFailed", name}});
}

Result<Replaced> RecordedFiles::replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) {
  // What may not be copied cannot be kept either.
  const auto unkept = keeping.folder.empty() ? std::nullopt : refusal(Operation::copy, path, Attempt::keep);
  if (unkept && keeping.durability == Durability::sure) return *unkept;  // noted when it could not be kept beside
  const auto refused = refusal(Operation::write, path, Attempt::write);
  Result<Replaced> written = refused ? *refused : disk_.replace(path, bytes, unkept ? Keeping() : keeping);
  if (written && unkept) written->unkept = unkept;
  noteWrite(path, written.has_value());
  return written;
}

Result<> RecordedFiles::keepUnreadable(const DiskPath& path) {
  const auto refused = refusal(Operation::copy, path, Attempt::keep);
  Result<> kept = refused ? *refused : disk_.keepUnreadable(path);
  // The file is not replaced then: that is how its write fails.
  if (!kept) noteWrite(path, false);
  return kept;
}

Result<std::vector<std::string>> RecordedFiles::list(const DiskPath& folder) const {
  if (const auto refused = refusal(Operation::list, folder, Attempt::list)) return *refused;
  return disk_.list(folder);
}

Result<> RecordedFiles::makeFolder(const DiskPath& path) {
  if (const auto refused = refusal(Operation::make, path, Attempt::makeFolder)) return *refused;
  return disk_.makeFolder(path);
}

Result<> RecordedFiles::makePrivateFolder(const DiskPath& path) {
  if (const auto refused = refusal(Operation::make, path, Attempt::makeFolder)) return *refused;
  return disk_.makePrivateFolder(path);
}

std::optional<Failure> RecordedFiles::copyRefusal(const DiskPath& from, const DiskPath& to) const {
  auto refused = refusal(Operation::copy, from, Attempt::copy);
  return refused ? refused : refusal(Operation::copy, to, Attempt::create);
}

Result<> RecordedFiles::copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) {
  if (const auto refused = copyRefusal(from, to)) return *refused;
  return disk_.copyAs(from, to, codes);
}

Result<> RecordedFiles::makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) {
  if (const auto refused = refusal(Operation::make, folder, Attempt::makeFolder)) return *refused;
  std::vector<DiskPath> allowed;  // the row ends where a copy fails
  std::optional<Failure> refused;
  for (const DiskPath& item : items) {
    refused = copyRefusal(item, folder / item.name());
    if (refused) break;
    allowed.push_back(item);
  }
  Result<> made = disk_.makeFolderOf(allowed, folder);
  return made && refused ? *refused : made;
}

Result<> RecordedFiles::move(const DiskPath& from, const DiskPath& to) {
  if (const auto refused = refusal(Operation::remove, from, Attempt::copy)) return *refused;
  if (const auto refused = refusal(Operation::copy, to, Attempt::create)) return *refused;
  return disk_.move(from, to);
}

Result<> RecordedFiles::remove(const DiskPath& path) {
  if (const auto refused = refusal(Operation::remove, path, Attempt::remove)) return *refused;
  return disk_.remove(path);
}

Result<> RecordedFiles::removeEmptyFolder(const DiskPath& path) {
  if (const auto refused = refusal(Operation::remove, path, Attempt::remove)) return *refused;
  return disk_.removeEmptyFolder(path);
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
