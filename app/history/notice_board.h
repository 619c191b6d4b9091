// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/history/notices.h"
#include "platform/controls/controls.h"
#include "platform/controls/table_view.h"

// The line at the foot of the main window, and the list of the latest notices above it.
namespace tarvo {

class Texts;

struct NoticeOutlets : Outlets {
  TextField noticeText{*this, "noticeText", Control::Kind::text};
  Button noticeButton{*this, "noticeButton"}, noticeListButton{*this, "noticeListButton"};
  TableView noticeTable{*this, "noticeTable"};
  NoticeOutlets() : Outlets("manager") {}
};

namespace notice_columns {
inline constexpr const char* text = "text";
}

// Duty: show the notices in their controls, the newest first; pass on what the button beside the line offers. The line
// is hidden while there is nothing to tell, the list until it is asked for. Not: making notices, or following an offer.
class NoticeBoard : public TableDataSource {
 public:
  // Not owned. follow: does what a notice offers.
  NoticeBoard(NoticeOutlets& outlets, Notices& notices, const Texts& texts,
              std::function<void(const Notice& notice)> follow);
  ~NoticeBoard() override;
  NoticeBoard(const NoticeBoard&) = delete;
  NoticeBoard& operator=(const NoticeBoard&) = delete;

  void show();
  void press();       // the button that the shown notice offers
  void toggleList();  // shows the latest notices, or hides them

  int numberOfRowsInTableView(TableView& table) override;
  CellValue objectValueForTableColumn(TableView& table, std::string_view column, int row) override;

 private:
  NoticeOutlets& outlets_;
  Notices& notices_;
  const Texts& texts_;
  std::function<void(const Notice& notice)> follow_;
};

}  // namespace tarvo
