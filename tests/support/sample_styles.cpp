// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/sample_styles.h"

namespace tarvo::test {

namespace {

using Entries = std::vector<std::pair<const char*, PropertyList>>;

Dictionary dictionary(const Entries& entries) {
  Dictionary result;
  for (const auto& [key, value] : entries) result.set(key, value);
  return result;
}

Array names(std::initializer_list<const char*> all) { return Array(all.begin(), all.end()); }

Dictionary standardStyle() {
  return dictionary(
      {{"Name", "NomalStyle"},
       {"ID", 0},
       {"EJ", dictionary({{"Opt1", 0}, {"Opt2", 1}, {"Opt3", 2}, {"TD", names({"a.TRet", "b.TRet", "c.TRet"})}})},
       {"JE", dictionary({{"TOpt1", 1},
                          {"TOpt2", 2},
                          {"TOpt3", 3},
                          {"TOpt4", true},
                          {"TOpt5", 1},
                          {"TD", names({"j1.TRet", "j2.TRet"})},
                          {"PARS_SAHEN", "present"}})}});
}

Dictionary alpha() {
  return dictionary({{"Name", "Alpha"},
                     {"ID", 1},
                     {"EJ", dictionary({{"Opt1", 1}, {"Opt2", 0}, {"Opt3", 0}})},
                     {"JE", dictionary({{"TOpt1", 0}, {"TOpt2", 0}, {"TOpt3", 0}, {"TOpt4", false}, {"TOpt5", 0}})}});
}

Dictionary beta() {
  return dictionary(
      {{"Name", "Beta"},
       {"ID", 3},
       {"EJ",
        dictionary(
            {{"Opt1", 2}, {"Opt2", 2}, {"Opt3", 1}, {"TD", names({"b.TRet", "a.TRet"})}, {"UD", names({"u.eud2"})}})},
       {"JE", dictionary({{"TOpt1", 4},
                          {"TOpt2", 4},
                          {"TOpt3", 0},
                          {"TOpt4", true},
                          {"TOpt5", 0},
                          {"TD", names({"j2.TRet"})},
                          {"FLEX_MODE", "x"},
                          {"PARS_SAHEN", "past"}})},
       {"Future", dictionary({{"k", 1}})}});
}

}  // namespace

Dictionary sampleRoot() {
  return dictionary({{"Style", Array{standardStyle(), alpha(), dictionary({{"Name", "keyNameSeparator"}}), beta()}},
                     {"Selection", dictionary({{"MG", 0}, {"QB", 3}})},
                     {"Extra", "keep"}});
}

}  // namespace tarvo::test
