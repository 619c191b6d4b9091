// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/script/hand.h"
#include "console/script/scenario_session.h"
#include "platform/plist/property_list.h"
#include "tests/soak/plain_lists.h"
#include "tests/support/temporary_folder.h"

// Random edits of dictionary lists in the real program, beside plain lists that know nothing of it.
namespace tarvo {
class MemoryWindows;
class Program;
}  // namespace tarvo

namespace tarvo::test {

// How many edits a run makes over the controls; over a shell with its script a twentieth. TARVO_EDITS in the
// environment says how many, else a tenth of what script/soak runs.
int editCount();
inline int shellEditCount() { return editCount() / 20; }

// Two runs that are the same everywhere, and one that nobody has seen.
const std::vector<unsigned>& seeds();
std::string seedName(std::size_t index);  // "fixed0", "fixed1", "fresh"

// In memory where the system has a place for that: a hundred thousand synced writes would only wear a disk.
std::string placeOfSoaks();

// A product of its own with dictionaries of both directions and styles without any. A home lies at Users/taro.
class SoakRoot {
 public:
  static constexpr int styles = 3;
  SoakRoot();
  const std::string& path() const { return folder_.path(); }
  std::string home() const { return folder_ / "Users/taro"; }
  std::string styleFile() const { return folder_ / styleFileBelow; }
  PlainLists plainLists() const;
  ScenarioOptions options() const;

 private:
  static constexpr const char* styleFileBelow = "Users/taro/Library/Preferences/Wordhaven/TarvoStyle2009.plist";
  TemporaryFolder folder_;
};

// Makes the edit with a hand. windows: of the shell; the picker's modal run is worked through them.
void makeEdit(const ListEdit& edit, const PlainLists& before, Program& program, Hand& hand, MemoryWindows& windows);

// The edit, and what has to be seen after it, as lines of a script. before and after: the plain lists around the edit.
std::string scriptOf(const ListEdit& edit, const PlainLists& before, const PlainLists& after);
// A whole script of so many random edits.
std::string randomScript(unsigned seed, int count, PlainLists lists);

// What differs between the lists, the controls and the store of a program; "" when nothing does.
std::string differenceInProgram(const PlainLists& lists, Program& program);
// The same between the lists and the root of a style file.
std::string differenceInStyles(const PlainLists& lists, const Dictionary& root);
// One line a list: "0 EJ a.TRet|b.TRet", as lists_of.py prints those of a file.
std::string linesOf(const PlainLists& lists);

}  // namespace tarvo::test
