// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/style_commands.h"

#include "app/product.h"
#include "console/verbs/style_name.h"
#include "console/verbs/style_reading.h"
#include "console/verbs/text_table.h"
#include "platform/plist/json.h"
#include "style/divider.h"
#include "style/sibling_tools.h"
#include "style/style_keys.h"
#include "style/style_records.h"

// The verbs that only read styles.
namespace tarvo {

namespace {

using Rows = std::vector<std::vector<std::string>>;

// The ids of the tools whose remembered style this is.
std::vector<std::string> toolsAt(const Dictionary& root, int index, const std::vector<std::string>& ids) {
  std::vector<std::string> tools;
  const Dictionary* selection = root.dictionary(keyNameSelection);
  for (const std::string& id : ids) {
    if (selection != nullptr && selection->contains(id) && selection->integerValue(id) == index) tools.push_back(id);
  }
  return tools;
}

std::string joined(const std::vector<std::string>& words, const char* between) {
  std::string all;
  for (const std::string& word : words) all += (all.empty() ? "" : between) + word;
  return all;
}

std::string shortForm(const PropertyList& value) {
  if (value.string() != nullptr) return *value.string();
  const Array* array = value.array();
  if (array == nullptr) return writeJson(jsonFromPropertyList(value));
  std::vector<std::string> elements;
  for (const PropertyList& element : *array) elements.push_back(shortForm(element));
  return joined(elements, ", ");
}

// One row a value; those of nested dictionaries stand behind their names.
void addRows(Rows& rows, const Dictionary& dictionary, const std::string& before) {
  for (const auto& [key, value] : dictionary.entries()) {
    if (value.dictionary() != nullptr) {
      addRows(rows, *value.dictionary(), before + key + '.');
    } else {
      rows.push_back({before + key, shortForm(value)});
    }
  }
}

}  // namespace

ExitStatus StylesCommand::run(Console& console) {
  const ReadStyles styles = readStyles(console);
  if (!styles.root) return styles.status;
  const Texts& texts = console.product.texts();
  const std::vector<std::string> ids = toolIds(texts);
  const Array none;
  const Array* records = styles.root->array(keyNameStyle);
  Json::List list;
  Rows rows;
  int index = 0;
  for (const PropertyList& record : records != nullptr ? *records : none) {
    const Dictionary* style = record.dictionary();
    const std::string name = style != nullptr ? styleName(*style) : "";
    const bool isLine = style != nullptr && isDivider(*style, texts);
    const std::vector<std::string> tools = toolsAt(*styles.root, index, ids);
    rows.push_back({std::to_string(index), isLine ? "(divider)" : name, joined(tools, " ")});
    list.emplace_back(Json::Object{
        {"index", index}, {"name", name}, {"divider", isLine}, {"tools", Json::List(tools.begin(), tools.end())}});
    ++index;
  }
  if (console.json) {
    console.out << writeJson(list) << '\n';
  } else {
    writeTable(console.out, rows);
  }
  return styles.status;
}

ExitStatus StyleShowCommand::run(Console& console) {
  if (const std::optional<UsageError> error = wrongStyleWord(style_)) return tell(console, *error);
  const ReadStyles styles = readStyles(console);
  if (!styles.root) return styles.status;
  const auto index = styleNamed(*styles.root, console.product.texts(), style_, true);
  if (!index) return tell(console, index.error());
  const Dictionary& record = *(*styles.root->array(keyNameStyle))[static_cast<std::size_t>(*index)].dictionary();
  if (console.json) {
    console.out << writeJson(jsonFromPropertyList(record)) << '\n';
    return styles.status;
  }
  Rows rows;
  addRows(rows, record, "");
  writeTable(console.out, rows);
  return styles.status;
}

}  // namespace tarvo
