// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

// What desktops read about the program, judged by the desktops' own tools.
namespace tarvo {
namespace {

const std::string folder = TARVO_SOURCE_DIR "/qt/desktop/com.wordhaven.TarvoManager";

std::string textOf(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path).rdbuf();
  return text.str();
}

TEST(DesktopFiles, theEntryIsValidAndStartsByTheBus) {
  EXPECT_EQ(test::outputOf("desktop-file-validate " + test::quoted(folder + ".desktop")), "");
  const std::string entry = textOf(folder + ".desktop");
  for (const char* line :
       {"\nDBusActivatable=true\n", "\nExec=tarvo-manager %f\n", "\nMimeType=application/x-tarvo-style;\n"}) {
    EXPECT_NE(entry.find(line), std::string::npos) << line;
  }
}

TEST(DesktopFiles, theServiceStartsTheInstalledProgram) {
  const std::string service = textOf(TARVO_SERVICE_FILE);
  EXPECT_NE(service.find("\nName=com.wordhaven.TarvoManager\nExec=/"), std::string::npos) << service;
  EXPECT_EQ(service.find('@'), std::string::npos) << service;
}

TEST(DesktopFiles, styleFilesAreKnownByTheirEnding) {
  const test::TemporaryFolder mime;
  mime.write("packages/manager.xml", textOf(folder + ".xml"));
  test::outputOf("update-mime-database " + test::quoted(mime.path()) + " 2>/dev/null");
  EXPECT_NE(mime.read("globs2").find(":application/x-tarvo-style:*.whstyle\n"), std::string::npos)
      << mime.read("globs2");
}

}  // namespace
}  // namespace tarvo
