// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>
#include <random>

#include "platform/plist/plist_numbers.h"
#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "tests/platform/plist/binary_plist.h"
#include "tests/support/temporary_folder.h"

// Property lists against an independent implementation, in both directions, on generated values. The script does its
// part in one run for all of them.
namespace tarvo {
namespace {

constexpr int values = 2500;

bool runScript(const std::string& arguments) {
  return std::system(
             ("python3 \"" TARVO_SOURCE_DIR "/tests/platform/plist/plistlib_oracle.py\" " + arguments).c_str()) == 0;
}

std::string quoted(const std::string& path) { return "\"" + path + "\""; }

std::string joined(const std::vector<std::string>& records) {
  std::string bytes;
  for (const std::string& record : records) bytes += test::bigEndian(record.size(), 8) + record;
  return bytes;
}

std::vector<std::string> split(std::string_view bytes) {
  std::vector<std::string> records;
  while (bytes.size() >= 8) {
    std::size_t size = 0;
    for (const char byte : bytes.substr(0, 8)) size = (size << 8) | static_cast<unsigned char>(byte);
    records.emplace_back(bytes.substr(8, size));
    bytes.remove_prefix(8 + size);
  }
  return records;
}

class Generator {
 public:
  explicit Generator(unsigned index) : random_(index), zero_(index % 2 == 0 ? "0.0" : "-0.0") {}

  PropertyList root() { return below(8) == 0 ? value(1) : dictionary(1); }

 private:
  PropertyList value(int depth) {
    switch (below(depth < 6 ? 14 : 7)) {
      case 0: return below(2) == 1;
      case 1: return integer();
      case 2: return Real{real()};
      case 3: return date();
      case 4: return data();
      case 5:
      case 6: return text();
      case 7:
      case 8:
      case 9: return array(depth);
      default: return dictionary(depth);
    }
  }

  unsigned below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

  Integer integer() {
    const std::uint64_t magnitude = random_() >> below(64);
    return {magnitude, magnitude != 0 && magnitude <= std::uint64_t{1} << 63 && below(2) == 1};
  }

  // plistlib writes equal scalars once in binary, and takes 0.0 and -0.0 for equal: a value holds only one of the two.
  std::string real() {
    static const std::vector<std::string> spellings{"1.50",      "+2.5", ".5",       "-5.",
                                                    "1E+5",      "1e-7", "nan",      "+infinity",
                                                    "-infinity", "inf",  "4.9e-324", "0.1000000000000000055511151231"};
    if (below(4) == 0) return zero_;
    if (below(2) == 0) return spellings[below(static_cast<unsigned>(spellings.size()))];
    return textFromReal(std::bit_cast<double>(random_()));
  }

  Date date() { return {*textFromDate(static_cast<double>(random_() % 315537897600) - 63113904000.0)}; }

  Data data() {
    Data bytes(below(4) == 0 ? below(200) : below(5));
    for (std::byte& byte : bytes) byte = static_cast<std::byte>(random_());
    return bytes;
  }

  std::string text() {
    static const std::vector<std::string> pieces{"a", "Z",      " ",      "<",      ">",          "&",  "\"",
                                                 "'", "\t",     "\n",     "\r",     "é",          "日", "本",
                                                 "ｱ", "\u0085", "\u2028", "\uFEFF", "\U0001F600", "]]>"};
    std::string made;
    for (unsigned i = below(4) == 0 ? below(40) : below(5); i > 0; --i) {
      made += pieces[below(static_cast<unsigned>(pieces.size()))];
    }
    return made;
  }

  Array array(int depth) {
    Array made;
    for (unsigned i = below(5); i > 0; --i) made.push_back(value(depth + 1));
    return made;
  }

  Dictionary dictionary(int depth) {
    Dictionary made;
    for (unsigned i = below(8); i > 0; --i) made.set(text(), value(depth + 1));
    return made;
  }

  std::mt19937_64 random_;
  std::string zero_;
};

PropertyList generated(int index) {
  if (index > 0) return Generator(static_cast<unsigned>(index)).root();
  PropertyList deepest = true;
  for (int depth = 1; depth < plistMaximumDepth; ++depth) deepest = Array{deepest};
  return deepest;
}

// Reals count by value: plistlib spells them its own way.
std::string withPlainLineBreaks(std::string text);
struct Normal {
  bool plainLineBreaks;  // plistlib writes every line break of XML as a line feed

