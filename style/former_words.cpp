// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/former_words.h"

#include "platform/services/failure_text.h"
#include "platform/services/texts.h"

namespace tarvo {

std::string foreignSentence(const std::string& kept, const std::string& beside, const Texts& texts) {
  if (!kept.empty()) return texts.localized("Notice.foreignReplaced");
  return filledIn(texts.localized("Notice.foreignBeside"), beside);
}

std::string unkeptSentence(const std::string& kept, const Failure& why, const Texts& texts) {
  return filledIn(texts.localized(kept.empty() ? "Notice.unkept" : "Notice.unsure"), failureText(why, texts));
}

}  // namespace tarvo
