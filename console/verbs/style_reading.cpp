// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/style_reading.h"

#include "app/product.h"
#include "console/verbs/dictionary_services.h"
#include "console/verbs/refusal.h"
#include "platform/services/plist_file.h"
#include "style/option_table.h"
#include "style/style_file.h"
#include "style/style_history.h"
#include "style/style_keys.h"

namespace tarvo {

Result<Dictionary> readUsersStyles(Console& console) {
  Product& product = console.product;
  const DiskPath path = product.locations().inHome(gStylePath);
  Result<Dictionary> users = StyleFile(product.files(), path).read();
  if (users) noteMended(console, path, {goneDictionaries(dictionaryServices(product), *users), missingOptions(*users)});
  return users;
}

ReadStyles readStyles(Console& console) {
  Product& product = console.product;
  const DiskPath path = product.locations().inHome(gStylePath);
  Result<Dictionary> users = readUsersStyles(console);
  if (users) return {std::move(*users)};
  const bool isUnreadable = !isAbsence(users.error());
  Result<Dictionary> products =
      readDictionary(product.files(), product.locations().onDisk(ProductPath(std::string(gAppSupportStylePlist))));
  if (!products && !isUnreadable) return {std::nullopt, tell(console, products.error())};
  if (!products) return {std::nullopt, tell(console, Failure{path.text(), Attempt::read, users.error().cause})};
  if (!isUnreadable) {
    noteAbsentStyles(console);
    return {std::move(*products)};
  }
  const std::string cause = failureParts(users.error(), console.textsToTell()).cause;
  note(console, Refusal{path.text(), "Refusal.ProductsStyles", cause});
  return {std::move(*products), ExitStatus::refused};
}

void noteMended(Console& console, const DiskPath& path, const Mended& mended) {
  const Texts texts = console.textsToTell();
  std::vector<std::string> sentences = goneSentences(mended.gone, texts);
  if (!mended.filledIn.empty()) sentences.push_back(defaultsSentence(mended.filledIn, texts));
  for (const std::string& sentence : sentences) note(console, path.text(), sentence);
}

void noteAbsentStyles(Console& console) {
  const Locations& locations = console.product.locations();
  const EarlierStyles earlier(console.product.files(), locations.inHome(gEarlierStyles));
  const std::optional<EarlierSet> newest = newestWhole(earlier);
  if (newest) note(console, Refusal{locations.inHome(gStylePath).text(), "Refusal.AbsentStyles", newest->id});
}

void noteUnreadStyles(Console& console) {
  const DiskPath path = console.product.locations().inHome(gStylePath);
  const Result<Dictionary> users = StyleFile(console.product.files(), path).read();
  if (users || isAbsence(users.error())) return;
  note(console, {path.text(), "Refusal.StylesUnread", failureParts(users.error(), console.textsToTell()).cause});
}

}  // namespace tarvo
