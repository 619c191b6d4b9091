// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/history/notices.h"

#include <utility>

namespace tarvo {

namespace {
constexpr std::size_t mostNotices = 50;
}

Notice doneNotice(std::string text, std::size_t stepBefore, std::size_t step) {
  return {.text = std::move(text),
          .offer = step != stepBefore ? Notice::Offer::undo : Notice::Offer::none,
          .earlierSet = {},
          .step = step};
}

void Notices::remember(const Notice& notice) {
  latest_.push_front(notice);
  if (latest_.size() > mostNotices) latest_.pop_back();
}

void Notices::changed() const {
  if (didChange) didChange();
}

void Notices::tell(Notice notice) {
  remember(notice);
  told_ = std::move(notice);
  changed();
}

void Notices::tellAside(Notice notice) {
  if (!told_ || told_->offer == Notice::Offer::none) return tell(std::move(notice));
  remember(notice);
  changed();
}

void Notices::setStanding(std::optional<Notice> notice) {
  const bool isSame = notice.has_value() == standing_.has_value() && (!notice || notice->text == standing_->text);
  if (isSame) return;
  standing_ = std::move(notice);
  if (standing_) remember(*standing_);
  changed();
}

void Notices::undoTakes(std::size_t step) {
  if (told_ && told_->offer == Notice::Offer::undo && told_->step != step) dismiss();
}

void Notices::dismiss() {
  if (!told_) return;
  told_.reset();
  changed();
}

const Notice* Notices::shown() const {
  if (standing_) return &*standing_;
  return told_ ? &*told_ : nullptr;
}

}  // namespace tarvo
