// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/web_server.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>
#include <stdexcept>

#include "tests/support/shell.h"

namespace tarvo::test {
namespace {

std::string newFolder() {
  std::string name = std::filesystem::temp_directory_path() / "web-server-XXXXXX";
  if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no folder for a web server");
  return name;
}

std::string helper(const std::string& words) {
  return outputOf("python3 -B " + test::quoted(TARVO_SOURCE_DIR "/tests/servers/web_servers.py") + ' ' + words);
}

}  // namespace

WebServer::WebServer(const std::string& kind, const std::string& certificateFor) : folder_(newFolder()) {
  std::string words = "start " + kind + ' ' + test::quoted(folder_);
  if (!certificateFor.empty()) {
    const std::string key = folder_ + "/key.pem";
    outputOf("openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=test -addext subjectAltName=" +
             certificateFor + " -keyout " + test::quoted(key) + " -out " + test::quoted(certificate()) + " 2>&1");
    words += ' ' + test::quoted(certificate()) + ' ' + test::quoted(key);
  }
  std::istringstream(helper(words)) >> process_ >> address_;
}

WebServer::~WebServer() {
  if (!process_.empty()) helper("kill " + process_);
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

}  // namespace tarvo::test
