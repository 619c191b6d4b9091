// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/console/run_tool.h"

#include <sys/wait.h>

#include <cstdlib>

#include "tests/support/shell.h"

namespace tarvo::test {

ToolResult runTool(const std::vector<std::string>& arguments, const std::string& workingFolder,
                   const std::string& input, const std::vector<std::string>& variables) {
  const TemporaryFolder files;
  files.write("in", input);
  std::string command = "cd " + quoted(workingFolder) + " && umask 022 && env -i PATH=/usr/bin:/bin LC_ALL=C.UTF-8 ";
  for (const std::string& variable : variables) command += quoted(variable) + ' ';
  command += quoted(TARVOCTL);
  for (const std::string& argument : arguments) command += ' ' + quoted(argument);
  command += " < " + quoted(files / "in") + " > " + quoted(files / "out") + " 2> " + quoted(files / "err");
  const int status = std::system(command.c_str());
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, files.read("out"), files.read("err")};
}

}  // namespace tarvo::test
