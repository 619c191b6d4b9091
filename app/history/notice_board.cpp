// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/history/notice_board.h"

#include <array>
#include <utility>

#include "platform/services/texts.h"

namespace tarvo {

namespace {

constexpr std::array<const char*, 4> offerKeys{"Label.noticeButton", "Notice.undo", "Notice.restore", "Notice.merge"};
static_assert(offerKeys.size() == static_cast<std::size_t>(Notice::Offer::merge) + 1,
              "a text for each, in their order");

}  // namespace

NoticeBoard::NoticeBoard(NoticeOutlets& outlets, Notices& notices, const Texts& texts,
                         std::function<void(const Notice& notice)> follow)
    : outlets_(outlets), notices_(notices), texts_(texts), follow_(std::move(follow)) {
  notices_.didChange = [this] { show(); };
}

NoticeBoard::~NoticeBoard() { notices_.didChange = nullptr; }

void NoticeBoard::show() {
  const Notice* notice = notices_.shown();
  outlets_.noticeText.setStringValue(notice != nullptr ? notice->text : std::string());
  outlets_.noticeText.setHidden(notice == nullptr);
  const Notice::Offer offer = notice != nullptr ? notice->offer : Notice::Offer::none;
  outlets_.noticeButton.setLabel(texts_.localized(offerKeys[static_cast<std::size_t>(offer)]));
  outlets_.noticeButton.setHidden(offer == Notice::Offer::none);
  outlets_.noticeListButton.setHidden(notices_.latest().empty());
  if (notices_.latest().empty()) outlets_.noticeTable.setHidden(true);
  outlets_.noticeTable.reloadData();
}

void NoticeBoard::press() {
  const Notice* shown = notices_.shown();
  if (shown == nullptr || shown->offer == Notice::Offer::none) return;
  const Notice notice = *shown;
  // Who thinks better of what a window asks finds the offer again.
  if (notice.offer == Notice::Offer::undo) notices_.dismiss();
  follow_(notice);
}

void NoticeBoard::toggleList() { outlets_.noticeTable.setHidden(!outlets_.noticeTable.isHidden()); }

int NoticeBoard::numberOfRowsInTableView(TableView&) { return static_cast<int>(notices_.latest().size()); }

CellValue NoticeBoard::objectValueForTableColumn(TableView&, std::string_view column, int row) {
  CellValue cell;
  const bool isThere = column == notice_columns::text && std::cmp_less(row, notices_.latest().size()) && row >= 0;
  if (isThere) cell.text = notices_.latest()[static_cast<std::size_t>(row)].text;
  return cell;
}

}  // namespace tarvo
