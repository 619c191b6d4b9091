// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/controls/table_view.h"
#include "platform/controls/windows.h"
#include "style/style_history.h"

// The window of earlier styles: when which styles were replaced, by what; and the ways back.
namespace tarvo {

class Notices;
class StyleStore;
class Texts;
class UndoSteps;

struct EarlierStylesOutlets : Outlets {
  Window earlierStylesWindow{*this, "earlierStylesWindow"};
  TableView earlierStylesTable{*this, "earlierStylesTable"};
  TextField earlierStylesText{*this, "earlierStylesText", Control::Kind::text};
  Button restoreAllButton{*this, "restoreAllButton"}, restoreStyleButton{*this, "restoreStyleButton"},
      earlierStylesCloseButton{*this, "earlierStylesCloseButton"};
  EarlierStylesOutlets() : Outlets("manager") {}
};

namespace history_columns {
inline constexpr const char *time = "time", *kind = "kind", *changed = "changed";
}

// Duty: list the earlier sets, say what the chosen one would change, bring all of it or one style back: the one that
// was changed then, else the one that the pane shows. Not: keeping sets; showing the styles.
class EarlierStylesPanel : public TableDataSource, public TableDelegate {
 public:
  // Not owned.
  struct Collaborators {
    EarlierStylesOutlets& outlets;
    const PopUpButton& stylePopup;
    StyleStore& store;
    const EarlierStyles& earlier;
    Windows& windows;
    const UndoSteps& steps;
    Notices& notices;
    const Texts& texts;
    std::string standardName;  // of the style that keeps its name
    std::function<void()> showStyles;
  };
  explicit EarlierStylesPanel(Collaborators with) : with_(std::move(with)) {}

  // Runs the window until it is closed or a set was brought back. id: of the set that is chosen at first, else the
  // newest one that can be read.
  void run(const std::string& id);
  void restoreAll();
  void restoreStyle();
  void close() { with_.windows.stopModal(); }

  int numberOfRowsInTableView(TableView& table) override;
  CellValue objectValueForTableColumn(TableView& table, std::string_view column, int row) override;
  void selectionDidChange(TableView& table) override;

 private:
  std::optional<std::size_t> chosenRow() const;
  int offeredStyle();
  int rowOfSet(const std::string& id);
  std::string effectOf(const Dictionary& root, const EarlierSet& set) const;
  void didRestore(std::size_t stepBefore, const std::string& key, const std::string& value);
  Collaborators with_;
  std::optional<StyleHistory> history_;
  std::optional<Failure> unlisted_;   // why nobody knows which sets there are
  std::optional<Dictionary> chosen_;  // the root of the chosen set, when it can be brought back
  int offered_ = -1;                  // the place of the style that is brought back alone
};

}  // namespace tarvo
