// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

class QVBoxLayout;
class QWidget;

namespace tarvo {

class Binder;
class Button;
class TableView;
class TextField;

// What the Office pane and the mail pane have in common: a sentence, the applications with a box each, buttons beside
// them, and below what became of the last tick or what is known of the selected application, and why a tick failed.
struct AddinList {
  TableView& table;
  TextField &info, &reason;
  std::vector<Button*> buttons;           // from top to bottom
  std::vector<std::string_view> headers;  // text keys of the columns
  std::string_view introduction;          // text key of the sentence
  std::string_view whenEmpty;             // text key of what stands in a table without rows
};

// Adds it to the column, where it takes the room that is left.
void buildAddinList(const AddinList& list, Binder& binder, QWidget* pane, QVBoxLayout& column);

}  // namespace tarvo
