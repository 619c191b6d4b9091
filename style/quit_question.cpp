// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/quit_question.h"

#include <utility>

#include "platform/controls/covers.h"
#include "platform/services/failure_text.h"
#include "platform/services/locations.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"
#include "style/own_files.h"
#include "style/style_store.h"

namespace tarvo {

void QuitQuestion::ask(std::function<void()> quit) {
  if (with_.store.isSaved()) return quit();
  if (isAsking_) return;
  quit_ = std::move(quit);
  with_.covers.whenFree(with_.host, [this] { show(); });
}

void QuitQuestion::show() {
  const std::optional<Failure>& unsaved = with_.store.unsaved();
  if (!unsaved) return quit_();  // it was made good while another sheet was up
  if (std::exchange(isAsking_, true)) return;
  const Texts& texts = with_.texts;
  with_.panels.beginAlertSheet(
      with_.host,
      {texts.localized("QuitUnsavedHeader"),
       filledIn(texts.localized("QuitUnsavedMessage"), failureText(*unsaved, texts)),
       {texts.localized("QuitUnsavedQuit"), texts.localized("QuitUnsavedAgain"), texts.localized("QuitUnsavedSaveAs")}},
      [this](int button) { answered(button); });
}

void QuitQuestion::answered(int button) {
  isAsking_ = false;
  if (button == quitNow) return quit_();
  if (button == saveAs) return askWhere();
  if (button != tryAgain) return;
  with_.store.writeTarvoStylePlist();
  const std::optional<Failure>& unsaved = with_.store.unsaved();
  quitAfter(unsaved ? Result<>(*unsaved) : Result<>());
}

void QuitQuestion::askWhere() {
  isAsking_ = true;
  with_.panels.beginSavePanel(with_.host,
                              {.title = "",
                               .requiredType = "plist",
                               .folder = with_.locations.home(),
                               .name = with_.texts.localized("QuitUnsavedFileName")},
                              [this](int returnCode, const DiskPath& path) {
                                isAsking_ = false;
                                if (returnCode == 1) quitAfter(saveAt(path));
                              });
}

Result<> QuitQuestion::saveAt(const DiskPath& path) {
  if (Result<> other = with_.ownFiles.checkOther(path); !other) return other;
  return with_.store.writeCopy(path);
}

void QuitQuestion::quitAfter(const Result<>& saved) {
  if (saved) return quit_();
  const Texts& texts = with_.texts;
  with_.panels.beginAlertSheet(
      with_.host,
      {texts.localized("QuitStillUnsavedHeader"), failureText(saved.error(), texts), {texts.localized("AlertClose")}},
      [](int) {});
}

}  // namespace tarvo