  PropertyList operator()(const Real& real) const { return Real{textFromReal(realFromText(real.text).value())}; }
  PropertyList operator()(const std::string& text) const { return line(text); }
  PropertyList operator()(const Array& array) const {
    Array made;
    for (const PropertyList& item : array) made.push_back(std::visit(*this, item.value()));
    return made;
  }
  PropertyList operator()(const Dictionary& dictionary) const {
    Dictionary made;
    for (const auto& [key, item] : dictionary.entries()) made.set(line(key), std::visit(*this, item.value()));
    return made;
  }
  template <class T>
  PropertyList operator()(const T& value) const {
    return value;
  }

  std::string line(const std::string& text) const { return plainLineBreaks ? withPlainLineBreaks(text) : text; }
};

std::string withPlainLineBreaks(std::string text) {
  for (std::size_t at = 0; (at = text.find("\r\n", at)) != std::string::npos;) text.erase(at, 1);
  std::replace(text.begin(), text.end(), '\r', '\n');
  return text;
}

PropertyList normal(const PropertyList& value, bool plainLineBreaks) {
  return std::visit(Normal{plainLineBreaks}, value.value());
}

TEST(PlistlibOracle, readsWhatWeWriteAndWritesWhatWeRead) {
  const test::TemporaryFolder folder;
  std::vector<std::string> lists;
  for (int i = 0; i < values; ++i) lists.push_back(writePropertyList(generated(i)));
  folder.write("ours", joined(lists));
  ASSERT_TRUE(runScript("reemit " + quoted(folder / "ours") + " " + quoted(folder / "theirs")));
  const std::vector<std::string> theirs = split(folder.read("theirs"));
  ASSERT_EQ(theirs.size(), 2U * values);
  for (int i = 0; i < values; ++i) {
    const std::size_t pair = 2 * static_cast<std::size_t>(i);
    const auto xml = readPropertyList(theirs[pair]);
    const auto binary = readPropertyList(theirs[pair + 1]);
    ASSERT_TRUE(xml && binary) << i;
    EXPECT_EQ(normal(*xml, true), normal(generated(i), true)) << lists[static_cast<std::size_t>(i)];
    EXPECT_EQ(normal(*binary, false), normal(generated(i), false)) << lists[static_cast<std::size_t>(i)];
  }
}

TEST(PlistlibOracle, findsItsOwnValuesInWhatWeReadAndWrite) {
  const test::TemporaryFolder folder;
  const std::string count = std::to_string(values);
  ASSERT_TRUE(runScript("generate " + count + " " + quoted(folder / "theirs")));
  std::vector<std::string> lists;
  for (const std::string& list : split(folder.read("theirs"))) {
    const auto value = readPropertyList(list);
    EXPECT_EQ(value.has_value(), !list.empty());
    lists.push_back(value ? writePropertyList(*value) : "");
  }
  ASSERT_EQ(lists.size(), 2U * values);
  folder.write("ours", joined(lists));
  EXPECT_TRUE(runScript("compare " + count + " " + quoted(folder / "ours")));
}

// Where the two differ on purpose: plistlib overlooks what stands behind the "Z".
TEST(PlistlibOracle, takesExactlyTheDatesThatWeCallSound) {
  std::vector<std::string> dates{"2009-01-31T12:00:00Z", "2009-01-31Z", "2009-01-31T12Z", "2009-01-31T12:30Z"};
  for (const std::string& whole : {std::string("2009-01-31T12:00:00Z"), std::string("9999-12-31T23:59:59Z"),
                                   std::string("0001-01-01T00:00:00Z"), std::string("2008-02-29T00:00:00Z")}) {
    for (std::size_t at = 0; at < whole.size(); ++at) {
      dates.push_back(whole.substr(0, at) + whole.substr(at + 1));
      for (const char digit : std::string_view("0123456789-:TZ+ .")) {
        if (digit == 'Z' && at + 1 < whole.size()) continue;
        std::string changed = whole;
        changed[at] = digit;
        dates.push_back(std::move(changed));
      }
    }
  }
  const test::TemporaryFolder folder;
  folder.write("dates", joined(dates));
  ASSERT_TRUE(runScript("dates " + quoted(folder / "dates") + " " + quoted(folder / "answers")));
  const std::vector<std::string> answers = split(folder.read("answers"));
  ASSERT_EQ(answers.size(), dates.size());
  for (std::size_t i = 0; i < dates.size(); ++i) EXPECT_EQ(isSoundDate(dates[i]), answers[i] == "1") << dates[i];
}

// Our own round trip keeps even what plistlib does not: the spelling of reals, and every line break.
TEST(PlistlibOracle, ourOwnRoundTripChangesNothing) {
  for (int i = 0; i < values; ++i) EXPECT_EQ(readPropertyList(writePropertyList(generated(i))), generated(i));
}

}  // namespace
}  // namespace tarvo
