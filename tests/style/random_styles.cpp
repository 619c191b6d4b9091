// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/style/random_styles.h"

#include <array>

#include "platform/plist/plist_numbers.h"
#include "style/option_table.h"

namespace tarvo::test {

PropertyList RandomStyles::option(int highest) {
  const int number = static_cast<int>(below(static_cast<unsigned>(highest) + 1));
  switch (below(8)) {
    case 0: return std::to_string(number);
    case 1: return Real{std::to_string(number) + ".25"};
    case 2: return below(2) == 1;
    default: return number;
  }
}

std::string RandomStyles::text() {
  static const std::array<const char*, 14> pieces{"a",  "Z",  " ", "<",  "&", "\"",     "'",
                                                  "\t", "\n", "é", "辞", "ｱ", "\u3000", "\U0001F600"};
  std::string made;
  for (unsigned i = below(6); i > 0; --i) made += pieces[below(pieces.size())];
  return made;
}

PropertyList RandomStyles::value(int depth) {
  switch (below(depth < 4 ? 9 : 6)) {
    case 0: return below(2) == 1;
    case 1: {
      const std::uint64_t magnitude = random_() >> below(64);
      return Integer{magnitude, magnitude != 0 && magnitude <= std::uint64_t{1} << 63 && below(2) == 1};
    }
    case 2: return Real{textFromReal(static_cast<double>(random_() % 100000) / 7.0)};
    case 3: return Date{*textFromDate(static_cast<double>(random_() % 4'000'000'000))};
    case 4: return Data(below(20), static_cast<std::byte>(random_()));
    case 5: return text();
    case 6: {
      Array made;
      for (unsigned i = below(4); i > 0; --i) made.push_back(value(depth + 1));
      return made;
    }
    default: {
      Dictionary made;
      for (unsigned i = below(4); i > 0; --i) made.set(text(), value(depth + 1));
      return made;
    }
  }
}

Array RandomStyles::dictionaryNames() {
  Array names;
  for (unsigned i = below(9); i > 0; --i) names.emplace_back(text() + ".TRet");
  return names;
}

void RandomStyles::addUnknownKeys(Dictionary& dictionary) {
  for (unsigned i = below(4); i > 0; --i) dictionary.set("future " + text(), value(1));
}

Dictionary RandomStyles::style() {
  Dictionary ej, je, style;
  for (const char* key : {"Opt1", "Opt2", "Opt3"}) ej.set(key, option(2));
  je.set("TOpt1", option(4));
  je.set("TOpt2", option(4));
  je.set("TOpt3", option(3));
  if (below(4) != 0) je.set("TOpt4", option(1));
  if (below(4) != 0) je.set("TOpt5", option(1));
  for (const DetailOption& detail : detailOptions()) {
    if (below(3) != 0) je.set(detail.key, detail.choices()[below(static_cast<unsigned>(detail.valueCount))]);
  }
  for (Dictionary* half : {&ej, &je}) {
    if (below(3) != 0) half->set("TD", dictionaryNames());
    if (below(4) == 0) half->set("UD", Array{text()});
    addUnknownKeys(*half);
  }
  addUnknownKeys(style);
  style.set("Name", text());
  if (below(3) != 0) style.set("ID", value(4));
  style.set("EJ", ej);
  style.set("JE", je);
  return style;
}

}  // namespace tarvo::test
