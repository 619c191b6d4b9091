// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/failure_text.h"

#include <gtest/gtest.h>

#include <cerrno>

#include "platform/posix/posix_files.h"
#include "platform/services/failure_words.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"

namespace tarvo {
namespace {

Texts shipped(const std::string& language) {
  const Locations locations("/", "/");
  const PosixFiles files(locations);
  Texts texts;
  EXPECT_TRUE(overlayTableFile(texts, files,
                               DiskPath(TARVO_SOURCE_DIR "/resources") / (language + ".lproj/Localizable.strings")));
  return texts;
}

Failure failureOf(int error) { return {"/a b", Attempt::write, {error, std::generic_category()}}; }

TEST(FailureText, saysPathAttemptCauseAndCure) {
  EXPECT_EQ(failureText(failureOf(ENOSPC), shipped("en")),
            "/a b: cannot be written; the disk is full; make room on it");
  EXPECT_EQ(failureText(failureOf(EROFS), shipped("en")), "/a b: cannot be written; the disk can only be read");
  EXPECT_EQ(failureText(failureOf(ENOSPC), shipped("ja")),
            "/a b: 書き込めません; ディスクに空きがありません; 空き容量を増やしてください");
  EXPECT_EQ(failureText({"", Attempt::reach, Reason::noService}, shipped("en")),
            "cannot be reached; there is no style service");
  EXPECT_EQ(failureCauseText(failureOf(EROFS), shipped("en")), "cannot be written; the disk can only be read");
}

// Long vowels at the end of a word are written out, as in the window: "フォルダー", "ユーザー".
TEST(ShippedTexts, spellAJapaneseWordOneWay) {
  const Locations locations("/", "/");
  const PosixFiles files(locations);
  const auto table = files.read(DiskPath(TARVO_SOURCE_DIR "/resources/ja.lproj/Localizable.strings"));
  ASSERT_TRUE(table);
  std::string text = *table;
  const std::string example = "(ユーザ = ユーザー)";  // of an option that is about such spellings
  text.erase(text.find(example), example.size());
  for (const std::string word : {"フォルダ", "ユーザ", "マネージャ", "サーバ", "コンピュータ"}) {
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
      EXPECT_EQ(text.compare(at + word.size(), 3, "ー"), 0) << text.substr(at, 60);
    }
  }
}

TEST(FailureText, hasWordsForEveryAttemptAndReasonInBothLanguages) {
  for (const char* language : {"en", "ja"}) {
    const Texts texts = shipped(language);
    for (const auto& [attempt, tried] : attemptWords) {
      for (const auto& [reason, found] : reasonWords) {
        const std::string text = failureCauseText({"", attempt, reason}, texts);
        const std::string* what = texts.find(std::string("Failure.") + tried);
        const std::string* why = texts.find(std::string("Cause.") + found);
        ASSERT_TRUE(what != nullptr && why != nullptr) << language << " " << tried << " " << found;
        EXPECT_TRUE(text.starts_with(*what + "; " + *why)) << text;
      }
    }
  }
}

TEST(FailureText, hasWordsForWhatADiskCanAnswerInBothLanguages) {
  for (const char* language : {"en", "ja"}) {
    const Texts texts = shipped(language);
    for (const int error :
         {EACCES, EPERM,  ENOENT, ENOTDIR, EISDIR, EEXIST, ENOTEMPTY, ENOSPC,     EDQUOT,       EROFS,    ENAMETOOLONG,
          EFBIG,  EIO,    ENODEV, ENXIO,   EMFILE, ENFILE, ELOOP,     EMLINK,     EXDEV,        EBUSY,    ETXTBSY,
          ENOMEM, ESTALE, ENOSYS, EAGAIN,  EILSEQ, EINVAL, ENOTSUP,   EOPNOTSUPP, ECONNREFUSED, ETIMEDOUT}) {
      const std::string text = failureCauseText(failureOf(error), texts);
      EXPECT_EQ(text.find(failureOf(error).cause.message()), std::string::npos) << error << ": " << text;
      EXPECT_EQ(text.find("Cause."), std::string::npos) << text;
    }
  }
}

TEST(FailureText, takesTheSystemsWordsForOtherCauses) {
  EXPECT_EQ(failureCauseText(failureOf(EDOM), shipped("en")),
            "cannot be written; " + std::error_code(EDOM, std::generic_category()).message());
}

}  // namespace
}  // namespace tarvo
