// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/json.h"
#include "tests/soak/list_edits.h"

// Edits as lines of a script, which every shell can run.
namespace tarvo::test {

namespace {

constexpr int editsBetweenLooksAtTheDisk = 25;

const char* half(int direction) { return direction == 0 ? "ej" : "je"; }

std::string joined(const std::vector<int>& rows) {
  std::string words;
  for (const int row : rows) words += ' ' + std::to_string(row);
  return words;
}

std::string pickerLines(const ListEdit& edit, bool fits) {
  std::string lines = "type filterField " + writeJson(edit.filter) + '\n';
  if (edit.ticksAllShown) {
    lines += "press selectShownButton\n";
  } else {
    for (const int row : edit.rows) lines += "tick techDicTable " + std::to_string(row) + " on\n";
  }
  if (edit.cancels) return lines + "press picker.cancelButton\n";
  return lines + "press picker.okButton\n" + (fits ? "" : "press picker.cancelButton\n");
}

std::string gestureLines(const ListEdit& edit, const PlainLists& before) {
  const std::string side = half(before.direction());
  const std::string table = side + "TDTable", place = std::to_string(edit.place);
  switch (edit.kind) {
    case ListEdit::Kind::select:
      return edit.rows.empty() ? "deselect " + table + '\n' : "select " + table + joined(edit.rows) + '\n';
    case ListEdit::Kind::raise: return "press " + side + "RaiseDicButton\n";
    case ListEdit::Kind::lower: return "press " + side + "DownDicButton\n";
    case ListEdit::Kind::remove: return "press " + side + "RemoveDicButton\n";
    case ListEdit::Kind::drag: return "drag " + table + joined(edit.rows) + " to " + table + ' ' + place + " above\n";
    case ListEdit::Kind::chooseStyle: return "choose stylePopup " + place + '\n';
    case ListEdit::Kind::chooseDirection: return "tab directionTab " + place + '\n';
    case ListEdit::Kind::load: return "press " + side + "LoadDicButton\n" + pickerLines(edit, before.takes(edit));
  }
  return {};
}

std::string expectation(const Json& json) { return "expect " + writeJson(json) + '\n'; }

std::string tableLines(const PlainLists& lists, int direction) {
  Json::List cells;
  for (const std::string& name : lists.list(lists.style(), direction)) {
    cells.emplace_back(Json::Object{{"name", name.substr(0, name.rfind('.'))}});
  }
  const std::vector<int>& selected = lists.selected(direction);
  const std::string name = std::string(half(direction)) + "TDTable";
  return "show " + name + '\n' +
         expectation(Json::Object{{"name", "style." + name},
                                  {"kind", "table"},
                                  {"enabled", true},
                                  {"visible", true},
                                  {"rows", cells.empty() ? -1 : static_cast<int>(cells.size())},
                                  {"cells", cells},
                                  {"selectedRows", Json::List(selected.begin(), selected.end())},
                                  {"icon", "*"}});
}

Json recordOf(const PlainLists& lists, int style) {
  Json::Object english{{"Opt1", "*"}, {"Opt2", "*"}, {"Opt3", "*"}};
  Json::Object japanese{{"TOpt1", "*"}, {"TOpt2", "*"}, {"TOpt3", "*"}, {"TOpt4", "*"}, {"TOpt5", "*"}};
  const Words &first = lists.list(style, 0), &second = lists.list(style, 1);
  if (!first.empty()) english.emplace("TD", Json::List(first.begin(), first.end()));
  if (!second.empty()) japanese.emplace("TD", Json::List(second.begin(), second.end()));
  return Json::Object{{"EJ", english}, {"JE", japanese}, {"ID", style}, {"Name", "*"}};
}

std::string diskLines(const PlainLists& lists) {
  const std::string path = "home:/Library/Preferences/Wordhaven/TarvoStyle2009.plist";
  Json::List records;
  for (int style = 0; style < SoakRoot::styles; ++style) records.emplace_back(recordOf(lists, style));
  const Json::Object root{{"Selection", Json::Object{{"MG", lists.style()}}}, {"Style", records}};
  return "disk " + path + '\n' +
         expectation(Json::Object{{"path", path}, {"kind", "file"}, {"mode", "*"}, {"plist", root}});
}

}  // namespace

std::string scriptOf(const ListEdit& edit, const PlainLists& before, const PlainLists& after) {
  return gestureLines(edit, before) + tableLines(after, after.direction()) + "style " + std::to_string(after.style()) +
         '\n' + expectation(recordOf(after, after.style()));
}

std::string randomScript(unsigned seed, int count, PlainLists lists) {
  std::mt19937 random(seed);
  std::string script = "start\n";
  for (int made = 1; made <= count; ++made) {
    const ListEdit edit = lists.randomEdit(random);
    const PlainLists before = lists;
    lists.apply(edit);
    script += scriptOf(edit, before, lists);
    if (made % editsBetweenLooksAtTheDisk == 0 || made == count) script += diskLines(lists);
  }
  return script;
}

}  // namespace tarvo::test
